#include "PropertiesFormTest.h"

#include <cmath>
#include <random>

namespace forcelab::sections {
namespace {

constexpr int kSteps = 2000;
constexpr std::uint32_t kDefaultSeed = 20252;

/// Presses, types and chooses at random. Whatever it does, no box may come that the form does not
/// know, and no number that is not finite may stand in the record.
class PropertiesMonkey : public PropertiesFormTest {
  protected:
    int Pick(std::size_t count) { return static_cast<int>(random_() % count); }

    template <class Control>
    Control* AnyVisible()
    {
        std::vector<Control*> found;
        for (Control* control : TheForm().findChildren<Control*>())
            if (control->isVisible() && control->isEnabled()) found.push_back(control);
        return found.empty() ? nullptr : found[std::size_t(Pick(found.size()))];
    }

    void TypeSomething()
    {
        auto* box = AnyVisible<screen::TextBox>();
        if (!box) return;
        static const std::vector<std::string> kTexts{
            "0",    "1",      "-5",       "12.5", "1e+400", "abc", "",      "3e+6",
            "1e-6", "90",     "45",       "1e+6", "0.3",    "8",   "1,5",   "-",
            "2",    "1e+200", "0.000001", "4",    "10",     "0.5", "999999"};
        box->SetFocus();
        box->selectAll();
        QTest::keyClicks(box, screen::Q(kTexts[std::size_t(Pick(kTexts.size()))]));
        if (Pick(4) == 0) QTest::keyClick(box, Qt::Key_Return);
    }

    void PressSomething()
    {
        auto* button = AnyVisible<QAbstractButton>();
        if (button) QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
    }

    void PaintSomething()
    {
        auto* swatch = AnyVisible<SwatchBox>();
        if (!swatch) return;
        static constexpr Qt::Key kKeys[] = {Qt::Key_A, Qt::Key_B, Qt::Key_Space, Qt::Key_X};
        if (Pick(2) == 0) return QTest::keyClick(swatch, kKeys[Pick(std::size(kKeys))]);
        QTest::mouseClick(swatch, Pick(2) == 0 ? Qt::LeftButton : Qt::RightButton);
    }

    void ChooseSomething()
    {
        if (auto* combo = AnyVisible<screen::ComboBox>())
            combo->setCurrentIndex(Pick(std::size_t(combo->count())));
        if (auto* list = AnyVisible<QListWidget>(); list && list->count() > 0)
            list->setCurrentRow(Pick(std::size_t(list->count())));
    }

    void TriggerSomething()
    {
        std::vector<QAction*> items;
        for (QAction* item : TheForm().findChildren<QAction*>())
            if (item->objectName().startsWith(QLatin1String("mnu")) && !item->menu())
                items.push_back(item);
        items[std::size_t(Pick(items.size()))]->trigger();
    }

    void FillAndCompute()
    {
        for (auto* box : TheForm().findChildren<screen::TextBox*>())
            if (box->isVisible() && !box->isReadOnly()) box->setText(QString::number(1 + Pick(9)));
        if (auto* compute = TheForm().findChild<QAbstractButton*>(QStringLiteral("cmdShape(1)")))
            compute->click();
    }

    void Step()
    {
        using Action = void (PropertiesMonkey::*)();
        static constexpr Action kActions[] = {
            &PropertiesMonkey::TypeSomething,    &PropertiesMonkey::TypeSomething,
            &PropertiesMonkey::PressSomething,   &PropertiesMonkey::PressSomething,
            &PropertiesMonkey::PaintSomething,   &PropertiesMonkey::ChooseSomething,
            &PropertiesMonkey::TriggerSomething, &PropertiesMonkey::FillAndCompute};
        (this->*kActions[Pick(std::size(kActions))])();
    }

    void ExpectKnownBoxes()
    {
        for (const test::MsgBox& box : Messages->Shown)
            EXPECT_TRUE(box.Title == "Forcelab" || box.Title == "Section Properties Error")
                << box.Title << ": " << box.Text;
        Messages->Shown.clear();
    }

    static bool RecordIsFinite()
    {
        for (int row = 0; row <= 18; ++row)
            for (int column = 1; column <= 8; ++column)
                if (!std::isfinite(CurrentSection.Record.At(row, column))) return false;
        return true;
    }

    std::mt19937 random_;
};

TEST_F(PropertiesMonkey, DoesNoHarm)
{
    RegisterEmpty("frmMohr");
    const char* given = std::getenv("FORCELAB_SEED");
    const auto seed = given ? static_cast<std::uint32_t>(std::stoul(given)) : kDefaultSeed;
    std::printf("seed %u (FORCELAB_SEED)\n", seed);
    random_.seed(seed);
    Messages->AcceptAny = true;
    int computed = 0;
    for (int step = 0; step < kSteps; ++step) {
        if (!screen::Forms::IsVisible("frmProperties")) Open("frmProperties");
        Use("frmProperties");
        Step();
        QCoreApplication::processEvents();
        ExpectKnownBoxes();
        ASSERT_TRUE(RecordIsFinite()) << "step " << step;
        computed += CurrentSection.SectionComputed ? 1 : 0;
    }
    EXPECT_GT(computed, kSteps / 20);
}

} // namespace
} // namespace forcelab::sections
