#pragma once

#include <QObject>
#include <functional>

class QMouseEvent;
class QPointF;
class QWidget;

namespace schemlet {

/// The mouse buttons that went down on a canvas and are still held. The canvas learns of every release, though an open
/// menu takes those that come while it shows, and a box lets none through.
class HeldButtons final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the canvas. The function gets every release and its place on the canvas.
    HeldButtons(QWidget& canvas, std::function<void(Qt::MouseButton, QPointF)> released);

    void press(const QMouseEvent& event);
    [[nodiscard]] Qt::MouseButtons held() const { return m_held; }
    /// A double click on something that went away at the first one must not reach what lies below.
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
