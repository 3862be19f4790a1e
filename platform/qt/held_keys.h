#pragma once

#include "platform/qt/key_repeats.h"

#include <set>

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

    [[nodiscard]] bool isStray(const QKeyEvent& press);

    KeyRepeats m_repeats;
    std::set<Key> m_pressed; ///< since the last dialog opened, even if released since
    bool m_ignoresArrows = false;
};

} // namespace schemlet
