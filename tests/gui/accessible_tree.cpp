#include "tests/gui/accessible_tree.h"

#include "tests/gui/desk.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>

namespace schemlet {

namespace {

constexpr auto connectionName = "accessibility";
constexpr auto itself = "org.a11y.atspi.Accessible";

QDBusPendingCall ask(const Accessible& accessible, const QString& interface, const QString& method,
                     const QVariantList& words = {})
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(accessible.service, accessible.path.path(), interface, method);
    question.setArguments(words);
    return QDBusConnection(connectionName).asyncCall(question);
}

QDBusPendingCall askProperty(const Accessible& accessible, const QString& interface, const QString& name)
{
    return ask(accessible, "org.freedesktop.DBus.Properties", "Get", {interface, name});
}

/// The first value of the answer; none if what was asked is gone.
QVariant answer(QDBusPendingCall call)
{
    call.waitForFinished();
    const QVariant value = call.reply().arguments().value(0);
    return value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
}

/// These with all that is in them, the last one first, but each before what is in it.
std::vector<Accessible> contents(const AccessibilityBus& bus, std::vector<Accessible> open, bool closedMenus)
{
    std::vector<Accessible> found;
    while (!open.empty()) {
        const Accessible next = found.emplace_back(open.back());
        open.pop_back();
        if (closedMenus || next.showing() || next.role != "popup menu") {
            const std::vector<Accessible> children = bus.childrenOf(next);
            open.insert(open.end(), children.rbegin(), children.rend());
        }
    }
    return found;
}

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
    return contents(*this, windows(), true);
}

std::vector<Accessible> AccessibilityBus::inFront() const
{
    std::vector<Accessible> open = windows();
    std::erase_if(open, [](const Accessible& window) { return !window.inFront; });
    return contents(*this, open, false);
}

std::vector<Accessible> AccessibilityBus::windows() const
{
    const QDBusObjectPath desktop("/org/a11y/atspi/accessible/root");
    std::vector<Accessible> found;
    for (const Accessible& program : childrenOf({"org.a11y.atspi.Registry", desktop})) {
        for (Accessible window : childrenOf(program)) {
            window.window = window.name;
            window.inFront = window.active();
            found.push_back(window);
        }
    }
    return found;
}

QString AccessibilityBus::description(const Accessible& accessible) const
{
    return answer(askProperty(accessible, itself, "Description")).toString();
}

double AccessibilityBus::value(const Accessible& accessible) const
{
    return answer(askProperty(accessible, "org.a11y.atspi.Value", "CurrentValue")).toDouble();
}

QRect AccessibilityBus::place(const Accessible& accessible) const
{
    constexpr uint onScreen = 0;
    return qdbus_cast<QRect>(answer(ask(accessible, "org.a11y.atspi.Component", "GetExtents", {onScreen})));
}

std::vector<Accessible> AccessibilityBus::childrenOf(const Accessible& parent) const
{
    using Reference = std::pair<QString, QDBusObjectPath>;
    std::vector<Accessible> children;
    std::vector<std::array<QDBusPendingCall, 3>> calls; // all at once, which saves most of the way back and forth
    for (const auto& [service, path] : qdbus_cast<QList<Reference>>(answer(ask(parent, itself, "GetChildren")))) {
        children.push_back({.service = service, .path = path, .window = parent.window, .parent = parent.name});
        const Accessible& child = children.back();
        calls.push_back(
            {ask(child, itself, "GetRoleName"), askProperty(child, itself, "Name"), ask(child, itself, "GetState")});
    }
    for (std::size_t i = 0; i < children.size(); ++i) {
        children[i].role = answer(calls[i][0]).toString();
        children[i].name = answer(calls[i][1]).toString();
        children[i].state = qdbus_cast<QList<uint>>(answer(calls[i][2])).value(0);
        children[i].inFront = parent.inFront;
    }
    return children;
}

} // namespace schemlet
