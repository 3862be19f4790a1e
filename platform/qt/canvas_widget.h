#pragma once

#include "platform/event.h"
#include "platform/qt/canvas_surface.h"

#include <QWidget>
#include <functional>

namespace schemlet {

class HeldButtons;

/// The drawing area: shows the surface's image and reports keys and mouse. It repaints only what changed, and draws
/// nothing of its own but a frame when Tab has brought the keyboard here.
class CanvasWidget final : public QWidget {
    Q_OBJECT

public:
    explicit CanvasWidget(QWidget* parent = nullptr);

    /// Takes every event of the canvas; set once before the window is shown.
    std::function<void(const Event&)> report;

    [[nodiscard]] CanvasSurface& surface() { return m_surface; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void drawInk(const QRegion& region);
    void drawFocus();
    void showFocus(bool shown);
    void reportPointer() const;
    void reportMouse(Event::Kind kind, int code, QPointF position, std::string_view name = {}) const;

    CanvasSurface m_surface;
    HeldButtons* m_buttons; ///< reports their releases
    bool m_showsFocus = false;
};

} // namespace schemlet
