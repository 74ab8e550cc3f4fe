#pragma once

#include "SteelText.h"
#include "core/MainModule.h"
#include "sections/SectionInput.h"
#include "sections/SectionRecord.h"
#include "sections/ShapeCatalogue.h"
#include "sections/forms/frmProperties.h"
#include "support/FormTest.h"
#include "transform/StressState.h"

#include <QFile>
#include <QTemporaryDir>

#include <fstream>
#include <string>
#include <vector>

namespace forcelab::sections {

/// Works frmProperties with the steel tables of the program; forms of other modules and the report
/// are empty windows with their names.
class PropertiesFormTest : public test::FormTest {
  protected:
    PropertiesFormTest()
    {
        CurrentSection = {};
        CurrentEntry = {};
        transform::CurrentHandOver = {};
        MainModule::SectionCaller = 3;
        MainModule::DataPath = SteelFolder();
        screen::Forms::Register("frmProperties", [] { return new frmProperties; });
        RegisterEmpty("frmMainMenu");
        RegisterEmpty("frmCrossSection");
    }

    static void RegisterEmpty(const char* name)
    {
        screen::Forms::Register(name, [name] { return new screen::Form(name, name); });
    }

    /// A folder with the seven files, packed once from the tables of the program.
    static std::string SteelFolder()
    {
        static const QTemporaryDir folder;
        static const std::string path = folder.path().toStdString() + "/";
        static const bool packed = (PackTables(path), true);
        return packed ? path : std::string();
    }

    static const std::vector<SteelShape>& Table(int family)
    {
        static const auto tables = ReadSteelFiles(SteelFolder());
        return tables.value()[std::size_t(family)];
    }

    void OpenShape(const std::string& menuItem)
    {
        Open("frmProperties");
        Trigger(menuItem);
    }

    static std::string Box(int index) { return "txtShape(" + std::to_string(index) + ")"; }
    static std::string Swatch(int element) { return "picShape(" + std::to_string(element) + ")"; }

    /// Types the dimensions into the boxes from 0 on; an empty text leaves its box.
    void TypeDimensions(const std::vector<std::string>& texts)
    {
        for (std::size_t i = 0; i < texts.size(); ++i)
            if (!texts[i].empty()) Type(Box(int(i)), test::Local(texts[i]));
    }

    void Compute() { Click("cmdShape(1)"); }

    void ComputeShape(const std::string& menuItem, const std::vector<std::string>& dimensions)
    {
        OpenShape(menuItem);
        TypeDimensions(dimensions);
        Compute();
    }

    /// A steel plate on a wooden stem: wood is Material A.
    void EnterComposite()
    {
        OpenShape("mnuFlanged(4)");
        TypeDimensions({"6", "0.5", "10", "6"});
        Choose("chkElasticModulus");
        Choose("optElasticModulus(1)");
        Type("txtElasticModulus(1)", "1600");
        Type("txtElasticModulus(2)", "29000");
    }

    Colour GroundOf(int element) { return Find<SwatchBox>(Swatch(element)).Ground(); }
    QListWidget& SteelList() { return Find<QListWidget>("lstSteelShapes"); }

    void SelectSteel(const std::string& designation)
    {
        const auto found = SteelList().findItems(screen::Q(designation), Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << designation;
        SteelList().setCurrentItem(found.front());
    }

    static double Figure(Row row, Column column) { return CurrentSection.Record(row, column); }
    static bool ReportIsShown() { return screen::Forms::IsVisible("frmCrossSection"); }

  private:
    static void PackTables(const std::string& folder)
    {
        for (int family = 0; family < kSteelFamilies; ++family) {
            std::ifstream text("data/steel/" + SteelTextName(SteelFamily(family)));
            const SteelText table = ReadSteelText(SteelFamily(family), text);
            EXPECT_EQ(table.Problem, "");
            const auto bytes = PackSteelTable(SteelFamily(family), table.Shapes);
            QFile file(screen::Q(folder) + screen::Q(kSteelFiles[family].Name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(reinterpret_cast<const char*>(bytes.data()), qint64(bytes.size()));
        }
    }
};

} // namespace forcelab::sections
