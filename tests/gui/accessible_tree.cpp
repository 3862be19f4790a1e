#include "tests/gui/accessible_tree.h"

#include "tests/gui/desk.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

namespace {

constexpr auto connectionName = "accessibility";
constexpr auto itself = "org.a11y.atspi.Accessible";

} // namespace

AccessibilityBus::AccessibilityBus()
{
    const QString session = "unix:path=" + m_folder.filePath("session");
    m_sessionBus.start("dbus-daemon", {"--session", "--nofork", "--print-address", "--address=" + session});
    waitForLine(m_sessionBus);
    qputenv("DBUS_SESSION_BUS_ADDRESS", session.toUtf8());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", m_folder.path()); // for the socket of the other bus
    environment.insert("GSETTINGS_BACKEND", "memory");
    m_launcher.setProcessEnvironment(environment);
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

std::vector<Accessible> AccessibilityBus::everything() const
{
    const QDBusObjectPath desktop("/org/a11y/atspi/accessible/root");
    std::vector<Accessible> found;
    std::vector<Accessible> open;
    for (const Accessible& program : childrenOf({"org.a11y.atspi.Registry", desktop})) {
        const std::vector<Accessible> windows = childrenOf(program);
        open.insert(open.end(), windows.begin(), windows.end());
    }
    while (!open.empty()) {
        Accessible next = open.back();
        open.pop_back();
        next.role = ask(next, itself, "GetRoleName").toString();
        next.name = property(next, itself, "Name").toString();
        next.state = qdbus_cast<QList<uint>>(ask(next, itself, "GetState")).value(0);
        if (next.window.isEmpty()) {
            next.window = next.name;
            next.inFront = next.active();
        }
        found.push_back(next);
        const std::vector<Accessible> children = childrenOf(next);
        open.insert(open.end(), children.rbegin(), children.rend());
    }
    return found;
}

QString AccessibilityBus::description(const Accessible& accessible) const
{
    return property(accessible, itself, "Description").toString();
}

double AccessibilityBus::value(const Accessible& accessible) const
{
    return property(accessible, "org.a11y.atspi.Value", "CurrentValue").toDouble();
}

QRect AccessibilityBus::place(const Accessible& accessible) const
{
    constexpr uint onScreen = 0;
    return qdbus_cast<QRect>(ask(accessible, "org.a11y.atspi.Component", "GetExtents", {onScreen}));
}

/// The first value of the answer; none if what was asked is gone.
QVariant AccessibilityBus::ask(const Accessible& accessible, const QString& interface, const QString& method,
                               const QVariantList& words) const
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(accessible.service, accessible.path.path(), interface, method);
    question.setArguments(words);
    return QDBusConnection(connectionName).call(question).arguments().value(0);
}

QVariant AccessibilityBus::property(const Accessible& accessible, const QString& interface, const QString& name) const
{
    return ask(accessible, "org.freedesktop.DBus.Properties", "Get", {interface, name}).value<QDBusVariant>().variant();
}

std::vector<Accessible> AccessibilityBus::childrenOf(const Accessible& parent) const
{
    using Reference = std::pair<QString, QDBusObjectPath>;
    std::vector<Accessible> children;
    for (const auto& [service, path] : qdbus_cast<QList<Reference>>(ask(parent, itself, "GetChildren"))) {
        children.push_back({.service = service,
                            .path = path,
                            .window = parent.window,
                            .parent = parent.name,
                            .inFront = parent.inFront});
    }
    return children;
}
