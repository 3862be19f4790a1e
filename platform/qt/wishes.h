#pragma once

#include <QObject>
#include <functional>

class QLabel;
class QWidget;

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

/// Makes a button of a label, for the mouse.
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
