#pragma once

#include "core/NumericText.h"
#include "core/Refusal.h"

#include <QRect>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>

class QPagedPaintDevice;
class QWidget;

/// What the program asks of the system stands behind these interfaces, so that a test can answer
/// in the system's place.
namespace forcelab::screen {

/// The modal message box.
class MessageService {
  public:
    virtual ~MessageService() = default;
    /// Shows the box and waits; gives kAnswerOk or kAnswerCancel.
    virtual int Show(QWidget* owner, int code, const std::string& text,
                     const std::string& title) = 0;
};

/// Dialogs that ask for a file; an empty answer is Cancel.
class FileDialogService {
  public:
    virtual ~FileDialogService() = default;
    virtual QString OpenFile(QWidget* owner, const QString& title, const QString& folder,
                             const QString& filter) = 0;
    virtual QString SaveFile(QWidget* owner, const QString& title, const QString& proposal,
                             const QString& filter) = 0;
};

/// The print dialog.
class PrintService {
  public:
    virtual ~PrintService() = default;
    /// The printer that was chosen; nothing on Cancel.
    virtual std::unique_ptr<QPagedPaintDevice> AskForPrinter(QWidget* owner) = 0;
};

/// The help viewer.
class HelpService {
  public:
    virtual ~HelpService() = default;
    virtual void Open(const std::string& helpFile, int topic) = 0;
};

/// Facts about the screen and the regional settings.
class ScreenService {
  public:
    virtual ~ScreenService() = default;
    [[nodiscard]] virtual int WidthTwips() const = 0;
    [[nodiscard]] virtual double TwipsPerPixel() const = 0; ///< 15 at 96 dots per inch
    [[nodiscard]] virtual QRect WorkArea() const = 0;       ///< pixels
    [[nodiscard]] virtual int ScrollBarTwips() const = 0;
    [[nodiscard]] virtual QStringList Fonts() const = 0;
    [[nodiscard]] virtual Regional Separators() const = 0;
};

/// The system's registry, where there is one, and the tools that it names.
class RegistryService {
  public:
    virtual ~RegistryService() = default;
    /// A value of a key under the local-machine root.
    [[nodiscard]] virtual std::optional<std::string> Read(const std::string& key,
                                                          const std::string& name) const = 0;
    [[nodiscard]] virtual bool FileExists(const std::string& path) const = 0;
    virtual bool Run(const std::string& path) = 0;
};

/// The services in force. The program starts with the system's own; a test puts doubles here.
struct Services {
    std::unique_ptr<MessageService> Messages;
    std::unique_ptr<FileDialogService> Files;
    std::unique_ptr<PrintService> Printers;
    std::unique_ptr<HelpService> Help;
    std::unique_ptr<ScreenService> Screen;
    std::unique_ptr<RegistryService> Registry;

    static Services& Current();
    /// Fills every member with the system's own service.
    void UseSystem();
};

/// Shows a message box over the active form and gives the answer.
int MsgBox(const std::string& text, int code, const std::string& title);

/// Shows the hourglass for as long as it lives.
class Hourglass {
  public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

} // namespace forcelab::screen
