#include "core/screen/PictureBox.h"

#include "core/ArithmeticFault.h"
#include "core/screen/GuardedCall.h"
#include "core/screen/PainterPicture.h"
#include "core/screen/PictureExport.h"
#include "core/screen/Services.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace forcelab::screen {

namespace {

constexpr int kSmallestSide = 160;
constexpr double kClipboardRatio = 2;

// The endings that a picture can be saved with, as the menu and the file dialog name them.
struct FileKind {
    const char* Caption;
    const char* Ending;
    const char* Filter;
};
constexpr FileKind kFileKinds[] = {
    {"Save as &SVG...", "svg", "SVG pictures (*.svg)"},
    {"Save as P&DF...", "pdf", "PDF documents (*.pdf)"},
    {"Save as P&NG...", "png", "PNG pictures (*.png)"},
};

int CodeOf(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? kLeftButton : 0) |
           (buttons.testFlag(Qt::RightButton) ? kRightButton : 0) |
           (buttons.testFlag(Qt::MiddleButton) ? kMiddleButton : 0);
}

int CodeOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? kShift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? kControl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? kAlt : 0);
}

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object)
{
    auto* box = dynamic_cast<PictureBox*>(object);
    return box ? new QAccessibleWidget(box, QAccessible::Graphic) : nullptr;
}

void CopyScale(Picture& to, const Picture& from)
{
    to.Scale(from.ScaleLeft(), from.ScaleTop(), from.ScaleLeft() + from.ScaleWidth(),
             from.ScaleTop() + from.ScaleHeight());
}

// What an image shows of a widget: the whole of it, or its largest square in the middle.
QRectF SheetArea(const QWidget& widget, bool square)
{
    const QRect whole = widget.rect();
    if (!square) return whole;
    const int side = std::min(whole.width(), whole.height());
    return QRect((whole.width() - side) / 2, (whole.height() - side) / 2, side, side);
}

} // namespace

PictureBox::PictureBox(QWidget* parent)
    : QWidget(parent), image_(kSmallestSide, kSmallestSide, QImage::Format_RGB32),
      sheet_(std::make_unique<PainterPicture>(image_))
{
    static const bool accessible = (QAccessible::installFactory(MakeAccessible), true);
    Q_UNUSED(accessible);
    image_.fill(Qt::white);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PictureBox::~PictureBox() = default;

void PictureBox::Refresh()
{
    stale_ = true;
    update();
}

void PictureBox::FitBuffer()
{
    const double ratio = devicePixelRatioF();
    const QSize wanted =
        (SheetArea(*this, square_).size() * ratio).toSize().expandedTo(QSize(1, 1));
    QImage fresh(wanted, QImage::Format_RGB32);
    fresh.setDevicePixelRatio(ratio);
    fresh.fill(Qt::white);
    image_ = std::move(fresh);
}

// The buffer and the sheet are put back where the handler fails. A handler that shows a message
// lets events run, and with them another call of this function, which then does nothing.
void PictureBox::Paint()
{
    if (std::exchange(painting_, true)) return;
    stale_ = false;
    QImage lastImage = image_;
    FitBuffer();
    std::unique_ptr<PainterPicture> lastSheet = std::move(sheet_);
    sheet_ = std::make_unique<PainterPicture>(image_);
    CopyScale(*sheet_, *lastSheet);
    try {
        if (OnPaint) OnPaint(*sheet_);
        sheet_->ImageChanged();
        KeepTexts();
    } catch (const ArithmeticFault&) {
        sheet_ = std::move(lastSheet);
        image_ = std::move(lastImage);
    }
    painting_ = false;
}

void PictureBox::PaintOver(QPainter& painter)
{
    PainterPicture over(painter, SheetArea(*this, square_));
    CopyScale(over, *sheet_);
    try {
        OnPaintOver(over);
    } catch (const ArithmeticFault&) {
        return; // what was painted under it stays
    }
}

void PictureBox::PaintNow()
{
    Paint();
    update();
}

void PictureBox::KeepTexts()
{
    std::string texts;
    for (const std::string& line : sheet_->Texts()) texts += (texts.empty() ? "" : "\n") + line;
    if (texts == texts_) return;
    texts_ = std::move(texts);
    setAccessibleDescription(QString::fromStdString(texts_));
}

const Picture& PictureBox::Sheet() const
{
    return *sheet_;
}

std::string PictureBox::Texts() const
{
    return texts_;
}

void PictureBox::SetSquare(bool square)
{
    square_ = square;
    Refresh();
}

void PictureBox::SetPreferredSize(int width, int height)
{
    preferred_ = QSize(width, height);
    updateGeometry();
}

QPoint PictureBox::PixelOf(double x, double y) const
{
    const QRectF area = SheetArea(*this, square_);
    const PicturePoint at = sheet_->ToPixels({x, y});
    return {
        static_cast<int>(std::floor(area.left() + at.X * area.width() / sheet_->WidthPixels())),
        static_cast<int>(std::floor(area.top() + at.Y * area.height() / sheet_->HeightPixels()))};
}

QSize PictureBox::sizeHint() const
{
    return preferred_;
}

QSize PictureBox::minimumSizeHint() const
{
    return {kSmallestSide, kSmallestSide};
}

void PictureBox::paintEvent(QPaintEvent* /*event*/)
{
    if (stale_ || image_.devicePixelRatio() != devicePixelRatioF()) Paint();
    QPainter painter(this);
    if (square_) painter.fillRect(rect(), palette().base());
    painter.drawImage(SheetArea(*this, square_), image_);
    if (OnPaintOver) PaintOver(painter);
    if (!hasFocus()) return;
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PictureBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Refresh();
}

void PictureBox::Deliver(const MouseHandler& handler, QMouseEvent* event, int button)
{
    const bool menu = event->button() == Qt::RightButton &&
                      (!OwnsRightButton || event->modifiers().testFlag(Qt::ControlModifier));
    if (!handler || menu) return;
    const QRectF area = SheetArea(*this, square_);
    const QPointF pixel = event->position() - area.topLeft();
    const PicturePoint at =
        sheet_->FromPixels({pixel.x() * sheet_->WidthPixels() / area.width(),
                            pixel.y() * sheet_->HeightPixels() / area.height()});
    const MouseAction action{button, CodeOf(event->modifiers()), at.X, at.Y};
    GuardedCall(*this, [&, kept = handler] { kept(action); });
}

void PictureBox::mousePressEvent(QMouseEvent* event)
{
    Deliver(OnMouseDown, event, CodeOf(event->button()));
}

void PictureBox::mouseMoveEvent(QMouseEvent* event)
{
    Deliver(OnMouseMove, event, CodeOf(event->buttons()));
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    Deliver(OnMouseUp, event, CodeOf(event->button()));
}

void PictureBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    Deliver(OnDblClick ? OnDblClick : OnMouseDown, event, CodeOf(event->button()));
}

