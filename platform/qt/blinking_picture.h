#pragma once

#include <QIcon>
#include <QLabel>
#include <QPixmap>

namespace schemlet {

/// A picture on the canvas that is often shown and hidden, such as the pen marker. While it is off, it stays visible to
/// Qt but paints nothing. So a change repaints a few pixels, without the events, layout and focus changes of hiding a
/// widget. The picture is an icon, which is sharp on every screen.
class BlinkingPicture final : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QIcon picture READ picture WRITE setPicture)

public:
    explicit BlinkingPicture(QWidget* parent);

    [[nodiscard]] QIcon picture() const { return m_picture; }
    void setPicture(const QIcon& picture);
    void setVisible(bool visible) override;
    /// The value set last by setVisible(); isHidden() is always false.
    [[nodiscard]] bool isOn() const { return m_on; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_picture;
    QPixmap m_drawn; ///< for the present screen, because drawing an icon takes much longer
    bool m_on = true;
};

} // namespace schemlet
