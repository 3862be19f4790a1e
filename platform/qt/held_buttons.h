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
    /// Whether the first press of this double click went to something else. If that press removed what it hit, the
    /// second one must not reach the canvas below.
    [[nodiscard]] bool isSecondOfAPressElsewhere(const QMouseEvent& doubleClick) const;

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void release(QPointF place);
    [[nodiscard]] bool onlyClosesAMenu(const QObject& watched, const QEvent& event) const;

    QWidget& m_canvas;
    std::function<void(Qt::MouseButton, QPointF)> m_released;
    Qt::MouseButtons m_held;
    quint64 m_lastPress = 0; ///< when, in milliseconds
};

} // namespace schemlet
