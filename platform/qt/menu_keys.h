#pragma once

#include <QObject>
#include <functional>

class QMenuBar;
class QWidget;

namespace schemlet {

/// The keys for a window's menus. F10 opens the first menu of the menu bar. Menu and Shift+F10 open the popup menu of
/// the control that has the focus. If that control has none, they call popupWanted, which opens the window's.
class MenuKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the window.
    MenuKeys(QWidget& window, std::function<void()> popupWanted);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openFirst();
    void askForPopup();

    QWidget& m_window;
    QMenuBar& m_bar;
    std::function<void()> m_popupWanted;
};

} // namespace schemlet
