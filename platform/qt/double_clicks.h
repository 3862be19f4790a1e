#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace schemlet {

/// A double click whose first press was on something that went away, the answer in a box, say, must not reach what lay
/// below: neither the canvas nor a button. A press that only closed a menu counts for what lay under it.
class DoubleClicks final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the canvas, and looks after the buttons of its window too.
    explicit DoubleClicks(QWidget& canvas);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool guards(const QObject& target) const;

    QWidget& m_canvas;
    QPointer<QObject> m_pressed; ///< by the press before
};

} // namespace schemlet
