#include "core/screen/Printer.h"
#include "support/FormTest.h"

#include <QImage>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace forcelab::test {
namespace {

using screen::AskForPrinter;
using screen::Printer;

class Printing : public FormTest {
  protected:
    QByteArray Printed() const
    {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // The pages of a PDF file.
    static qsizetype PagesOf(const QByteArray& pdf)
    {
        return QString::fromLatin1(pdf).count(QRegularExpression("/Type /Page\\b"));
    }
    // A4 with margins of one inch.
    std::unique_ptr<Printer> OnA4()
    {
        auto writer = std::make_unique<QPdfWriter>(path_);
        writer->setPageSize(QPageSize(QPageSize::A4));
        writer->setPageMargins(QMarginsF(1, 1, 1, 1), QPageLayout::Inch);
        return std::make_unique<Printer>(std::move(writer));
    }
    QTemporaryDir folder_;
    QString path_ = folder_.filePath("page.pdf");
};

TEST_F(Printing, CancelGivesNoPrinter)
{
    EXPECT_EQ(AskForPrinter(nullptr), nullptr);
    EXPECT_EQ(Printers->Asked, 1);
    EXPECT_TRUE(Messages->Shown.empty());
}

TEST_F(Printing, APrinterThatCannotBeDrawnOnIsReported)
{
    Printers->PdfFile = folder_.filePath("no such folder/page.pdf");
    Expect({kExclamation, "Printer Error",
            "Forcelab could not get your printer\r\n"
            "to respond.  Please check your printer\r\n"
            "and your printer setup in Windows."});
    EXPECT_EQ(AskForPrinter(nullptr), nullptr);
}

TEST_F(Printing, AMarginIsKeptFromTheEdgesOfThePaper)
{
    auto writer = std::make_unique<QPdfWriter>(path_);
    writer->setPageSize(QPageSize(QPageSize::Letter));
    writer->setPageMargins(QMarginsF(0.25, 0.5, 1.5, 0.5), QPageLayout::Inch);
    const Printer printer(std::move(writer));
    const QRectF room = printer.Inside(1);
    EXPECT_NEAR(room.left(), 0.75 * 96, 0.5);
    EXPECT_NEAR(room.top(), 0.5 * 96, 0.5);
    EXPECT_NEAR(room.width(), (8.5 - 1 - 1.5) * 96, 1); // the printer's own margin is larger
    EXPECT_NEAR(room.height(), (11 - 2) * 96, 1);
    EXPECT_NEAR(printer.Inside(99).height(), 10 * 96 / 3.0, 1);
    EXPECT_GT(printer.Inside(99).width(), 0);
}

TEST_F(Printing, ThePageIsMeasuredInPixelsInsideTheMargins)
{
    const auto printer = OnA4();
    ASSERT_TRUE(printer->Ready());
    EXPECT_TRUE(Near(printer->Width(), (210 / 25.4 - 2) * 96, 0.002));
    EXPECT_TRUE(Near(printer->Height(), (297 / 25.4 - 2) * 96, 0.002));
}

TEST_F(Printing, PagesComeOutInTheirOrder)
{
    Printers->PdfFile = path_;
    const auto printer = AskForPrinter(nullptr);
    ASSERT_NE(printer, nullptr);
    for (int page = 0; page < 3; ++page) {
        if (page > 0) printer->NewPage();
        auto pic = printer->Area(0, 0, printer->Width(), 100);
        EXPECT_EQ(pic->HeightPixels(), 100);
        pic->Print("page");
    }
    printer->EndDoc();
    EXPECT_FALSE(printer->Ready());
    printer->NewPage();
    printer->EndDoc();
    EXPECT_EQ(PagesOf(Printed()), 3);
}

TEST_F(Printing, AnAreaIsAPictureOfItsOwn)
{
    const auto printer = OnA4();
    auto upper = printer->Area(0, 0, 300, 200);
    auto lower = printer->Area(0, 220, 300, 300);
    upper->Scale(0, 1, 1, 0);
    lower->Scale(-1, 1, 1, -1);
    upper->FilledBox(0, 0, 1, 1);
    lower->ForeColor = Rgb(0, 0, 255);
    lower->FilledBox(-1, -1, 0, 1);
    EXPECT_EQ(upper->Point(0.5, 0.5), Rgb(0, 0, 0));
    EXPECT_EQ(lower->Point(-0.5, 0.5), Rgb(0, 0, 255));
    EXPECT_EQ(lower->Point(0.5, 0.5), Rgb(255, 255, 255));
}

TEST_F(Printing, WithoutADeviceNothingIsReady)
{
    Printer printer(nullptr);
    EXPECT_FALSE(printer.Ready());
    EXPECT_EQ(printer.Width(), 0);
    printer.Area(0, 0, 10, 10)->FilledBox(0, 0, 1, 1);
    printer.NewPage();
    printer.EndDoc();
    EXPECT_FALSE(printer.Ready());
}

} // namespace
} // namespace forcelab::test
