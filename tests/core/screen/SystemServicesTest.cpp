#include "core/screen/SystemServices.h"
#include "core/Picture.h"
#include "support/Near.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPagedPaintDevice>
#include <QPrintDialog>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>

namespace forcelab::test {
namespace {

using screen::MakeSystemMessages;
using screen::MakeSystemPrinters;
using screen::MakeSystemRegistry;
using screen::MakeSystemScreen;
using screen::SeparatorsOf;

// Works the modal dialog that comes up next, then closes it where it is still open.
template <class Dialog, class Work>
void OnNextDialog(Work work)
{
    QTimer::singleShot(0, qApp, [work] {
        auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "no such dialog came up";
        work(*dialog);
        dialog->close();
    });
}

struct BoxRow {
    int Code;
    QMessageBox::Icon Icon;
    bool HasCancel;
};

class SystemMessage : public testing::TestWithParam<BoxRow> {};

TEST_P(SystemMessage, HasIconTextTitleAndButtons)
{
    const BoxRow row = GetParam();
    const auto messages = MakeSystemMessages();
    OnNextDialog<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.icon(), row.Icon);
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(box.text(), "a < b & c\nsecond line\nthird");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.button(QMessageBox::Cancel) != nullptr, row.HasCancel);
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
    EXPECT_EQ(messages->Show(nullptr, row.Code, "a < b & c\r\nsecond line\rthird", "Title"),
              kAnswerOk);
}

TEST_P(SystemMessage, EscapeIsCancelWhereThereIsOne)
{
    const auto messages = MakeSystemMessages();
    OnNextDialog<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(messages->Show(nullptr, GetParam().Code, "text", "Title"),
              GetParam().HasCancel ? kAnswerCancel : kAnswerOk);
}

INSTANTIATE_TEST_SUITE_P(Codes, SystemMessage,
                         testing::Values(BoxRow{kStop, QMessageBox::Critical, false},
                                         BoxRow{kStopOkCancel, QMessageBox::Critical, true},
                                         BoxRow{kExclamation, QMessageBox::Warning, false},
                                         BoxRow{kExclamationOkCancel, QMessageBox::Warning, true},
                                         BoxRow{kInformation, QMessageBox::Information, false}));

TEST(SystemFiles, AskForAFileAndTakeCancel)
{
    const auto files = screen::MakeSystemFiles();
    const QTemporaryDir folder;
    const QString proposal = folder.filePath("truss.txt");
    OnNextDialog<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save it");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.reject();
    });
    EXPECT_EQ(files->SaveFile(nullptr, "Save it", proposal, "Texts (*.txt)"), QString());
    OnNextDialog<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Open it");
        dialog.reject();
    });
    EXPECT_EQ(files->OpenFile(nullptr, "Open it", folder.path(), "Texts (*.txt)"), QString());
}

TEST(SystemFiles, GiveTheNameThatWasTyped)
{
    const auto files = screen::MakeSystemFiles();
    const QTemporaryDir folder;
    const QString path = folder.filePath("truss.txt");
    OnNextDialog<QFileDialog>([](QFileDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>();
        ASSERT_NE(name, nullptr);
        QTest::keyClick(name, Qt::Key_Return);
    });
    EXPECT_EQ(files->SaveFile(nullptr, "Save it", path, "Texts (*.txt)"), path);
}

TEST(SystemPrinters, CancelGivesNoDevice)
{
    const auto printers = MakeSystemPrinters();
    OnNextDialog<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(printers->AskForPrinter(nullptr), nullptr);
}

TEST(SystemScreen, DescribesThePrimaryScreen)
{
    const auto facts = MakeSystemScreen();
    const QScreen* screen = QGuiApplication::primaryScreen();
    EXPECT_TRUE(Near(facts->TwipsPerPixel() * screen->logicalDotsPerInchX(), 1440));
    EXPECT_TRUE(Near(facts->WidthTwips(), screen->size().width() * facts->TwipsPerPixel(), 1e-4));
    EXPECT_EQ(facts->WorkArea(), screen->availableGeometry());
    const double bar = facts->ScrollBarTwips() / facts->TwipsPerPixel();
    EXPECT_GT(bar, 5);
    EXPECT_LT(bar, 60);
}

TEST(SystemScreen, ListsTheFontOfGreekLettersOnce)
{
    const QStringList fonts = MakeSystemScreen()->Fonts();
    EXPECT_EQ(fonts.count("Symbol"), 1);
    EXPECT_GT(fonts.size(), 1);
}

TEST(SystemScreen, KnowsTwoSettingsOfSeparators)
{
    EXPECT_EQ(SeparatorsOf(",").DecimalPoint, ',');
    EXPECT_EQ(SeparatorsOf(",").Thousands, '.');
    EXPECT_EQ(SeparatorsOf(".").DecimalPoint, '.');
    EXPECT_EQ(SeparatorsOf(".").Thousands, ',');
    EXPECT_EQ(SeparatorsOf("٫").DecimalPoint, '.');
    const Regional system = MakeSystemScreen()->Separators();
    EXPECT_NE(system.DecimalPoint, system.Thousands);
}

TEST(SystemRegistry, HoldsNothing)
{
    EXPECT_EQ(MakeSystemRegistry()->Read("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH"),
              std::nullopt);
}

TEST(SystemRegistry, KnowsWhichFilesExist)
{
    const auto registry = MakeSystemRegistry();
    const QTemporaryDir folder;
    QFile file(folder.filePath("tool"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(registry->FileExists(file.fileName().toStdString()));
    EXPECT_FALSE(registry->FileExists(folder.path().toStdString())) << "a folder";
    EXPECT_FALSE(registry->FileExists(folder.filePath("other").toStdString()));
    EXPECT_FALSE(registry->Run(folder.filePath("other").toStdString()));
}

} // namespace
} // namespace forcelab::test
