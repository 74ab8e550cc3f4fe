#include "sections/forms/ShapeChooser.h"

#include "core/screen/Layout.h"
#include "core/screen/PainterPicture.h"
#include "sections/KeptShapes.h"

#include <QImage>
#include <QToolButton>

#include <cstdlib>

namespace forcelab::sections {

using screen::kGap;
using screen::Q;

namespace {

constexpr int kIconSize = 54; // pixels
constexpr int kIconRatio = 2;
constexpr int kButtonWidth = 114;
constexpr int kButtonHeight = 104;
constexpr double kHalfField = 6; // the outlines stand on a field of ten units
constexpr Colour kUserInk = Rgb(96, 112, 130);
constexpr Colour kSteelInk = Rgb(31, 90, 150);

void FillDisc(Picture& pic, double radius, Colour ink)
{
    pic.ForeColor = ink;
    pic.FillColor = ink;
    pic.FillStyle = FillPattern::Solid;
    pic.Circle(0, 0, radius);
}

Colour InkOf(int shape, int element)
{
    const bool hollow = element == 1 && (LayoutOf(shape) == kBox || LayoutOf(shape) == kPipe);
    if (hollow) return IndexedColour(kHollow);
    if (shape == kSpecified) return PlainSwatches(shape)[std::size_t(element)];
    return IsSteel(shape) ? kSteelInk : kUserInk;
}

void DrawShapeIcon(Picture& pic, int shape)
{
    const ShapeInfo& info = InfoOf(shape);
    const bool isRound = LayoutOf(shape) == kCircle || LayoutOf(shape) == kPipe;
    pic.Scale(-kHalfField, kHalfField, kHalfField, -kHalfField);
    for (int element = 0; element <= info.LastElement; ++element) {
        const Corners& corners = info.Outline[std::size_t(element)];
        const Colour ink = InkOf(shape, element);
        if (isRound) {
            FillDisc(pic, corners.Top, ink);
            continue;
        }
        pic.ForeColor = ink;
        pic.FilledBox(corners.Left, corners.Top, corners.Right, corners.Bottom);
    }
}

QIcon IconOf(int shape)
{
    QImage image(kIconSize * kIconRatio, kIconSize * kIconRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(kIconRatio);
    image.fill(Qt::white);
    {
        screen::PainterPicture pic(image);
        DrawShapeIcon(pic, shape);
    }
    return QIcon(QPixmap::fromImage(image));
}

// The caption of a menu item in two lines, broken at the blank nearest to its middle.
QString InTwoLines(QString caption)
{
    caption.remove(QLatin1Char('&'));
    const qsizetype middle = caption.size() / 2;
    qsizetype best = -1;
    for (qsizetype at = 0; at < caption.size(); ++at)
        if (caption[at] == QLatin1Char(' ') &&
            (best < 0 || std::abs(at - middle) < std::abs(best - middle)))
            best = at;
    if (best >= 0) caption[best] = QLatin1Char('\n');
    return caption;
}

} // namespace

ShapeChooser::ShapeChooser(QWidget* parent) : QWidget(parent), rows_(new QVBoxLayout(this))
{
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(kGap);
}

void ShapeChooser::Fill(const ItemOf& itemOf)
{
    AddRow("Rectangular, circular, or by its properties",
           {kRectangle, kBox, kCircle, kPipe, kSpecified}, itemOf);
    AddRow("Flanged",
           {kGeneralFlanged, kGeneralChannel, kIShape, kCShape, kTShape, kLShape, kZShape, kHat},
           itemOf);
    AddRow(
        "Double and stiffened",
        {kDoubleI, kDoubleCBack, kDoubleCToe, kDoubleT, kDoubleL, kStiffenedTDown, kStiffenedTUp},
        itemOf);
    AddRow("Steel shapes from the tables",
           {kSteelW, kSteelC, kSteelWT, kSteelL, kSteel2L, kSteelTS, kSteelPipe}, itemOf);
    rows_->addStretch(1);
}

void ShapeChooser::AddRow(std::string_view heading, std::initializer_list<int> shapes,
                          const ItemOf& itemOf)
{
    rows_->addWidget(new QLabel(Q(heading)));
    auto* line = screen::Across({});
    for (const int shape : shapes) {
        QAction* item = itemOf(shape);
        item->setIcon(IconOf(shape));
        auto* button = new QToolButton;
        button->setObjectName(QStringLiteral("cmdChoose(%1)").arg(shape));
        button->setDefaultAction(item);
        button->setText(InTwoLines(item->text()));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setAutoRaise(true);
        button->setIconSize({kIconSize, kIconSize});
        button->setFixedSize(kButtonWidth, kButtonHeight);
        button->setFocusPolicy(Qt::StrongFocus);
        screen::Describe(*button, item->text().remove(QLatin1Char('&')).toStdString());
        line->addWidget(button);
    }
    line->addStretch(1);
    rows_->addLayout(line);
}

} // namespace forcelab::sections
