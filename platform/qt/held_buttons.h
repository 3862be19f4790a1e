#pragma once

#include <QObject>
#include <functional>

class QMouseEvent;
class QPointF;
class QWidget;

namespace schemlet {

/// The mouse buttons that were pressed on the canvas and are still held. Reports every release, even if an open menu
/// receives it or a modal dialog blocks it.
class HeldButtons final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the canvas. Calls released with each button and its place on the canvas, in pixels.
    HeldButtons(QWidget& canvas, std::function<void(Qt::MouseButton, QPointF)> released);

    void press(const QMouseEvent& event);
    [[nodiscard]] Qt::MouseButtons held() const { return m_held; }

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void release(QPointF place);

    QWidget& m_canvas;
    std::function<void(Qt::MouseButton, QPointF)> m_released;
    Qt::MouseButtons m_held;
};

} // namespace schemlet
