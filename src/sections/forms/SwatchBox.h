#pragma once

#include "core/screen/PictureBox.h"

#include <functional>
#include <string>

namespace forcelab::sections {

/// The swatch of an element: its colour and its caption. A composite section takes its materials
/// from it: Material A by the left mouse button or the key A, Material B by the right button or
/// the key B; the space bar changes from one to the other.
class SwatchBox : public screen::PictureBox {
  public:
    explicit SwatchBox(QWidget* parent = nullptr);

    void SetCaption(const std::string& caption);
    void SetColours(Colour ground, Colour text);
    void SetTextColour(Colour text);
    [[nodiscard]] Colour Ground() const { return ground_; }
    [[nodiscard]] Colour TextColour() const { return text_; }

    std::function<void(int button)> OnAssign; ///< kLeftButton or kRightButton

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void PaintSwatch(Picture& pic) const;
    void DescribeState();

    std::string caption_;
    Colour ground_;
    Colour text_;
};

} // namespace forcelab::sections
