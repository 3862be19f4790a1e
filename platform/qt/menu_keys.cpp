#include "platform/qt/menu_keys.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QProxyStyle>
#include <QShortcut>

namespace schemlet {

namespace {

/// Keeps the focus off the menu bar when Alt is tapped or Esc closes a menu. Arrow keys would draw nothing there, and
/// most styles do not show that the bar has the focus.
class UnfocusedBarStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override
    {
        return hint == SH_MenuBar_AltKeyNavigation ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

} // namespace

MenuKeys::MenuKeys(QWidget& window, std::function<void()> popupWanted)
    : QObject(&window), m_window(window), m_bar(*window.findChild<QMenuBar*>()), m_popupWanted(std::move(popupWanted))
{
    auto* const style = new UnfocusedBarStyle;
    style->setParent(this);
    m_bar.setStyle(style);
    window.installEventFilter(this);
    new QShortcut(Qt::Key_F10, &window, this, [this] { openFirst(); });
    new QShortcut(Qt::SHIFT | Qt::Key_F10, &window, this, [this] { askForPopup(); });
}

bool MenuKeys::eventFilter(QObject* watched, QEvent* event)
{
    // The event reaches the window if the control with the focus has no menu of its own. A right click does not need
    // this: the canvas reports it as a press.
    if (event->type() == QEvent::ContextMenu &&
        dynamic_cast<const QContextMenuEvent&>(*event).reason() == QContextMenuEvent::Keyboard) {
        m_popupWanted();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

/// Selects the first item, as every other key that opens a menu does.
void MenuKeys::openFirst()
{
    QAction* const first = m_bar.actions().first();
    m_bar.setActiveAction(first);
    first->menu()->setActiveAction(first->menu()->actions().first());
}

/// Qt knows the Menu key but not Shift+F10.
void MenuKeys::askForPopup()
{
    QWidget* const asked = m_window.focusWidget() != nullptr ? m_window.focusWidget() : &m_window;
    const QPoint place = asked->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, asked->mapToGlobal(place));
    QCoreApplication::sendEvent(asked, &event);
}

} // namespace schemlet
