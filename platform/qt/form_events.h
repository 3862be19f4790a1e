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

/// Reports that the user wants to close a window, with its close button or with Esc in a dialog, and keeps the window
/// open.
class CloseRequest final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the window. Once this event filter is removed, the window can be closed.
    CloseRequest(QWidget& window, std::function<void()> requested);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_requested;
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

/// For a frame that lies on the canvas. Reports which of its widgets the mouse moves over, the frame included, and
/// keeps mouse events from the canvas.
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

/// Keeps a control at the top right of its parent until the user drops it elsewhere. If the parent shrinks, the control
/// moves back inside so that the user can reach it. When it is shown again, it lies where it was dropped.
class Floating final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the control. The margin to the right edge is the control's present distance from the top.
    explicit Floating(QWidget& control);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QPoint topRight() const;
    void keepInside(QPoint wanted, QSize roomBefore);
    void place(QPoint place);

    QWidget& m_control;
    int m_margin;
    QPoint m_placed; ///< where this object moved the control; any other place is the user's
    std::optional<QPoint> m_dropped;
    QSize m_roomAtDrop;
};

/// Shows a widget while a frame elsewhere is visible. The widget stays hidden while nothing in it is visible, because
/// it would leave a gap.
class ShowsWith final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the widget.
    ShowsWith(QWidget& widget, QWidget& frame);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_widget;
    const QWidget& m_frame;
};

/// Gives certain keys to a text box while it has the focus, although the window has shortcuts on them.
class OwnKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the text box.
    OwnKeys(QWidget& textBox, QList<QKeySequence> keys);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<QKeySequence> m_keys;
};

/// Sends arrow keys and keys that type a character to the canvas while a button has the focus. The button keeps Tab,
/// Space, Enter and Esc. Tab stops at each option of a group.
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
