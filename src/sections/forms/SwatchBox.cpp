#include "sections/forms/SwatchBox.h"

#include "core/DrawingHelpers.h"
#include "core/screen/Controls.h"
#include "core/screen/GuardedCall.h"
#include "sections/KeptShapes.h"

#include <QKeyEvent>

namespace forcelab::sections {

namespace {

constexpr int kSwatchWidth = 78; // pixels
constexpr int kSwatchHeight = 28;
constexpr double kCaptionSize = 9; // points

std::string MaterialOf(Colour ground)
{
    if (ground == IndexedColour(kMaterialA)) return "Material A";
    if (ground == IndexedColour(kMaterialB)) return "Material B";
    return ground == IndexedColour(kHollow) ? "hollow" : "no material assigned";
}

} // namespace

SwatchBox::SwatchBox(QWidget* parent) : PictureBox(parent)
{
    setFixedSize(kSwatchWidth, kSwatchHeight);
    OwnsRightButton = true;
    SetColours(IndexedColour(kUnassigned), IndexedColour(0));
    OnPaint = [this](Picture& pic) { PaintSwatch(pic); };
    OnMouseUp = [this](const screen::MouseAction& mouse) {
        if (OnAssign) OnAssign(mouse.Button);
    };
}

void SwatchBox::SetCaption(const std::string& caption)
{
    caption_ = caption;
    DescribeState();
    Refresh();
}

void SwatchBox::SetColours(Colour ground, Colour text)
{
    ground_ = ground;
    text_ = text;
    DescribeState();
    Refresh();
}

void SwatchBox::SetTextColour(Colour text)
{
    SetColours(ground_, text);
}

void SwatchBox::DescribeState()
{
    Describe(*this, caption_ + ": " + MaterialOf(ground_));
}

void SwatchBox::keyPressEvent(QKeyEvent* event)
{
    const bool other = event->key() == Qt::Key_Space && ground_ == IndexedColour(kMaterialA);
    const bool toA = event->key() == Qt::Key_A || (event->key() == Qt::Key_Space && !other);
    const bool toB = event->key() == Qt::Key_B || other;
    if (!OnAssign || !(toA || toB) || event->modifiers() != Qt::NoModifier)
        return PictureBox::keyPressEvent(event);
    const int button = toA ? screen::kLeftButton : screen::kRightButton;
    GuardedCall(*this, [&] { OnAssign(button); });
}

void SwatchBox::PaintSwatch(Picture& pic) const
{
    pic.ScaleToPixels();
    pic.ForeColor = ground_;
    pic.FilledBox(0, 0, pic.WidthPixels(), pic.HeightPixels());
    pic.FontSize = kCaptionSize;
    pic.ForeColor = text_;
    PrintText(pic, pic.WidthPixels() / 2, pic.HeightPixels() / 2, caption_, HAlign::Centre,
              VAlign::Middle);
    if (ground_ != IndexedColour(kHollow)) return;
    pic.ForeColor = IndexedColour(kUnassigned);
    pic.Box(0, 0, pic.WidthPixels() - 1, pic.HeightPixels() - 1);
}

} // namespace forcelab::sections
