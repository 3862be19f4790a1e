#pragma once

#include <QObject>
#include <functional>

class QMouseEvent;
class QPointF;
class QWidget;

namespace schemlet {

/// The mouse buttons that went down on a canvas and are still held. Reports every release to the canvas, also those
/// that an open menu takes and those that a modal box blocks.
class HeldButtons final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the canvas. The function gets every release and its place on the canvas.
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
