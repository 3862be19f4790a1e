#pragma once

#include <QObject>
#include <set>
#include <utility>

class QKeyEvent;

namespace schemlet {

/// Drops the repeats of a key that was already down when a modal window opened. This works for every modal window,
/// including Qt's own dialogs.
class HeldKeys final : public QObject {
public:
    HeldKeys();

    /// Makes a dialog also ignore the arrow keys until another key is pressed. Call before the dialog opens.
    static void ignoreArrows(QObject& dialog);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Key = quint32; ///< the scan code, which stays the same when Shift changes what the key types

    [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;
    [[nodiscard]] bool isStray(const QKeyEvent& press);

    std::set<Key> m_pressed;               ///< since the last dialog opened, even if released since
    std::pair<Key, quint64> m_lastRelease; ///< the key and the time in milliseconds
    bool m_ignoresArrows = false;
};

} // namespace schemlet
