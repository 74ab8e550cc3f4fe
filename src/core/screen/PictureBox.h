#pragma once

#include "core/Picture.h"

#include <QImage>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

class QPainter;

namespace forcelab::screen {

class Form;
class PainterPicture;
struct PictureExport;

/// Codes of the mouse buttons and of the keys held with them.
enum MouseButton : int { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };
enum ShiftState : int { kShift = 1, kControl = 2, kAlt = 4 };

struct MouseAction {
    int Button = 0; ///< for a move: the sum of the buttons held
    int Shift = 0;
    double X = 0; ///< in the picture's scale
    double Y = 0;
};

/// A picture on a form. It repaints by calling its form's paint handler into a buffer, gives mouse
/// positions in the picture's scale, and keeps the texts of its last painting as its accessible
/// description, so that a screen reader, and a test, can read a diagram.
///
/// A paint handler that ends in an ArithmeticFault leaves the picture as it was. Every picture has
/// a context menu: copy, and save as SVG, PDF or PNG.
class PictureBox : public QWidget {
  public:
    explicit PictureBox(QWidget* parent = nullptr);
    ~PictureBox() override;

    using Painter = std::function<void(Picture&)>;
    using MouseHandler = std::function<void(const MouseAction&)>;

    Painter OnPaint;
    /// Paints what changes all the time, such as a rubber band, over the last painting of OnPaint.
    /// It is seen on the window alone: files, the clipboard and Image go without.
    Painter OnPaintOver;
    MouseHandler OnMouseDown;
    MouseHandler OnMouseMove;
    MouseHandler OnMouseUp;
    MouseHandler OnDblClick;
    /// The right button belongs to OnMouseUp; the context menu then comes by Ctrl+right button and
    /// by the menu key.
    bool OwnsRightButton = false;

    /// Paints anew before the next showing; a hidden picture only when it is shown.
    void Refresh();
    /// Paints only what OnPaintOver does anew.
    void RefreshOver() { update(); }
    /// Paints at once, whether or not the picture is visible.
    void PaintNow();
    /// The sheet of the last painting, with its scale.
    [[nodiscard]] const Picture& Sheet() const;
    /// The text lines of the last painting.
    [[nodiscard]] std::string Texts() const;
    [[nodiscard]] const QImage& Image() const { return image_; }
    /// Keeps the picture as wide as high.
    void SetSquare(bool square);
    void SetPreferredSize(int width, int height);

    /// The widget's pixel at a place of the picture's scale, for tests and tips.
    [[nodiscard]] QPoint PixelOf(double x, double y) const;

    void CopyToClipboard();
    /// Draws the picture into a file, by its ending: svg, pdf or png. False where it cannot be
    /// written.
    bool SaveTo(const QString& path);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Paint();
    void PaintOver(QPainter& painter);
    void FitBuffer();
    void KeepTexts();
    [[nodiscard]] PictureExport Export() const;
    void Deliver(const MouseHandler& handler, QMouseEvent* event, int button);
    void ShowPictureMenu(const QPoint& at);
    void AskAndSave(const QString& ending);

    QImage image_;
    std::unique_ptr<PainterPicture> sheet_;
    bool stale_ = true;
    bool painting_ = false;
    bool square_ = false;
    QSize preferred_{320, 320};
    std::string texts_;
};

} // namespace forcelab::screen
