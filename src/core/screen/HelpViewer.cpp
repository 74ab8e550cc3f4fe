#include "core/screen/HelpViewer.h"

#include "core/screen/Controls.h"
#include "core/screen/Style.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextTable>
#include <QToolBar>
#include <QVBoxLayout>

namespace forcelab::screen {

namespace {

constexpr int kContents = 1;
constexpr double kLinePercent = 128;
constexpr double kParagraphGap = 9;
constexpr double kHeadingGap = 18;
constexpr double kCodeIndent = 24;
constexpr double kPageMargin = 24;

QString PageName(int topic)
{
    return QStringLiteral(":/help/%1.md").arg(topic);
}

QImage RenderSvg(const QString& file, double pixelRatio)
{
    QSvgRenderer renderer(file);
    QImage image(renderer.defaultSize() * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    image.setDevicePixelRatio(pixelRatio);
    return image;
}

// The name by which a link of the page finds a heading: "#the-controls".
QString AnchorOf(const QString& heading)
{
    return heading.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

bool IsCode(const QTextBlock& block)
{
    return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence);
}

bool IsPicture(const QTextBlock& block)
{
    return block.text() == QString(QChar::ObjectReplacementCharacter);
}

// Lines of a list and of code stand close to each other.
double GapBelow(const QTextBlock& block)
{
    const QTextBlock next = block.next();
    if (IsCode(block) && next.isValid() && IsCode(next)) return 0;
    if (block.textList() && next.isValid() && next.textList()) return kParagraphGap / 3;
    return kParagraphGap;
}

void PolishBlock(const QTextBlock& block)
{
    QTextBlockFormat format = block.blockFormat();
    const int level = format.headingLevel();
    if (IsCode(block)) format.setLeftMargin(kCodeIndent);
    if (!IsCode(block) && !IsPicture(block))
        format.setLineHeight(kLinePercent, QTextBlockFormat::ProportionalHeight);
    format.setTopMargin(level > 0 ? kHeadingGap : 0);
    format.setBottomMargin(GapBelow(block));
    QTextCursor cursor(block);
    cursor.setBlockFormat(format);
    if (level == 0) return;
    cursor.select(QTextCursor::BlockUnderCursor);
    QTextCharFormat heading;
    heading.setForeground(QColor(kAccentTone));
    heading.setAnchor(true);
    heading.setAnchorNames({AnchorOf(block.text())});
    cursor.mergeCharFormat(heading);
}

void PolishTable(QTextTable& table)
{
    QTextTableFormat format = table.format();
    format.setCellPadding(5);
    format.setCellSpacing(0);
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(QColor(kLineTone));
    format.setBottomMargin(kHeadingGap);
    table.setFormat(format);
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat head = cell.format();
        head.setBackground(QColor(kWindowTone));
        cell.setFormat(head);
    }
}

bool IsInTable(const QTextBlock& block)
{
    return QTextCursor(block).currentTable() != nullptr;
}

QString PageAsHtml(const QString& name, const QFont& font)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QTextDocument page;
    page.setDefaultFont(font);
    page.setMarkdown(QString::fromUtf8(file.readAll()));
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        if (!IsInTable(block)) PolishBlock(block);
    }
    for (QTextFrame* frame : page.rootFrame()->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(frame)) PolishTable(*table);
    }
    return page.toHtml();
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("txtHelp"));
    setAccessibleName(QStringLiteral("Help page"));
    setOpenExternalLinks(true);
    setFrameShape(QFrame::NoFrame);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    const QString file = QLatin1Char(':') + source().resolved(name).path();
    if (file.endsWith(QLatin1String(".svg"))) return RenderSvg(file, devicePixelRatioF());
    if (file.endsWith(QLatin1String(".md"))) return PageAsHtml(file, font());
    return QTextBrowser::loadResource(type, name);
}

// The browser's own way with Markdown has no tones and no names for headings.
void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType /*type*/)
{
    QTextBrowser::doSetSource(name, QTextDocument::HtmlResource);
    document()->setDocumentMargin(kPageMargin);
}

