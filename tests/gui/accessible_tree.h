#pragma once

#include "tests/gui/desk.h"

#include <QDBusObjectPath>
#include <QRect>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>
#include <vector>

namespace schemlet {

/// One thing that a program tells assistive programs about.
struct Accessible {
    enum State { active = 1, checked = 4, showing = 25 };

    QString service = "org.a11y.atspi.Registry"; ///< where to ask for the rest
    QDBusObjectPath path{"/org/a11y/atspi/null"};

    [[nodiscard]] QString role() const { return ask(itself, "GetRoleName").toString(); }
    [[nodiscard]] QString name() const { return property(itself, "Name").toString().simplified(); }
    [[nodiscard]] QString description() const { return property(itself, "Description").toString(); }
    [[nodiscard]] bool is(State state) const;
    [[nodiscard]] QRect placeOnScreen() const;
    [[nodiscard]] std::vector<Accessible> children() const;
    /// With everything that is in it; from the outside in, what comes first on the screen first. Menus that are closed
    /// hold much, and are rarely asked for.
    [[nodiscard]] std::vector<Accessible> contents(bool closedMenusToo = false) const;

private:
    static constexpr auto itself = "org.a11y.atspi.Accessible";

    /// The first value of the answer.
    [[nodiscard]] QVariant ask(const QString& interface, const QString& method, const QVariantList& words = {}) const;
    [[nodiscard]] QVariant property(const QString& interface, const QString& name) const;
};

/// A screen reader's view of the programs that are started while it lives: a bus of their own, on which they tell what
/// is in their windows.
class AccessibilityBus {
public:
    AccessibilityBus();

    /// All windows, shown or not.
    [[nodiscard]] std::vector<Accessible> windows() const;
    /// The one that has the keyboard, if one has it.
    [[nodiscard]] Accessible windowInFront() const;

private:
    QTemporaryDir m_folder;
    Process m_sessionBus;
    Process m_launcher; ///< of the bus for accessibility, whose address it tells on the session's bus
    Process m_registry; ///< where programs say that they are there
};

} // namespace schemlet