void PictureBox::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (byMouse && OwnsRightButton && !event->modifiers().testFlag(Qt::ControlModifier)) return;
    ShowPictureMenu(byMouse ? event->globalPos() : mapToGlobal(rect().center()));
}

// Not every platform turns these keys into a request for the context menu.
void PictureBox::keyPressEvent(QKeyEvent* event)
{
    const bool shiftF10 = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    if (event->key() != Qt::Key_Menu && !shiftF10) return QWidget::keyPressEvent(event);
    ShowPictureMenu(mapToGlobal(rect().center()));
}

void PictureBox::ShowPictureMenu(const QPoint& at)
{
    const auto* open = findChild<QMenu*>();
    if (open && open->isVisible()) return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("&Copy picture")), &QAction::triggered, this,
            [this] { CopyToClipboard(); });
    for (const FileKind& kind : kFileKinds)
        connect(menu->addAction(QLatin1String(kind.Caption)), &QAction::triggered, this,
                [this, ending = QString::fromLatin1(kind.Ending)] { AskAndSave(ending); });
    menu->popup(at);
}

PictureExport PictureBox::Export() const
{
    const auto paint = [this](Picture& pic) {
        CopyScale(pic, *sheet_);
        if (OnPaint) OnPaint(pic);
    };
    return {paint, SheetArea(*this, square_).size(), accessibleName()};
}

void PictureBox::CopyToClipboard()
{
    auto content = std::make_unique<QMimeData>();
    try {
        content->setImageData(Export().ToImage(kClipboardRatio));
        content->setData(QStringLiteral("image/svg+xml"), Export().ToSvg());
    } catch (const ArithmeticFault&) {
        content->setImageData(image_);
    }
    QApplication::clipboard()->setMimeData(content.release());
}

bool PictureBox::SaveTo(const QString& path)
{
    try {
        return Export().Save(path);
    } catch (const ArithmeticFault&) {
        return false;
    }
}

void PictureBox::AskAndSave(const QString& ending)
{
    const auto kind =
        std::find_if(std::begin(kFileKinds), std::end(kFileKinds),
                     [&](const FileKind& k) { return ending == QLatin1String(k.Ending); });
    const QString name = accessibleName().isEmpty() ? QStringLiteral("picture") : accessibleName();
    QString path = Services::Current().Files->SaveFile(window(), QStringLiteral("Save Picture"),
                                                       name + QLatin1Char('.') + ending,
                                                       QLatin1String(kind->Filter));
    if (path.isEmpty()) return;
    if (!path.endsWith(QLatin1Char('.') + ending, Qt::CaseInsensitive))
        path += QLatin1Char('.') + ending;
    if (!SaveTo(path))
        MsgBox("The picture could not be saved.\r\n" + path.toStdString(), kExclamation,
               "Forcelab");
}

} // namespace forcelab::screen
