#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <functional>
#include <optional>

class QLabel;
class QWidget;

namespace schemlet {

/// Tells when the user wants a window to go away: by its frame, or by Esc in a dialog. The window itself stays as it
/// is.
class CloseWish final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the window. Without its event filter the window closes again.
    CloseWish(QWidget& window, std::function<void()> wished);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_wished;
};

/// Makes a label clickable with the mouse.
class LabelClick final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the label.
    LabelClick(QLabel& label, std::function<void()> clicked);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QLabel& m_label;
    std::function<void()> m_clicked;
};

/// A frame that lies on the canvas and keeps the mouse to itself: tells over which of its widgets, itself included, the
/// mouse moves.
class Hovering final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the frame, which must be complete.
    Hovering(QWidget& frame, std::function<void(const QWidget&)> hovered);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QWidget& m_frame;
    std::function<void(const QWidget&)> m_hovered;
};

/// A control that floats over its parent, at the top right until the user drops it elsewhere. A parent that shrinks
/// pushes it back inside, so that it can be picked up again; shown again it lies where it was dropped.
class Floating final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the control, which keeps as far from the right edge as it is from the top now.
    explicit Floating(QWidget& control);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QPoint topRight() const;
    void keepInside(QPoint wanted, QSize roomBefore);
    void place(QPoint place);

    QWidget& m_control;
    int m_margin;
    QPoint m_placed; ///< by this: any other place is the user's
    std::optional<QPoint> m_dropped;
    QSize m_roomAtDrop;
};

/// A part of a frame that lies elsewhere: it shows while the frame does, unless there is nothing in it to show. An
/// empty part would leave a gap.
class ShowsWith final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the part.
    ShowsWith(QWidget& part, QWidget& frame);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_part;
    const QWidget& m_frame;
};

/// Keys that are a text box's own while it has the focus, although the window has short-cuts on them.
class OwnKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the text box.
    OwnKeys(QWidget& textBox, QList<QKeySequence> keys);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QKeySequence> m_keys;
};

/// Arrow keys and what types something are the canvas's even while a button has the focus; Tab, Space, Enter and Esc
/// are the button's. Tab goes to each option of a group.
class KeyDetour final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the button.
    KeyDetour(QWidget& button, QWidget& canvas);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_canvas;
};

} // namespace schemlet
