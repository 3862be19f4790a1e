#include "platform/qt/panel_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

namespace schemlet {

PanelKeys::PanelKeys(QWidget& panel, std::function<void()> escape)
    : QObject(&panel), m_panel(panel), m_escape(std::move(escape))
{
    panel.installEventFilter(this);
}

bool PanelKeys::eventFilter(QObject* watched, QEvent* event)
{
    // Filters all keys of the program, but only while the panel is visible.
    if (watched == &m_panel && event->type() == QEvent::Show) {
        QCoreApplication::instance()->installEventFilter(this);
    } else if (watched == &m_panel && event->type() == QEvent::Hide) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
    // A ShortcutOverride asks whether a widget wants the key before shortcuts get it. The KeyPress follows.
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if ((!asks && event->type() != QEvent::KeyPress) || !isForPanel(*watched)) {
        return QObject::eventFilter(watched, event);
    }
    const auto& key = dynamic_cast<const QKeyEvent&>(*event);
    const bool escape = key.key() == Qt::Key_Escape;
    QAbstractButton* const button = buttonFor(key);
    if (!escape && button == nullptr) {
        return QObject::eventFilter(watched, event);
    }
    event->accept();
    if (!asks && escape) {
        m_escape();
    } else if (!asks) {
        button->click();
    }
    return true;
}

bool PanelKeys::isForPanel(const QObject& watched) const
{
    const auto* const widget = qobject_cast<const QWidget*>(&watched);
    return widget != nullptr && widget->window() == m_panel.window() &&
           qobject_cast<const QMenuBar*>(widget) == nullptr && QApplication::activePopupWidget() == nullptr;
}

QAbstractButton* PanelKeys::buttonFor(const QKeyEvent& key) const
{
    if (key.modifiers() != Qt::AltModifier) {
        return nullptr;
    }
    const QKeySequence pressed(key.keyCombination());
    for (auto* const button : m_panel.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && QKeySequence::mnemonic(button->text()) == pressed) {
            return button;
        }
    }
    return nullptr;
}

} // namespace schemlet
