#include "platform/qt/key_repeats.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace schemlet {

KeyRepeats::KeyRepeats()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyRepeats::isRepeat(const QKeyEvent& press) const
{
    return press.isAutoRepeat() ||
           (press.timestamp() != 0 && m_lastRelease == std::pair(press.nativeScanCode(), press.timestamp()));
}

bool KeyRepeats::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease) {
        const auto& release = dynamic_cast<const QKeyEvent&>(*event);
        m_lastRelease = {release.nativeScanCode(), release.timestamp()};
    } else if (event->type() == QEvent::ShortcutOverride) { // comes before the shortcut
        m_isRepeating = isRepeat(dynamic_cast<const QKeyEvent&>(*event));
    }
    return QObject::eventFilter(watched, event);
}

} // namespace schemlet
