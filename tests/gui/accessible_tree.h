#pragma once

#include <QDBusObjectPath>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>
#include <vector>

namespace schemlet {

/// One thing that a program tells assistive programs about, and where to ask for more.
struct Accessible {
    QString service;
    QDBusObjectPath path;
    QString window{}; ///< the name of the window that it is in
    QString parent{}; ///< the name of what it lies in
    QString role{};
    QString name{};
    uint state = 0;
    bool inFront = false; ///< its window has the keyboard

    [[nodiscard]] bool active() const { return (state >> 1U & 1U) != 0; }
    [[nodiscard]] bool checked() const { return (state >> 4U & 1U) != 0; }
    [[nodiscard]] bool focused() const { return (state >> 12U & 1U) != 0; }
    [[nodiscard]] bool showing() const { return (state >> 25U & 1U) != 0; }
};

/// A screen reader's view of the programs that are started while it lives: a bus of their own, on which they tell what
/// is in their windows.
class AccessibilityBus {
public:
    AccessibilityBus();
    ~AccessibilityBus();
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// All windows that are open, with everything that is in them and in their menus, shown or not; from the outside
    /// in, what comes first on the screen first.
    [[nodiscard]] std::vector<Accessible> everything() const;
    /// The same of the window that has the keyboard, without its closed menus: much is asked again and again.
    [[nodiscard]] std::vector<Accessible> inFront() const;
    /// All windows, shown or not.
    [[nodiscard]] std::vector<Accessible> windows() const;
    [[nodiscard]] std::vector<Accessible> childrenOf(const Accessible& parent) const;

    [[nodiscard]] QString description(const Accessible& accessible) const;
    [[nodiscard]] double value(const Accessible& accessible) const;
    /// On the screen.
    [[nodiscard]] QRect place(const Accessible& accessible) const;

private:
    QTemporaryDir m_folder;
    QProcess m_sessionBus;
    QProcess m_launcher; ///< of the bus for accessibility, whose address it tells on the session's bus
    QProcess m_registry; ///< where programs say that they are there
};

} // namespace schemlet
