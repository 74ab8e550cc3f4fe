#pragma once

#include <QAbstractButton>
#include <QPixmap>

#include <functional>
#include <string_view>

namespace forcelab {

/// A picture button of the main menu. The mouse coming up tells which of its buttons was used;
/// Space and Enter count as the left one, F1 as the right one.
class BigButton : public QAbstractButton {
  public:
    explicit BigButton(QWidget* parent = nullptr);

    /// Caption and picture, a file of the pictures' resource without its ending. A compact button
    /// has its picture at the left of the caption.
    void Setup(std::string_view caption, std::string_view picture, bool compact);

    std::function<void(int button)> OnMouseUp; ///< 1 the left button, 2 the right one

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void DrawTile(QPainter& painter) const;
    void DrawContents(QPainter& painter);
    const QPixmap& Picture(int size);
    void Tell(int button) const;

    QString picture_;
    QPixmap rendered_;
    bool compact_ = false;
};

} // namespace forcelab
