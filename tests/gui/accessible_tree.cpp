#include "tests/gui/accessible_tree.h"

#include "tests/gui/desk.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <algorithm>

namespace schemlet {

namespace {

constexpr auto connectionName = "accessibility";
constexpr auto itself = "org.a11y.atspi.Accessible";

/// The first value of the answer.
QVariant ask(const Accessible& accessible, const QString& interface, const QString& method,
             const QVariantList& words = {})
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(accessible.service, accessible.path.path(), interface, method);
    question.setArguments(words);
    return QDBusConnection(connectionName).call(question).arguments().value(0);
}

QVariant property(const Accessible& accessible, const QString& interface, const QString& name)
{
    return ask(accessible, "org.freedesktop.DBus.Properties", "Get", {interface, name}).value<QDBusVariant>().variant();
}

void collect(const Accessible& one, bool closedMenusToo, std::vector<Accessible>& found)
{
    found.push_back(one);
    if (closedMenusToo || one.is(Accessible::showing) || one.role != "popup menu") {
        for (const Accessible& child : one.children()) {
            collect(child, closedMenusToo, found);
        }
    }
}

} // namespace

QString Accessible::description() const
{
    return property(*this, itself, "Description").toString();
}

double Accessible::value() const
{
    return property(*this, "org.a11y.atspi.Value", "CurrentValue").toDouble();
}

QRect Accessible::placeOnScreen() const
{
    constexpr uint onScreen = 0;
    return qdbus_cast<QRect>(ask(*this, "org.a11y.atspi.Component", "GetExtents", {onScreen}));
}

std::vector<Accessible> Accessible::children() const
{
    using Reference = std::pair<QString, QDBusObjectPath>;
    std::vector<Accessible> found;
    for (const auto& [itsService, itsPath] : qdbus_cast<QList<Reference>>(ask(*this, itself, "GetChildren"))) {
        Accessible& child = found.emplace_back(Accessible{itsService, itsPath, window, name});
        child.role = ask(child, itself, "GetRoleName").toString();
        child.name = property(child, itself, "Name").toString();
        child.states = qdbus_cast<QList<uint>>(ask(child, itself, "GetState")).value(0);
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
    waitUntil("the accessibility bus", [&] {
        const QString address = bus.call(question).arguments().value(0).toString();
        return QDBusConnection::connectToBus(address, connectionName).isConnected();
    });
    QDBusConnection::disconnectFromBus("session");
    // That bus would start it too, but not end it.
    m_registry.start("/usr/libexec/at-spi2-registryd", QStringList());
    waitForLine(m_registry);
}

AccessibilityBus::~AccessibilityBus()
{
    QDBusConnection::disconnectFromBus(connectionName);
    for (QProcess* const process : {&m_registry, &m_launcher, &m_sessionBus}) {
        end(*process);
    }
}

std::vector<Accessible> AccessibilityBus::windows() const
{
    const QDBusObjectPath desktop("/org/a11y/atspi/accessible/root");
    std::vector<Accessible> found;
    for (const Accessible& program : Accessible{"org.a11y.atspi.Registry", desktop}.children()) {
        for (Accessible& window : program.children()) {
            window.window = window.name;
            found.push_back(window);
        }
    }
    return found;
}

std::vector<Accessible> AccessibilityBus::everything() const
{
    std::vector<Accessible> found;
    for (const Accessible& window : windows()) {
        collect(window, true, found);
    }
    return found;
}

Accessible AccessibilityBus::windowInFront() const
{
    const std::vector<Accessible> all = windows();
    const auto found = std::ranges::find_if(all, [](const Accessible& each) { return each.is(Accessible::active); });
    return found == all.end() ? Accessible() : *found;
}

std::vector<Accessible> AccessibilityBus::inFront() const
{
    std::vector<Accessible> found;
    collect(windowInFront(), false, found);
    return found;
}

} // namespace schemlet
