#include "core/screen/PainterPicture.h"

#include "core/screen/FloodRegion.h"
#include "core/screen/PictureFonts.h"
#include "core/screen/PictureOperations.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <map>

namespace forcelab::screen {

namespace {

using Operation = std::function<void(const Canvas&)>;

// A line that may bound a region to be flooded.
struct Outline {
    QRgb Ink;
    Operation Draw;
};

// The raster behind a page or a file has so many pixels a logical one; fewer on a large sheet.
constexpr double kRasterRatio = 4;
constexpr double kLargestRaster = 2.4e7;
// Lines are cut off so many pixels outside the sheet: beyond any line width and dash.
constexpr double kSurround = 2000;
constexpr double kFarthest = 1e15;
// How many pixels of the raster a filled region on a page reaches under its boundary, so that no
// gap shows; the boundary is then drawn again.
constexpr double kFloodOverlap = 2;

// The program's own pictures, each read once.
QSvgRenderer* RendererOf(const std::string& name)
{
    static std::map<std::string, std::unique_ptr<QSvgRenderer>> renderers;
    static const bool registered = (qAddPostRoutine([] { renderers.clear(); }), true);
    auto& renderer = renderers[name];
    if (!renderer && registered) {
        const QString path = QStringLiteral(":/pictures/%1.svg").arg(QString::fromStdString(name));
        renderer = std::make_unique<QSvgRenderer>();
        if (QFile::exists(path)) renderer->load(path);
    }
    return renderer.get();
}

FontWish FontOf(const Picture& pic)
{
    return {pic.FontName, pic.FontSize, pic.FontBold, pic.FontItalic, pic.Smooth};
}

QString FromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Device pixel of a logical place; far outside where it is outside.
QPoint DevicePixel(PicturePoint at, double ratio)
{
    constexpr double limit = 1e6;
    return {static_cast<int>(std::floor(std::clamp(at.X * ratio, -limit, limit))),
            static_cast<int>(std::floor(std::clamp(at.Y * ratio, -limit, limit)))};
}

} // namespace

// An image is drawn on by a painter that stays open. For a painter of others, each operation sets
// up that painter and puts it back; it is also kept, until the first question about pixels makes
// the raster on which all of them are then drawn.
struct PainterPicture::Implementation {
    QImage* Image = nullptr;
    QPainter Own;
    QPainter* Outer = nullptr;
    QRectF OuterArea;
    mutable QImage Raster;
    mutable QPainter OnRaster;
    mutable std::vector<Operation> Kept;
    std::vector<Outline> Outlines; // of a painter of others, since the last clearing