HelpViewer::HelpViewer() : browser_(new HelpBrowser), noPage_(new QLabel)
{
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(QStringLiteral("Forcelab Help"));
    noPage_->setObjectName(QStringLiteral("lblNoPage"));
    noPage_->setContentsMargins(24, 10, 24, 10);
    noPage_->setAutoFillBackground(true);
    noPage_->setBackgroundRole(QPalette::ToolTipBase);
    noPage_->hide();
    auto* body = new QWidget;
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(noPage_);
    layout->addWidget(browser_, 1);
    setCentralWidget(body);
    BuildToolBar();
    connect(browser_, &QTextBrowser::sourceChanged, noPage_, &QWidget::hide);
    resize(860, 760);
}

void HelpViewer::BuildToolBar()
{
    auto* bar = addToolBar(QStringLiteral("Help"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    const auto add = [&](const char* name, std::string_view caption, const QKeySequence& key) {
        QAction* action = bar->addAction(Q(caption));
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        action->setToolTip(
            QStringLiteral("%1 (%2)").arg(Q(caption), key.toString(QKeySequence::NativeText)));
        return action;
    };
    QAction* contents = add("cmdContents", "Contents", QKeySequence(Qt::ALT | Qt::Key_Home));
    QAction* back = add("cmdBack", "Back", QKeySequence(Qt::ALT | Qt::Key_Left));
    QAction* forward = add("cmdForward", "Forward", QKeySequence(Qt::ALT | Qt::Key_Right));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QAction::triggered, this, [this] { OpenTopic(kContents); });
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    BuildFind(*bar);
}

void HelpViewer::BuildFind(QToolBar& bar)
{
    auto* gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(gap);
    find_ = new QLineEdit;
    find_->setObjectName(QStringLiteral("txtFind"));
    find_->setPlaceholderText(QStringLiteral("Find in this page"));
    find_->setClearButtonEnabled(true);
    find_->setMaximumWidth(240);
    Describe(*find_, "Find in this page");
    bar.addWidget(find_);
    connect(find_, &QLineEdit::returnPressed, this, &HelpViewer::FindNext);
    const auto key = [this](const QKeySequence& keys, auto handler) {
        auto* action = new QAction(this);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, handler);
        addAction(action);
    };
    key(QKeySequence::Find, [this] {
        find_->setFocus();
        find_->selectAll();
    });
    key(QKeySequence(Qt::Key_F3), [this] { FindNext(); });
    key(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { FindPrevious(); });
    key(QKeySequence(Qt::Key_Escape), [this] { close(); });
}

bool HelpViewer::HasPage(int topic)
{
    return QFile::exists(PageName(topic));
}

void HelpViewer::OpenTopic(int topic)
{
    const bool known = HasPage(topic);
    const QString page = PageName(known ? topic : kContents);
    browser_->setSource(QUrl(QStringLiteral("qrc") + page), QTextDocument::HtmlResource);
    noPage_->setText(QStringLiteral("Topic %1 has no page yet. Here are the contents.").arg(topic));
    noPage_->setVisible(!known);
}

void HelpViewer::FindNext()
{
    Find({});
}

void HelpViewer::FindPrevious()
{
    Find(QTextDocument::FindBackward);
}

void HelpViewer::Find(QTextDocument::FindFlags direction)
{
    if (find_->text().isEmpty() || browser_->find(find_->text(), direction)) return;
    const QTextCursor before = browser_->textCursor();
    const bool backward = direction.testFlag(QTextDocument::FindBackward);
    browser_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (!browser_->find(find_->text(), direction)) browser_->setTextCursor(before);
}

namespace {

class SystemHelp : public HelpService {
  public:
    SystemHelp() = default;
    ~SystemHelp() override
    {
        // The services may outlive the application, which then has taken its windows down.
        if (QCoreApplication::instance()) delete viewer_;
    }
    SystemHelp(const SystemHelp&) = delete;
    SystemHelp& operator=(const SystemHelp&) = delete;

    void Open(const std::string& /*helpFile*/, int topic) override
    {
        if (!viewer_) viewer_ = new HelpViewer;
        viewer_->OpenTopic(topic);
        viewer_->setWindowState(viewer_->windowState() & ~Qt::WindowMinimized);
        viewer_->show();
        viewer_->raise();
        viewer_->activateWindow();
    }

  private:
    QPointer<HelpViewer> viewer_;
};

} // namespace

std::unique_ptr<HelpService> MakeSystemHelp()
{
    return std::make_unique<SystemHelp>();
}

} // namespace forcelab::screen
