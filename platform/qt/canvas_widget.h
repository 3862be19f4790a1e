#pragma once

#include "platform/event.h"
#include "platform/qt/canvas_surface.h"
#include "platform/qt/direct_ink.h"

#include <QRegion>
#include <QWidget>
#include <functional>

namespace schemlet {

class HeldButtons;

/// The drawing area. It shows the surface's image and reports keys and mouse events. It repaints only what changed, and
/// draws a frame while it has the focus through Tab.
class CanvasWidget final : public QWidget {
    Q_OBJECT

public:
    explicit CanvasWidget(QWidget* parent = nullptr);

    /// Called with every event of the canvas. Set it before the window is shown.
    std::function<void(const Event&)> report;

    [[nodiscard]] CanvasSurface& surface() { return m_surface; }

    /// Calls a handler, and then shows all that it has changed in one piece.
    void showTogether(const std::function<void()>& handler);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void showInk(const QRect& part);
    void showChanges();
    void drawInk(const QRegion& region);
    void drawFocus();
    void showFocus(bool shown);
    void reportPointer() const;
    void reportMouse(Event::Kind kind, int code, QPointF position, std::string_view name = {}) const;

    CanvasSurface m_surface;
    DirectInk m_directInk{*this};
    HeldButtons* m_buttons;
    bool m_showsFocus = false;
    bool m_collects = false; ///< while a handler runs
    QRegion m_changed;       ///< what is not shown yet
};

} // namespace schemlet