    template <class Op>
    void Draw(bool smooth, const Op& operation)
    {
        if (Image) {
            if (OpenOwn()) operation(Canvas{Own, Image->devicePixelRatio(), true, smooth});
            return;
        }
        DrawOuter([&](const Canvas& canvas) { operation(canvas); });
        if (OnRaster.isActive())
            operation(RasterCanvas());
        else
            Kept.push_back(operation);
    }
    template <class Op>
    void DrawOuter(const Op& operation)
    {
        if (!Outer->isActive()) return;
        Outer->save();
        Outer->setClipRect(OuterArea, Qt::IntersectClip);
        Outer->translate(OuterArea.topLeft());
        operation(Canvas{*Outer, 1, false, true});
        Outer->restore();
    }
    [[nodiscard]] bool OpenOwn()
    {
        return Own.isActive() || (!Image->isNull() && Own.begin(Image));
    }
    [[nodiscard]] Canvas RasterCanvas() const
    {
        return {OnRaster, Raster.devicePixelRatio(), false, false};
    }
    void OpenRaster() const
    {
        if (OnRaster.isActive()) return;
        const double area = std::max(1.0, OuterArea.width() * OuterArea.height());
        const double ratio = std::clamp(std::sqrt(kLargestRaster / area), 0.1, kRasterRatio);
        const QSizeF size = (OuterArea.size() * ratio).expandedTo(QSizeF(1, 1));
        Raster = QImage(size.toSize(), QImage::Format_RGB32);
        Raster.setDevicePixelRatio(ratio);
        Raster.fill(Qt::white);
        OnRaster.begin(&Raster);
        for (const Operation& operation : Kept) operation(RasterCanvas());
        Kept.clear();
    }
    // The pixels that FloodFill and Point read.
    [[nodiscard]] const QImage& Pixels() const
    {
        if (Image) return *Image;
        OpenRaster();
        return Raster;
    }
    static void FillRuns(const Canvas& canvas, const std::vector<PixelRun>& runs,
                         const QBrush& brush)
    {
        canvas.On.save();
        canvas.On.setRenderHint(QPainter::Antialiasing, false);
        canvas.On.scale(1 / canvas.Ratio, 1 / canvas.Ratio);
        for (const PixelRun& run : runs)
            canvas.On.fillRect(run.Left, run.Y, run.Right - run.Left, 1, brush);
        canvas.On.restore();
    }
    void FillOutline(const std::vector<PixelRun>& runs, const QBrush& brush)
    {
        const double ratio = Raster.devicePixelRatio();
        const QPainterPath path = QTransform::fromScale(1 / ratio, 1 / ratio).map(OutlineOf(runs));
        const bool solid = brush.style() == Qt::SolidPattern;
        const QPen rim(brush.color(), 2 * kFloodOverlap / ratio, Qt::SolidLine, Qt::FlatCap,
                       Qt::RoundJoin);
        DrawOuter([&](const Canvas& canvas) {
            canvas.On.setRenderHint(QPainter::Antialiasing, true);
            canvas.On.setPen(solid ? rim : QPen(Qt::NoPen));
            canvas.On.setBrush(brush);
            canvas.On.drawPath(path);
        });
    }
    void RedrawOutlines(QRgb boundary)
    {
        for (const Outline& outline : Outlines)
            if (outline.Ink == boundary) DrawOuter(outline.Draw);
    }
    // A line, with an interior or without.
    template <class Op>
    void DrawLine(bool smooth, const Op& operation)
    {
        Draw(smooth, operation);
        if (Image) return;
        Op bare = operation;
        bare.Brush = QBrush();
        Outlines.push_back({operation.Pen.color().rgb(), bare});
    }
    void Flood(const std::vector<PixelRun>& runs, const QBrush& brush, QRgb boundary)
    {
        if (runs.empty() || brush.style() == Qt::NoBrush) return;
        if (Image) {
            if (OpenOwn())
                FillRuns(Canvas{Own, Image->devicePixelRatio(), true, false}, runs, brush);
            return;
        }
        FillRuns(RasterCanvas(), runs, brush);
        FillOutline(runs, brush);
        RedrawOutlines(boundary);
    }
};

PainterPicture::PainterPicture(QImage& image) : it_(std::make_unique<Implementation>())
{
    it_->Image = &image;
    ImageChanged();
}

PainterPicture::PainterPicture(QPainter& painter, const QRectF& area)
    : area_(QPointF(), area.size()), it_(std::make_unique<Implementation>())
{
    it_->Outer = &painter;
    it_->OuterArea = area;
}

PainterPicture::~PainterPicture() = default;

void PainterPicture::ImageChanged()
{
    if (!it_->Image) return;
    if (it_->Own.isActive()) it_->Own.end();
    area_ = QRectF(QPointF(), QSizeF(it_->Image->size()) / it_->Image->devicePixelRatio());
}

namespace {

QPointF PixelPoint(const Picture& pic, PicturePoint at)
{
    const PicturePoint pixels = pic.ToPixels(at);
    return {std::clamp(pixels.X, -kFarthest, kFarthest),
            std::clamp(pixels.Y, -kFarthest, kFarthest)};
}

QRectF Surround(const QRectF& area)
{
    return area.adjusted(-kSurround, -kSurround, kSurround, kSurround);
}

// An ellipse too large for a painter, as a polygon.
QPolygonF LargeEllipse(QPointF centre, double across, double along)
{
    constexpr int sides = 3600;
    QPolygonF points;
    for (int k = 0; k < sides; ++k) {
        const double t = 2 * M_PI * k / sides;
        points.append(centre + QPointF(across * std::cos(t), along * std::sin(t)));
    }
    return points;
}

} // namespace

void PainterPicture::DrawClear()
{
    it_->Kept.clear();
    it_->Outlines.clear();
    it_->Draw(Smooth, BoxOperation{area_, ToQt(BackColor)});
}

void PainterPicture::DrawDot(PicturePoint at)
{
    it_->Draw(Smooth, DotOperation{PixelPoint(*this, at), LineWidthOf(*this), ToQt(ForeColor)});
}

void PainterPicture::DrawPath(std::span<const PicturePoint> points, bool closed)
{
    QPolygonF pixels;
    pixels.reserve(static_cast<qsizetype>(points.size()));
    for (const PicturePoint& point : points) pixels.append(PixelPoint(*this, point));
    it_->DrawLine(Smooth, PathOperation{std::move(pixels), closed, PenOf(*this),
                                        closed ? BrushOf(*this) : QBrush(), Surround(area_)});
}

void PainterPicture::DrawSolidBox(PicturePoint corner, PicturePoint opposite)
{
    const QRectF box = QRectF(PixelPoint(*this, corner), PixelPoint(*this, opposite)).normalized();
    const QRectF sane = Surround(area_);
    const QPointF low(std::clamp(box.left(), sane.left(), sane.right()),
                      std::clamp(box.top(), sane.top(), sane.bottom()));
    const QPointF high(std::clamp(box.right(), sane.left(), sane.right()),
                       std::clamp(box.bottom(), sane.top(), sane.bottom()));
    it_->Draw(Smooth, BoxOperation{QRectF(low, high), ToQt(ForeColor)});
}

void PainterPicture::DrawWholeEllipse(PicturePoint centre, double radius, double aspect)
{
    const double longer = std::min(std::abs(ScaleX(radius)), kFarthest);
    const double across = aspect > 1 ? longer / aspect : longer;
    const double along = aspect > 1 ? longer : longer * aspect;
    const QPointF at = PixelPoint(*this, centre);
    const QRectF sane = Surround(area_);
    if (sane.contains(QRectF(at.x() - across, at.y() - along, 2 * across, 2 * along)))
        it_->DrawLine(Smooth, EllipseOperation{at, across, along, PenOf(*this), BrushOf(*this)});
    else
        it_->DrawLine(Smooth, PathOperation{LargeEllipse(at, across, along), true, PenOf(*this),
                                            BrushOf(*this), sane});
}

void PainterPicture::DrawText(PicturePoint at, std::string_view text)
{
    const PictureFont& font = FontFor(FontOf(*this));
    const QPointF corner = PixelPoint(*this, at);
    if (!Surround(area_).contains(corner)) return;
    const QString shown = FromUtf8(text);
    const QRectF ground =
        FontTransparent ? QRectF() : QRectF(corner, QSizeF(font.Width(shown), font.Height()));
    it_->Draw(Smooth, TextOperation{corner, shown, font.Font(), font.Ascent(), ToQt(ForeColor),
                                    ground, ToQt(BackColor)});
}

void PainterPicture::DrawFlood(PicturePoint seed, Colour boundary)
{
    const QImage& pixels = it_->Pixels();
    const QPoint at = DevicePixel(ToPixels(seed), pixels.devicePixelRatio());
    const QRgb wall = ToQt(boundary).rgb();
    it_->Flood(FloodRuns(pixels, at, wall), BrushOf(*this), wall);
}

Colour PainterPicture::ReadColour(PicturePoint at) const
{
    const QImage& pixels = it_->Pixels();
    const QPoint pixel = DevicePixel(ToPixels(at), pixels.devicePixelRatio());
    if (!pixels.valid(pixel)) return BackColor;
    const QRgb colour = pixels.pixel(pixel);
    return Rgb(qRed(colour), qGreen(colour), qBlue(colour));
}

void PainterPicture::DrawNamedPicture(std::string_view name, PicturePoint corner,
                                      PicturePoint opposite)
{
    QSvgRenderer* renderer = RendererOf(std::string(name));
    if (!renderer->isValid()) return;
    const QRectF box = QRectF(PixelPoint(*this, corner), PixelPoint(*this, opposite)).normalized();
    if (!Surround(area_).contains(box)) return;
    it_->Draw(Smooth, [renderer, box](const Canvas& canvas) { renderer->render(&canvas.On, box); });
}

double PainterPicture::TextWidthPixels(std::string_view text) const
{
    return FontFor(FontOf(*this)).Width(FromUtf8(text));
}

double PainterPicture::TextHeightPixels(std::string_view /*text*/) const
{
    return FontFor(FontOf(*this)).Height();
}

} // namespace forcelab::screen
