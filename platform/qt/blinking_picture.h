#pragma once

#include <QIcon>
#include <QLabel>

namespace schemlet {

/// A picture on the canvas that is shown and hidden all day. It stays in place for Qt and merely paints nothing while
/// it is off: a repaint of its few pixels instead of the event, layout and focus work of a widget's hiding. An icon, as
/// that is sharp on every screen.
class BlinkingPicture final : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QIcon picture READ picture WRITE setPicture)

public:
    explicit BlinkingPicture(QWidget* parent);

    [[nodiscard]] QIcon picture() const { return m_picture; }
    void setPicture(const QIcon& picture);
    void setVisible(bool visible) override;
    /// What setVisible() said last; isHidden() does not know.
    [[nodiscard]] bool isOn() const { return m_on; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_picture;
    bool m_on = true;
};

} // namespace schemlet
