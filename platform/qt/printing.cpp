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

namespace schemlet {

namespace {

[[noreturn]] void fail(const QString& why)
{
    throw RuntimeError(Fault::printerError, "Printer error\n\n" + why.toStdString());
}

/// The library of CUPS. It is loaded only to print, because loading it would take a fifth of the start-up time.
class Cups {
public:
    using Queue = std::unique_ptr<cups_dest_t, std::function<void(cups_dest_t*)>>;

    [[nodiscard]] Queue defaultQueue() const
    {
        return {m_getNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr),
                [this](cups_dest_t* queue) { m_freeDests(1, queue); }};
    }
    [[nodiscard]] const char* option(const cups_dest_t& queue, const char* name) const
    {
        return m_getOption(name, queue.num_options, queue.options);
    }
    [[nodiscard]] bool failed() const { return m_lastError() > IPP_STATUS_OK_EVENTS_COMPLETE; }
    [[nodiscard]] QString lastError() const { return QString::fromUtf8(m_lastErrorString()); }

private:
    template <typename Function> Function* find(const char* name)
    {
        const QFunctionPointer found = m_library.resolve(name); // loads the library
        if (found == nullptr) {
            fail("The print service's library is not there or is another one:\n" + m_library.errorString());
        }
        return reinterpret_cast<Function*>(found);
    }

    QLibrary m_library{"cups", 2};
    decltype(cupsGetNamedDest)* m_getNamedDest = find<decltype(cupsGetNamedDest)>("cupsGetNamedDest");
    decltype(cupsFreeDests)* m_freeDests = find<decltype(cupsFreeDests)>("cupsFreeDests");
    decltype(cupsGetOption)* m_getOption = find<decltype(cupsGetOption)>("cupsGetOption");
    decltype(cupsLastError)* m_lastError = find<decltype(cupsLastError)>("cupsLastError");
    decltype(cupsLastErrorString)* m_lastErrorString = find<decltype(cupsLastErrorString)>("cupsLastErrorString");
};

/// The name of the default queue. Fails if there is none or it rejects jobs: Qt would try to write a file, or lose the
/// job without a message.
QString openQueue(const Cups& cups)
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

/// The printable part of the paper, in the printer's dots. In landscape the printer's margins turn with the page, to
/// the left or to the right; Qt does not turn them. So the larger margin counts on both sides.
QRectF printablePart(const QPrinter& printer)
{
    const QPageLayout layout = printer.pageLayout();
    QMargins margins = layout.marginsPixels(printer.resolution());
    if (layout.orientation() == QPageLayout::Landscape) {
        const int leftAndRight = std::max(margins.top(), margins.bottom());
        const int topAndBottom = std::max(margins.left(), margins.right());
        margins = {leftAndRight, topAndBottom, leftAndRight, topAndBottom};
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
    const Cups cups;
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
    painter.setRenderHint(QPainter::LosslessImageRendering); // JPEG would blur thin lines
    painter.drawImage(placeOnPaper(printer, picture.deviceIndependentSize()), picture);
    // Qt sends the job when the page ends. Only the print service's answer says whether it arrived.
    if (!painter.end() || printer.printerState() == QPrinter::Error || cups.failed()) {
        fail("The printer " + queue + " did not get the job:\n" + cups.lastError());
    }
}

} // namespace schemlet
