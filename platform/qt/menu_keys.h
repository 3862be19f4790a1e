#pragma once

#include <QObject>
#include <functional>

class QMenuBar;
class QWidget;

/// The keys that lead to a window's menus: F10 to the menu bar, Menu and Shift+F10 to the popup menu of what has the
/// keyboard, which is the window's own where that has none.
class MenuKeys final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the window.
    MenuKeys(QWidget& window, std::function<void()> popupWanted);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void askForPopup();

    QWidget& m_window;
    QMenuBar& m_bar;
    std::function<void()> m_popupWanted;
};
