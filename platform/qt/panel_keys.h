#pragma once

#include <QObject>
#include <functional>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace schemlet {

/// The keys of a panel that lies over the canvas: the mnemonics of its buttons, and Esc. They work while the panel is
/// visible, wherever the focus is in its window, and before the mnemonics of the menu bar.
class PanelKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the panel.
    PanelKeys(QWidget& panel, std::function<void()> escape);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isForPanel(const QObject& watched) const;
    [[nodiscard]] QAbstractButton* buttonFor(const QKeyEvent& key) const;

    QWidget& m_panel;
    std::function<void()> m_escape;
};

} // namespace schemlet
