#pragma once

#include <QLabel>

/// A picture on the canvas that is shown and hidden all day. It stays in place for Qt and merely paints nothing while
/// it is off: a repaint of its few pixels instead of the event, layout and focus work of a widget's hiding.
class BlinkingPicture final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setVisible(bool visible) override;
    /// What setVisible() said last; isHidden() does not know.
    [[nodiscard]] bool isOn() const { return m_on; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_on = true;
};
