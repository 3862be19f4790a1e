#include "platform/qt/printing.h"

#include "platform/runtime_error.h"

#include <QImage>
#include <QLibrary>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <cups/cups.h>
#include <functional>
#include <memory>

namespace {

[[noreturn]] void fail(const QString& why)
{
    throw RuntimeError(Fault::printerError, "Printer error\n\n" + why.toStdString());
}

/// The print service's library, loaded when something is printed: linked, it would be a fifth of the program's start.
class Cups {
public:
    using Queue = std::unique_ptr<cups_dest_t, std::function<void(cups_dest_t*)>>;

    Cups()
    {
        if (!m_library.load()) {
            fail("The print service's library is not there:\n" + m_library.errorString());
        }
    }

    [[nodiscard]] Queue defaultQueue()
    {
        return {call<decltype(cupsGetNamedDest)>("cupsGetNamedDest")(CUPS_HTTP_DEFAULT, nullptr, nullptr),
                [this](cups_dest_t* queue) { call<decltype(cupsFreeDests)>("cupsFreeDests")(1, queue); }};
    }
    [[nodiscard]] const char* option(const cups_dest_t& queue, const char* name)
    {
        return call<decltype(cupsGetOption)>("cupsGetOption")(name, queue.num_options, queue.options);
    }
    [[nodiscard]] bool failed()
    {
        return call<decltype(cupsLastError)>("cupsLastError")() > IPP_STATUS_OK_EVENTS_COMPLETE;
    }
    [[nodiscard]] QString lastError()
    {
        return QString::fromUtf8(call<decltype(cupsLastErrorString)>("cupsLastErrorString")());
    }

private:
    template <typename Function> Function* call(const char* name)
    {
        return reinterpret_cast<Function*>(m_library.resolve(name));
    }

    QLibrary m_library{"cups", 2};
};

/// The default queue's name, once it is known to take jobs: Qt would lose them without a word, and without a default
/// printer it would want to write a file.
QString openQueue(Cups& cups)
{
    const Cups::Queue queue = cups.defaultQueue();
    if (queue == nullptr) {
        fail("No default printer is set up, or the print service is not running.\n"
             "The printer settings of the system show which.");
    }
    QString name = QString::fromUtf8(queue->name);
    if (queue->instance != nullptr) {
        name += '/' + QString::fromUtf8(queue->instance);
    }
    if (qstrcmp(cups.option(*queue, "printer-is-accepting-jobs"), "false") == 0) {
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
    Cups cups;
    const QString queue = openQueue(cups);
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
    if (!painter.end() || printer.printerState() == QPrinter::Error || cups.failed()) {
        fail("The printer " + queue + " did not get the job:\n" + cups.lastError());
    }
}
