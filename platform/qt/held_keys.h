#pragma once

#include <QObject>
#include <set>
#include <utility>

class QKeyEvent;

namespace schemlet {

/// Drops the repeats of a key that was already down when a modal window opened. Works for every modal window of the
/// program, the toolkit's own included.
class HeldKeys final : public QObject {
public:
    HeldKeys();

    /// Makes a box that has not opened yet ignore the arrow keys too, until another key is pressed.
    static void ignoreArrows(QObject& box);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Key = quint32; ///< its place on the keyboard, which stays the same when Shift changes what it types

    [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;
    [[nodiscard]] bool isStray(const QKeyEvent& press);

    std::set<Key> m_pressed;               ///< since the last box opened; may have come up again
    std::pair<Key, quint64> m_lastRelease; ///< and its time in milliseconds
    bool m_ignoresArrows = false;
};

} // namespace schemlet
