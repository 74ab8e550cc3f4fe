#pragma once

#include <QPixmap>
#include <QWidget>

namespace forcelab {

/// The title of the program: its name, what it is for, and a beam with its moment diagram.
class TitlePicture : public QWidget {
  public:
    explicit TitlePicture(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override { return {640, 150}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double DrawTexts(QPainter& painter) const;
    void DrawBeam(QPainter& painter, double left); ///< in the room right of `left`

    QPixmap beam_;
};

} // namespace forcelab
