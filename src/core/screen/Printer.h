#pragma once

#include "core/screen/PainterPicture.h"

#include <QRectF>

#include <memory>
#include <string>

class QPagedPaintDevice;
class QWidget;

namespace forcelab::screen {

/// Pages of a printer or a PDF file. Sizes are logical pixels, 96 to the inch, inside the margins.
class Printer {
  public:
    /// Takes a device from PrintService.
    explicit Printer(std::unique_ptr<QPagedPaintDevice> device);
    ~Printer();

    [[nodiscard]] bool Ready() const; ///< False where the device cannot be drawn on
    [[nodiscard]] double Width() const;
    [[nodiscard]] double Height() const;
    /// The part of the page that keeps a margin, in inches, from the edges of the paper; a third of
    /// what can be printed remains of the smallest paper.
    [[nodiscard]] QRectF Inside(double inches) const;
    /// A picture of its own in a part of the current page.
    std::unique_ptr<PainterPicture> Area(double left, double top, double width, double height);
    void NewPage();
    void EndDoc();
    /// Gives the document up; a printer prints nothing of it.
    void Abort();

  private:
    struct Implementation;
    std::unique_ptr<Implementation> it_;
};

/// Asks for a printer; shows "Forcelab could not get your printer" where it cannot be drawn on.
/// Nothing on Cancel and on failure.
std::unique_ptr<Printer> AskForPrinter(QWidget* owner);

} // namespace forcelab::screen
