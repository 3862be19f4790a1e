#include "platform/qt/direct_ink.h"

#include <QBackingStore>
#include <QGuiApplication>
#include <QImage>
#include <QSysInfo>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace schemlet {

namespace {

constexpr int depth = 24;           // bits of colour
constexpr int pixelBits = 32;       // with the unused ones
constexpr int mostPixels = 64 * 64; // the toolkit's shared memory is faster for more
constexpr int repaintDelay = 250;   // milliseconds
constexpr int joinedSpan = 500'000; // nanoseconds; strokes that come faster are sent together

bool isRgb(const xcb_visualtype_t& visual)
{
    return visual._class == XCB_VISUAL_CLASS_TRUE_COLOR && visual.red_mask == 0xff0000 && visual.green_mask == 0xff00 &&
           visual.blue_mask == 0xff;
}

bool hasWholeWords(const xcb_setup_t& setup)
{
    const auto* const formats = xcb_setup_pixmap_formats(&setup);
    return std::any_of(formats, formats + xcb_setup_pixmap_formats_length(&setup), [](const xcb_format_t& format) {
        return format.depth == depth && format.bits_per_pixel == pixelBits;
    });
}

/// Whether a visual's pixels have the layout of QImage::Format_RGB32, so that the server can copy them unchanged.
bool takesImagePixels(const xcb_setup_t& setup, xcb_visualid_t wanted)
{
    constexpr auto ourOrder =
        QSysInfo::ByteOrder == QSysInfo::LittleEndian ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST;
    if (setup.image_byte_order != ourOrder || !hasWholeWords(setup)) {
        return false;
    }
    for (auto screens = xcb_setup_roots_iterator(&setup); screens.rem > 0; xcb_screen_next(&screens)) {
        for (auto depths = xcb_screen_allowed_depths_iterator(screens.data); depths.rem > 0; xcb_depth_next(&depths)) {
            const auto* const visuals = xcb_depth_visuals(depths.data);
            for (int i = 0; depths.data->depth == depth && i < xcb_depth_visuals_length(depths.data); ++i) {
                if (visuals[i].visual_id == wanted) {
                    return isRgb(visuals[i]);
                }
            }
        }
    }
    return false;
}

bool hasChildOver(const QWidget& parent, const QWidget* apartFrom, const QRect& part)
{
    return std::ranges::any_of(parent.children(), [&](const QObject* child) {
        const auto* const widget = qobject_cast<const QWidget*>(child);
        return widget != nullptr && widget != apartFrom && widget->geometry().intersects(part) && !widget->isHidden() &&
               !widget->isWindow();
    });
}

/// Whether all of a part of a widget is in view, with no other widget over it.
bool isOpen(const QWidget& widget, QRect part)
{
    const QWidget* inner = nullptr;
    for (const QWidget* at = &widget; at->rect().contains(part) && !hasChildOver(*at, inner, part);
         at = at->parentWidget()) {
        if (at->isWindow()) {
            return true;
        }
        part.translate(at->pos());
        inner = at;
    }
    return false;
}

} // namespace

DirectInk::DirectInk(QWidget& widget) : m_widget(widget)
{
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    m_connection = x11 != nullptr ? x11->connection() : nullptr;
    m_send.setSingleShot(true);
    m_send.setInterval(0);
    QObject::connect(&m_send, &QTimer::timeout, &widget, [this] { send(); });
    m_repaint.setSingleShot(true);
    m_repaint.setInterval(repaintDelay);
    QObject::connect(&m_repaint, &QTimer::timeout, &widget, [this] {
        m_widget.update(m_shown);
        m_shown = {};
    });
}

bool DirectInk::show(const QRect& part, const QImage& image, double ratio)
{
    const QRect pixels(part.topLeft() * ratio, part.size() * ratio);
    const bool isSimple = ratio == std::floor(ratio) && ratio == m_widget.devicePixelRatioF() &&
                          image.rect().contains(pixels) && pixels.width() * pixels.height() <= mostPixels;
    if (m_connection == nullptr || !isSimple || !hasReadyWindow() || !isOpen(m_widget, part)) {
        return false;
    }
    const QPoint place = m_widget.mapTo(m_widget.window(), part.topLeft());
    read(image, pixels);
    put(pixels.size(), place * ratio);
    store(pixels.size(), place * ratio, {place, part.size()});
    m_shown |= part;
    if (!m_repaint.isActive()) {
        m_repaint.start();
    }
    return true;
}

/// Whether the window takes the image's pixels and its backing store is up to date. Asks the server once for each
/// window.
bool DirectInk::hasReadyWindow()
{
    const QWidget& window = *m_widget.window();
    if (!m_widget.isVisible() || !m_widget.updatesEnabled() || m_widget.nativeParentWidget() != &window ||
        m_widget.backingStore()->size() != window.size()) {
        return false;
    }
    if (const auto number = static_cast<xcb_window_t>(window.internalWinId()); number != m_window) {
        m_window = number;
        if (m_context != 0) {
            xcb_free_gc(m_connection, std::exchange(m_context, 0));
        }
        const std::unique_ptr<xcb_get_window_attributes_reply_t, decltype(&std::free)> attributes(
            xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, number), nullptr),
            &std::free);
        if (attributes && takesImagePixels(*xcb_get_setup(m_connection), attributes->visual)) {
            m_context = xcb_generate_id(m_connection);
            xcb_create_gc(m_connection, m_context, number, 0, nullptr);
        }
    }
    return m_context != 0;
}

void DirectInk::read(const QImage& image, const QRect& pixels)
{
    m_ink.clear();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        m_ink.insert(m_ink.end(), row + pixels.left(), row + pixels.right() + 1);
    }
}

void DirectInk::put(QSize size, QPoint place)
{
    xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_context,
                  static_cast<std::uint16_t>(size.width()), static_cast<std::uint16_t>(size.height()),
                  static_cast<std::int16_t>(place.x()), static_cast<std::int16_t>(place.y()), 0, depth,
                  static_cast<std::uint32_t>(m_ink.size() * sizeof(QRgb)),
                  reinterpret_cast<const std::uint8_t*>(m_ink.data()));
    if (!m_sent.isValid() || m_sent.nsecsElapsed() > joinedSpan) {
        send();
    } else if (!m_send.isActive()) {
        m_send.start();
    }
}

void DirectInk::send()
{
    xcb_flush(m_connection);
    m_sent.start();
}

void DirectInk::store(QSize size, QPoint place, const QRect& part)
{
    QBackingStore& store = *m_widget.backingStore();
    store.beginPaint(part); // waits while the server still reads the part
    auto& all = dynamic_cast<QImage&>(*store.paintDevice());
    auto ink = m_ink.cbegin();
    for (int y = place.y(); y < place.y() + size.height(); ++y, ink += size.width()) {
        std::copy_n(ink, size.width(), reinterpret_cast<QRgb*>(all.scanLine(y)) + place.x());
    }
    store.endPaint();
}

} // namespace schemlet
