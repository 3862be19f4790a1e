#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace schemlet {

/// Ignores the second press of a double click if the first press hit another widget. That widget, such as a button in a
/// dialog, has gone away, and the second press is not meant for the canvas or the button below it. A press that only
/// closed a menu counts as a press on the widget below the menu.
class DoubleClicks final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the canvas. Guards the canvas and the buttons of its window.
    explicit DoubleClicks(QWidget& canvas);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool guards(const QObject& target) const;

    QWidget& m_canvas;
    QPointer<QObject> m_pressed; ///< the target of the previous press
};

} // namespace schemlet
