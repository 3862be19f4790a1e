#include "tests/gui/accessible_tree.h"

#include "tests/gui/desk.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <stdexcept>

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
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", m_folder.path()); // for the socket of the other bus
    environment.insert("GSETTINGS_BACKEND", "memory");
    m_launcher.setProcessEnvironment(environment);
    m_launcher.start("/usr/libexec/at-spi-bus-launcher", {"--launch-immediately"});
    const QDBusConnection sessionBus = QDBusConnection::connectToBus(session, "session");
    QString address;
    waitUntil("the accessibility bus", [&] {
        address =
            sessionBus
                .call(QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"))
                .arguments()
                .value(0)
                .toString();
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
    qunsetenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON");
    Desk::denySessionBus();
}

std::vector<Accessible> AccessibilityBus::everything() const
{
    const Accessible desktop{"org.a11y.atspi.Registry", QDBusObjectPath("/org/a11y/atspi/accessible/root")};
    std::vector<Accessible> found;
    for (const Accessible& program : childrenOf(desktop)) {
        for (const Accessible& window : childrenOf(program)) {
            addAllOf(window, found);
        }
    }
    return found;
}

/// From the outside in, what comes first on the screen first.
void AccessibilityBus::addAllOf(const Accessible& window, std::vector<Accessible>& found) const
{
    const QString title = property(window, "Name");
    std::vector<Accessible> open{window};
    while (!open.empty()) {
        Accessible next = open.back();
        open.pop_back();
        next.role = ask(next, itself, "GetRoleName").toString();
        next.name = property(next, "Name");
        next.window = title;
        found.push_back(next);
        const std::vector<Accessible> children = childrenOf(next);
        open.insert(open.end(), children.rbegin(), children.rend());
    }
}

QString AccessibilityBus::description(const Accessible& accessible) const
{
    return property(accessible, "Description");
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

QString AccessibilityBus::property(const Accessible& accessible, const QString& name) const
{
    return ask(accessible, "org.freedesktop.DBus.Properties", "Get", {itself, name})
        .value<QDBusVariant>()
        .variant()
        .toString();
}

std::vector<Accessible> AccessibilityBus::childrenOf(const Accessible& parent) const
{
    std::vector<Accessible> children;
    const auto list = ask(parent, itself, "GetChildren").value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        Accessible child;
        list.beginStructure();
        list >> child.service >> child.path;
        list.endStructure();
        children.push_back(child);
    }
    return children;
}
