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

void HeldKeys::ignoreArrows(QObject& box)
{
    box.setProperty(arrowsProperty, true);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (const auto* const box = qobject_cast<QWidget*>(watched); box != nullptr && box->isModal()) {
            m_pressed.clear();
            m_ignoresArrows = box->property(arrowsProperty).toBool();
        }
        break;
    case QEvent::KeyRelease: {
        const auto& release = dynamic_cast<const QKeyEvent&>(*event);
        m_lastRelease = {release.nativeScanCode(), release.timestamp()};
        break;
    }
    case QEvent::ShortcutOverride: // asks whether somebody wants the key more than the short-cuts do
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

/// X11 tells of a repeat as a release and a press at the same time. The toolkit marks the two as a repeat only if both
/// have arrived when it looks, which the first ones often have not.
bool HeldKeys::isRepeat(const QKeyEvent& press) const
{
    return press.isAutoRepeat() ||
           (press.timestamp() != 0 && m_lastRelease == std::pair(press.nativeScanCode(), press.timestamp()));
}

bool HeldKeys::isStray(const QKeyEvent& press)
{
    if (isRepeat(press) && !m_pressed.contains(press.nativeScanCode())) {
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
