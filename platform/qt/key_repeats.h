#pragma once

#include <QObject>
#include <utility>

class QKeyEvent;

namespace schemlet {

/// Tells the repeats of a held key from its press. X11 sends a repeat as a release and a press with the same time. Qt
/// marks them as a repeat only if both have arrived when it looks, and often misses some.
class KeyRepeats final : public QObject {
public:
    KeyRepeats();

    [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;
    /// Whether the key that was pressed last is repeating.
    [[nodiscard]] bool isRepeating() const { return m_isRepeating; }

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::pair<quint32, quint64> m_lastRelease; ///< the scan code and the time in milliseconds
    bool m_isRepeating = false;
};

} // namespace schemlet
