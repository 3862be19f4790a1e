#include "platform/qt/printing.h"

#include "platform/runtime_error.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <cups/cups.h>
#include <memory>

namespace {

struct Freed {
    void operator()(cups_dest_t* queue) const { cupsFreeDests(1, queue); }
};

[[noreturn]] void fail(const QString& why)
{
    throw RuntimeError(Fault::printerError, "Printer error\n\n" + why.toStdString());
}

/// The default queue's name, once it is known to take jobs: Qt would lose them without a word, and without a default
/// printer it would want to write a file.
QString openQueue()
{
    const std::unique_ptr<cups_dest_t, Freed> queue(cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr));
    if (queue == nullptr) {
        fail("No default printer is set up, or the print service is not running.\n"
             "The printer settings of the system show which.");
    }
    QString name = QString::fromUtf8(queue->name);
    if (queue->instance != nullptr) {
        name += '/' + QString::fromUtf8(queue->instance);
    }
    const char* const accepting = cupsGetOption("printer-is-accepting-jobs", queue->num_options, queue->options);
    if (qstrcmp(accepting, "false") == 0) {
        fail("The printer " + name + " rejects jobs.\nThe printer settings of the system make it accept them again.");
    }
    return name;
}

/// What the printer can print on, in its dots on the paper. A page on its side has the printer's margins turned with
/// it, to the left or to the right as the printer likes; Qt leaves them where they are.
QRectF printablePart(const QPrinter& printer)
{
    const QPageLayout layout = printer.pageLayout();
    QMargins margins = layout.marginsPixels(printer.resolution());
    if (layout.orientation() == QPageLayout::Landscape) {
        const int atSides = std::max(margins.top(), margins.bottom());
        const int atEnds = std::max(margins.left(), margins.right());
        margins = {atSides, atEnds, atSides, atEnds};
    }
    return layout.fullRectPixels(printer.resolution()).marginsRemoved(margins);
}

QRectF placeOnPaper(const QPrinter& printer, const QSizeF& picture)
{
    const QRectF part = printablePart(printer);
    const double natural = printer.resolution() / 96.0;
    const double scale = std::min({natural, part.width() / picture.width(), part.height() / picture.height()});
    const QSizeF size = picture * scale;
    return {QPointF(part.center().x() - size.width() / 2, part.top()), size};
}

} // namespace

void printPicture(const QImage& picture, const QString& title)
{
    const QString queue = openQueue();
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(queue);
    printer.setDocName(title);
    printer.setFullPage(true);
    printer.setPageOrientation(picture.width() > picture.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPainter painter;
    if (printer.printerName() != queue || printer.outputFormat() != QPrinter::NativeFormat ||
        !painter.begin(&printer)) {
        fail("Printing on " + queue + " could not be started.");
    }
    painter.setRenderHint(QPainter::LosslessImageRendering); // thin lines would blur
    painter.drawImage(placeOnPaper(printer, picture.deviceIndependentSize()), picture);
    // Qt sends the job when the page ends, and only the print service's answer says whether it arrived.
    if (!painter.end() || printer.printerState() == QPrinter::Error ||
        cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE) {
        fail("The printer " + queue + " did not get the job:\n" + QString::fromUtf8(cupsLastErrorString()));
    }
}
