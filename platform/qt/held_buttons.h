#pragma once

#include <QObject>
#include <functional>

class QMouseEvent;
class QPointF;
class QWidget;

/// The mouse buttons that went down on a canvas and are not up again, wherever that happens: an open menu gets the
/// release of a button, and while a box is open the canvas gets none.
class HeldButtons final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the canvas. The function is told of every release, with the place on the canvas.
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
