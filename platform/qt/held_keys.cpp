#include "platform/qt/held_keys.h"

#include "platform/qt/keys.h"

#include <QApplication>
#include <QWidget>

namespace schemlet {

namespace {

constexpr auto arrowsProperty = "ignoresArrows";

} // namespace

HeldKeys::HeldKeys()
{
    QCoreApplication::instance()->installEventFilter(this);
}

void HeldKeys::ignoreArrows(QObject& dialog)
{
    dialog.setProperty(arrowsProperty, true);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (const auto* const dialog = qobject_cast<QWidget*>(watched); dialog != nullptr && dialog->isModal()) {
            m_pressed.clear();
            m_ignoresArrows = dialog->property(arrowsProperty).toBool();
        }
        break;
    case QEvent::ShortcutOverride: // asks whether a widget wants the key before shortcuts get it
    case QEvent::KeyPress:
        if (QApplication::activeModalWidget() != nullptr && isStray(dynamic_cast<const QKeyEvent&>(*event))) {
            event->accept();
            return true;
        }
        break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

bool HeldKeys::isStray(const QKeyEvent& press)
{
    if (m_repeats.isRepeat(press) && !m_pressed.contains(press.nativeScanCode())) {
        return true;
    }
    m_pressed.insert(press.nativeScanCode());
    const bool isArrow = keys::code(press) != 0;
    if (m_ignoresArrows && !keys::isModifier(press)) {
        m_ignoresArrows = isArrow;
    }
    return m_ignoresArrows && isArrow;
}

} // namespace schemlet
