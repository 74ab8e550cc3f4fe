#pragma once

#include "core/screen/Services.h"

#include <deque>
#include <map>
#include <string>
#include <vector>

namespace forcelab::test {

/// A message box that a test expects, and the answer that it gives.
struct MsgBox {
    int Code = kStop;
    std::string Title;
    std::string Text;
    int Answer = kAnswerOk;
};

/// Answers with the boxes that the test loaded; a box that was not expected fails the test.
class ScriptedMessages : public screen::MessageService {
  public:
    int Show(QWidget* owner, int code, const std::string& text, const std::string& title) override;
    std::deque<MsgBox> Expected;
    std::vector<MsgBox> Shown; ///< all boxes that came, in order
    bool AcceptAny = false;    ///< for monkeys: every box is answered with OK
};

/// Gives the file names that the test loaded, then Cancel.
class ScriptedFiles : public screen::FileDialogService {
  public:
    QString OpenFile(QWidget* owner, const QString& title, const QString& folder,
                     const QString& filter) override;
    QString SaveFile(QWidget* owner, const QString& title, const QString& proposal,
                     const QString& filter) override;
    std::deque<QString> Answers;
    int Asked = 0;

  private:
    QString Next();
};

/// Prints into a PDF file that the test names; Cancel where it names none.
class ScriptedPrinters : public screen::PrintService {
  public:
    std::unique_ptr<QPagedPaintDevice> AskForPrinter(QWidget* owner) override;
    QString PdfFile;
    int Asked = 0;
};

/// Notes which topics were opened.
class RecordedHelp : public screen::HelpService {
  public:
    void Open(const std::string& helpFile, int topic) override;
    std::vector<std::pair<std::string, int>> Opened;
};

/// A screen as the test describes it.
class DescribedScreen : public screen::ScreenService {
  public:
    [[nodiscard]] int WidthTwips() const override { return Width; }
    [[nodiscard]] double TwipsPerPixel() const override { return Twips; }
    [[nodiscard]] QRect WorkArea() const override { return Area; }
    [[nodiscard]] int ScrollBarTwips() const override { return ScrollBar; }
    [[nodiscard]] QStringList Fonts() const override { return FontNames; }
    [[nodiscard]] Regional Separators() const override { return Signs; }

    int Width = 1280 * 15;
    double Twips = 15;
    QRect Area{0, 0, 1280, 900};
    int ScrollBar = 16 * 15;
    QStringList FontNames{"Arial", "MS Sans Serif", "Symbol"};
    Regional Signs = Regional::Current;
};

/// A registry with the values that the test put in.
class DescribedRegistry : public screen::RegistryService {
  public:
    [[nodiscard]] std::optional<std::string> Read(const std::string& key,
                                                  const std::string& name) const override;
    [[nodiscard]] bool FileExists(const std::string& path) const override;
    bool Run(const std::string& path) override;

    std::map<std::pair<std::string, std::string>, std::string> Values;
    std::vector<std::string> Files;
    std::vector<std::string> Started;
};

} // namespace forcelab::test
