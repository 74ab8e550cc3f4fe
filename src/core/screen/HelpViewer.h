#pragma once

#include "core/screen/Services.h"

#include <QMainWindow>
#include <QTextBrowser>

#include <memory>

class QLabel;
class QLineEdit;

namespace forcelab::screen {

/// Shows Markdown pages; their SVG pictures are drawn as sharp as the screen is.
class HelpBrowser : public QTextBrowser {
  public:
    explicit HelpBrowser(QWidget* parent = nullptr);
    QVariant loadResource(int type, const QUrl& name) override;

  protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
};

/// The window of the help pages: contents, back, forward, and a search in the page.
class HelpViewer : public QMainWindow {
  public:
    HelpViewer();

    /// Opens a topic. One that has no page opens the contents page with a line that says so.
    void OpenTopic(int topic);
    /// True where the topic has a page.
    [[nodiscard]] static bool HasPage(int topic);
    /// Marks the next place of the text that is searched for, from the top again at the end.
    void FindNext();
    void FindPrevious();

  private:
    void BuildToolBar();
    void BuildFind(class QToolBar& bar);
    void Find(QTextDocument::FindFlags direction);

    HelpBrowser* browser_;
    QLabel* noPage_;
    QLineEdit* find_ = nullptr;
};

/// Opens topics in the program's own viewer, which comes into being with the first one.
std::unique_ptr<HelpService> MakeSystemHelp();

} // namespace forcelab::screen
