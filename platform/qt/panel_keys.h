#pragma once

#include <QObject>
#include <functional>

class QAbstractButton;
class QKeyEvent;
class QWidget;

namespace schemlet {

/// The keys of a panel that lies open over a canvas, wherever in its window the focus is: mnemonics of its buttons,
/// which go before those of the menu bar, and Esc.
class PanelKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the panel.
    PanelKeys(QWidget& panel, std::function<void()> escape);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isPanels(const QObject& watched) const;
    [[nodiscard]] QAbstractButton* buttonFor(const QKeyEvent& key) const;

    QWidget& m_panel;
    std::function<void()> m_escape;
};

} // namespace schemlet
