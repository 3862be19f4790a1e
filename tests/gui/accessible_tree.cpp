#include "tests/gui/accessible_tree.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <algorithm>
#include <iterator>

namespace schemlet {

constexpr auto connectionName = "accessibility";

QVariant Accessible::ask(const QString& interface, const QString& method, const QVariantList& words) const
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, path.path(), interface, method);
    question.setArguments(words);
    return QDBusConnection(connectionName).call(question).arguments().value(0);
}

QVariant Accessible::property(const QString& interface, const QString& name) const
{
    return ask("org.freedesktop.DBus.Properties", "Get", {interface, name}).value<QDBusVariant>().variant();
}

bool Accessible::is(State state) const
{
    return (qdbus_cast<QList<uint>>(ask(itself, "GetState")).value(0) >> state & 1U) != 0;
}

QRect Accessible::placeOnScreen() const
{
    constexpr uint onScreen = 0;
    return qdbus_cast<QRect>(ask("org.a11y.atspi.Component", "GetExtents", {onScreen}));
}

std::vector<Accessible> Accessible::children() const
{
    std::vector<Accessible> found;
    using Reference = std::pair<QString, QDBusObjectPath>;
    for (const auto& [itsService, itsPath] : qdbus_cast<QList<Reference>>(ask(itself, "GetChildren"))) {
        found.push_back({itsService, itsPath});
    }
    return found;
}

std::vector<Accessible> Accessible::contents(bool closedMenusToo) const
{
    std::vector<Accessible> found;
    for (std::vector<Accessible> open{*this}; !open.empty();) {
        const Accessible next = found.emplace_back(open.back());
        open.pop_back();
        if (closedMenusToo || next.role() != "popup menu" || next.is(showing)) {
            const std::vector<Accessible> children = next.children();
            open.insert(open.end(), children.rbegin(), children.rend());
        }
    }
    return found;
}

AccessibilityBus::AccessibilityBus()
{
    const QString session = "unix:path=" + m_folder.filePath("session");
    m_sessionBus.start("dbus-daemon", {"--session", "--nofork", "--print-address", "--address=" + session});
    waitForLine(m_sessionBus);
    qputenv("DBUS_SESSION_BUS_ADDRESS", session.toUtf8());
    qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8()); // for the socket of the other bus
    qputenv("GSETTINGS_BACKEND", "memory");
    m_launcher.start("/usr/libexec/at-spi-bus-launcher", {"--launch-immediately"});
    const QDBusConnection bus = QDBusConnection::connectToBus(session, "session");
    const auto question = QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
    QDBusConnection::disconnectFromBus(connectionName); // an earlier one
    waitUntil("the accessibility bus", [&] {
        const QString address = bus.call(question).arguments().value(0).toString();
        return QDBusConnection::connectToBus(address, connectionName).isConnected();
    });
    QDBusConnection::disconnectFromBus("session");
    // That bus would start it too, but not end it.
    m_registry.start("/usr/libexec/at-spi2-registryd", QStringList());
    waitForLine(m_registry);
}

std::vector<Accessible> AccessibilityBus::windows() const
{
    std::vector<Accessible> found;
    const Accessible desktop{.path = QDBusObjectPath("/org/a11y/atspi/accessible/root")};
    for (const Accessible& program : desktop.children()) {
        std::ranges::copy(program.children(), std::back_inserter(found));
    }
    return found;
}

Accessible AccessibilityBus::windowInFront() const
{
    const std::vector<Accessible> all = windows();
    const auto found = std::ranges::find_if(all, [](const Accessible& each) { return each.is(Accessible::active); });
    return found == all.end() ? Accessible() : *found;
}

} // namespace schemlet
