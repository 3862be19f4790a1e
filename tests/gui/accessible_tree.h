#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>
#include <vector>

/// One thing that a program tells assistive programs about, and where to ask for more.
struct Accessible {
    QString service;
    QDBusObjectPath path;
    QString role{};
    QString name{};
    QString window{}; ///< the name of the window that it is in
};

/// A screen reader's view of the programs that are started while it lives: a bus of their own, on which they tell what
/// is in their windows.
class AccessibilityBus {
public:
    AccessibilityBus();
    ~AccessibilityBus();
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// All windows that are open, with everything that is in them and in their menus, shown or not.
    [[nodiscard]] std::vector<Accessible> everything() const;

    [[nodiscard]] QString description(const Accessible& accessible) const;

private:
    [[nodiscard]] QVariant ask(const Accessible& accessible, const QString& interface, const QString& method,
                               const QVariantList& words = {}) const;
    [[nodiscard]] QString property(const Accessible& accessible, const QString& name) const;
    [[nodiscard]] std::vector<Accessible> childrenOf(const Accessible& parent) const;
    void addAllOf(const Accessible& window, std::vector<Accessible>& found) const;

    QTemporaryDir m_folder;
    QProcess m_sessionBus;
    QProcess m_launcher; ///< of the bus for accessibility, whose address it tells on the session's bus
    QProcess m_registry; ///< where programs say that they are there
};
