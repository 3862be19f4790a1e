#pragma once

#include <QDBusObjectPath>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QTemporaryDir>
#include <vector>

namespace schemlet {

/// One thing that a program tells assistive programs about, and where to ask for more.
struct Accessible {
    enum State { active = 1, checked = 4, showing = 25 };

    QString service;
    QDBusObjectPath path;
    QString window{}; ///< the name of the window that it is in
    QString parent{}; ///< the name of what it lies in
    QString role{};
    QString name{};
    uint states = 0;

    [[nodiscard]] bool is(State state) const { return (states >> state & 1U) != 0; }
    [[nodiscard]] QString description() const;
    [[nodiscard]] double value() const;
    [[nodiscard]] QRect placeOnScreen() const;
    [[nodiscard]] std::vector<Accessible> children() const;
};

/// A screen reader's view of the programs that are started while it lives: a bus of their own, on which they tell what
/// is in their windows.
class AccessibilityBus {
public:
    AccessibilityBus();
    ~AccessibilityBus();
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// All windows, shown or not.
    [[nodiscard]] std::vector<Accessible> windows() const;
    /// The same with everything that is in them and in their menus; from the outside in, what comes first on the screen
    /// first.
    [[nodiscard]] std::vector<Accessible> everything() const;
    /// The one that has the keyboard, if one has it.
    [[nodiscard]] Accessible windowInFront() const;
    /// That window with everything that is in it but closed menus: much is asked again and again.
    [[nodiscard]] std::vector<Accessible> inFront() const;

private:
    QTemporaryDir m_folder;
    QProcess m_sessionBus;
    QProcess m_launcher; ///< of the bus for accessibility, whose address it tells on the session's bus
    QProcess m_registry; ///< where programs say that they are there
};

} // namespace schemlet
