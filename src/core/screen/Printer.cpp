#include "core/screen/Printer.h"

#include "core/MainModule.h"
#include "core/screen/Services.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace forcelab::screen {

namespace {
constexpr double kPixelsPerInch = 96;
}

struct Printer::Implementation {
    std::unique_ptr<QPagedPaintDevice> Device;
    QPainter Painter; // gone before its device
};

Printer::Printer(std::unique_ptr<QPagedPaintDevice> device)
    : it_(std::make_unique<Implementation>())
{
    it_->Device = std::move(device);
    if (!it_->Device || !it_->Painter.begin(it_->Device.get())) return;
    it_->Painter.scale(it_->Device->logicalDpiX() / kPixelsPerInch,
                       it_->Device->logicalDpiY() / kPixelsPerInch);
}

Printer::~Printer() = default;

bool Printer::Ready() const
{
    return it_->Painter.isActive();
}

double Printer::Width() const
{
    return Ready() ? it_->Device->width() * kPixelsPerInch / it_->Device->logicalDpiX() : 0;
}

double Printer::Height() const
{
    return Ready() ? it_->Device->height() * kPixelsPerInch / it_->Device->logicalDpiY() : 0;
}

QRectF Printer::Inside(double inches) const
{
    const QRectF whole(0, 0, Width(), Height());
    if (!Ready()) return whole;
    const QMarginsF edges = it_->Device->pageLayout().margins(QPageLayout::Inch);
    const auto margin = [inches](double edge, double size) {
        return std::clamp((inches - edge) * kPixelsPerInch, 0.0, size / 3);
    };
    return whole -
           QMarginsF(margin(edges.left(), whole.width()), margin(edges.top(), whole.height()),
                     margin(edges.right(), whole.width()), margin(edges.bottom(), whole.height()));
}

std::unique_ptr<PainterPicture> Printer::Area(double left, double top, double width, double height)
{
    return std::make_unique<PainterPicture>(it_->Painter, QRectF(left, top, width, height));
}

void Printer::NewPage()
{
    if (Ready()) it_->Device->newPage();
}

void Printer::EndDoc()
{
    if (Ready()) it_->Painter.end();
}

void Printer::Abort()
{
    if (auto* paper = dynamic_cast<QPrinter*>(it_->Device.get())) paper->abort();
    EndDoc();
}

std::unique_ptr<Printer> AskForPrinter(QWidget* owner)
{
    auto device = Services::Current().Printers->AskForPrinter(owner);
    if (!device) return nullptr;
    auto printer = std::make_unique<Printer>(std::move(device));
    if (printer->Ready()) return printer;
    MsgBox("Forcelab could not get your printer" + MainModule::CrLf +
               "to respond.  Please check your printer" + MainModule::CrLf +
               "and your printer setup in Windows.",
           kExclamation, "Printer Error");
    return nullptr;
}

} // namespace forcelab::screen
