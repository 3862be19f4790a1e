#pragma once

#include <QElapsedTimer>
#include <QRect>
#include <QRgb>
#include <QTimer>
#include <cstdint>
#include <vector>

class QImage;
class QWidget;
struct xcb_connection_t;

namespace schemlet {

/// Shows changed pixels of a widget on X11 without waiting for the toolkit's repaint. It writes them into the window
/// and into the window's backing store, so that the toolkit never copies old pixels from there to the window. The
/// toolkit's own repaint follows later, once for many strokes.
class DirectInk {
public:
    explicit DirectInk(QWidget& widget);

    /// Shows a part of the widget, which the image covers with ratio pixels along each pixel of the widget. Returns
    /// false if only the toolkit can show it: on another window system, at a fractional ratio, if the window's pixels
    /// differ from the image's, if another widget lies over the part, or if the part is large.
    [[nodiscard]] bool show(const QRect& part, const QImage& image, double ratio);

private:
    [[nodiscard]] bool hasReadyWindow();
    void read(const QImage& image, const QRect& pixels);
    void put(QSize size, QPoint place);
    void send();
    void store(QSize size, QPoint place, const QRect& part);

    QWidget& m_widget;
    xcb_connection_t* m_connection; ///< null on another window system
    std::uint32_t m_window = 0;     ///< the window that the context belongs to
    std::uint32_t m_context = 0;    ///< a graphics context; 0 if the window's pixels differ from the image's
    std::vector<QRgb> m_ink;        ///< the pixels to show, row by row
    QElapsedTimer m_sent;           ///< since the last strokes were sent
    QTimer m_send;                  ///< runs while strokes wait to be sent
    QRect m_shown;                  ///< contains every part shown since the toolkit's last repaint
    QTimer m_repaint;
};

} // namespace schemlet
