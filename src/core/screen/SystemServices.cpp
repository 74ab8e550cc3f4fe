#include "core/screen/SystemServices.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLocale>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QScreen>
#include <QStyle>

#include <cmath>

namespace forcelab::screen {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kUsualTwipsPerPixel = 15;
constexpr int kIconBits = 0xF0;
constexpr int kButtonBits = 0x0F;

QMessageBox::Icon IconOf(int code)
{
    switch (code & kIconBits) {
    case kStop:
        return QMessageBox::Critical;
    case kExclamation:
        return QMessageBox::Warning;
    case kInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

// Lines end with a carriage return, alone or before a line feed.
QString Lines(const std::string& text)
{
    return QString::fromStdString(text)
        .replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

class SystemMessages : public MessageService {
  public:
    int Show(QWidget* owner, int code, const std::string& text, const std::string& title) override
    {
        QMessageBox box(owner);
        box.setIcon(IconOf(code));
        box.setWindowTitle(QString::fromStdString(title));
        box.setTextFormat(Qt::PlainText);
        box.setText(Lines(text));
        box.setStandardButtons((code & kButtonBits) == 1 ? QMessageBox::Ok | QMessageBox::Cancel
                                                         : QMessageBox::Ok);
        box.setDefaultButton(QMessageBox::Ok);
        return box.exec() == QMessageBox::Ok ? kAnswerOk : kAnswerCancel;
    }
};

class SystemFiles : public FileDialogService {
  public:
    QString OpenFile(QWidget* owner, const QString& title, const QString& folder,
                     const QString& filter) override
    {
        return QFileDialog::getOpenFileName(owner, title, folder, filter);
    }
    QString SaveFile(QWidget* owner, const QString& title, const QString& proposal,
                     const QString& filter) override
    {
        return QFileDialog::getSaveFileName(owner, title, proposal, filter);
    }
};

class SystemPrinters : public PrintService {
  public:
    std::unique_ptr<QPagedPaintDevice> AskForPrinter(QWidget* owner) override
    {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        QPrintDialog dialog(printer.get(), owner);
        if (dialog.exec() != QDialog::Accepted) return nullptr;
        return printer;
    }
};

class SystemScreen : public ScreenService {
  public:
    [[nodiscard]] int WidthTwips() const override
    {
        const QScreen* screen = QGuiApplication::primaryScreen();
        return screen ? static_cast<int>(std::lround(screen->size().width() * TwipsPerPixel())) : 0;
    }
    [[nodiscard]] double TwipsPerPixel() const override
    {
        const QScreen* screen = QGuiApplication::primaryScreen();
        return screen ? kTwipsPerInch / screen->logicalDotsPerInchX() : kUsualTwipsPerPixel;
    }
    [[nodiscard]] QRect WorkArea() const override
    {
        const QScreen* screen = QGuiApplication::primaryScreen();
        return screen ? screen->availableGeometry() : QRect();
    }
    [[nodiscard]] int ScrollBarTwips() const override
    {
        const int pixels = QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        return static_cast<int>(std::lround(pixels * TwipsPerPixel()));
    }
    [[nodiscard]] QStringList Fonts() const override
    {
        QStringList fonts = QFontDatabase::families();
        const QString symbol = QStringLiteral("Symbol");
        if (!fonts.contains(symbol)) fonts.append(symbol);
        return fonts;
    }
    [[nodiscard]] Regional Separators() const override
    {
        return SeparatorsOf(QLocale::system().decimalPoint());
    }
};

class SystemRegistry : public RegistryService {
  public:
    [[nodiscard]] std::optional<std::string> Read(const std::string& /*key*/,
                                                  const std::string& /*name*/) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] bool FileExists(const std::string& path) const override
    {
        return QFileInfo(QString::fromStdString(path)).isFile();
    }
    bool Run(const std::string& path) override
    {
        return QProcess::startDetached(QString::fromStdString(path), {});
    }
};

} // namespace

Regional SeparatorsOf(const QString& decimalPoint)
{
    return decimalPoint == QLatin1String(",") ? Regional{',', '.'} : Regional{'.', ','};
}

std::unique_ptr<MessageService> MakeSystemMessages()
{
    return std::make_unique<SystemMessages>();
}

std::unique_ptr<FileDialogService> MakeSystemFiles()
{
    return std::make_unique<SystemFiles>();
}

std::unique_ptr<PrintService> MakeSystemPrinters()
{
    return std::make_unique<SystemPrinters>();
}

std::unique_ptr<ScreenService> MakeSystemScreen()
{
    return std::make_unique<SystemScreen>();
}

std::unique_ptr<RegistryService> MakeSystemRegistry()
{
    return std::make_unique<SystemRegistry>();
}

} // namespace forcelab::screen
