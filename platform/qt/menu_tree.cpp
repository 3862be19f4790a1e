#include "platform/qt/menu_tree.h"

#include "platform/qt/menu_keys.h"
#include "platform/qt/text.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace schemlet {

MenuTree::MenuTree(QWidget& form, std::function<void(Name)> clicked) : m_form(form), m_clicked(std::move(clicked)) {}

QAction& MenuTree::add(int depth, const MenuItem& item)
{
    const bool separator = item.caption == "-";
    // The menu owns the row, not the window: DirectInk looks through the window's children for each stroke.
    QWidget& menu = menuAt(depth);
    auto* const action = new QAction(separator ? QString() : toQString(item.caption), &menu);
    action->setSeparator(separator);
    action->setShortcuts(QKeySequence::listFromString(toQString(item.shortcut), QKeySequence::PortableText));
    action->setCheckable(item.look == Look::unchecked || item.look == Look::checked);
    action->setChecked(item.look == Look::checked);
    action->setVisible(item.look != Look::hidden);
    action->setObjectName(toQString(item.name));
    connect(action, &QAction::triggered, this, [this, action, name = item.name](bool checked) {
        // Qt has already flipped the mark of a check item. Undo that, because the command flips it.
        if (action->isCheckable()) {
            action->setChecked(!checked);
        }
        m_clicked(name);
    });
    if (item.look == Look::hidden) {
        new MenuKeys(m_form, [this, name = item.name] { m_clicked(name); });
    }
    menu.addAction(action);
    m_lastItems.resize(static_cast<std::size_t>(depth));
    m_lastItems.push_back(action);
    return *action;
}

QWidget& MenuTree::menuAt(int depth)
{
    if (depth == 0) {
        return *m_form.findChild<QMenuBar*>();
    }
    QAction& parent = *m_lastItems.at(static_cast<std::size_t>(depth) - 1);
    if (parent.menu() == nullptr) {
        auto* const menu = new QMenu(qobject_cast<QWidget*>(parent.parent()));
        menu->setObjectName(parent.objectName() + "Menu");
        menu->setAccessibleName(parent.text().remove('&').trimmed());
        menu->setSeparatorsCollapsible(false); // the last row may be a separator
        parent.setMenu(menu);
    }
    return *parent.menu();
}

} // namespace schemlet
