#pragma once

#include <QProcess>
#include <functional>

namespace schemlet {

inline constexpr int patience = 15000; // milliseconds, for a busy machine; nothing waits that long by design

/// Waits for the first line of a process that says so when it is ready.
QByteArray waitForLine(QProcess& process);
void end(QProcess& process);

/// Waits until a condition holds; ends the test with these words if it never does.
void waitUntil(const char* what, const std::function<bool()>& condition);

/// A screen of our own: an X server without a monitor and a window manager on it, ended with this object. Must be made
/// before the application object, which then looks at the same screen.
class Desk {
public:
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

private:
    QProcess m_server;
    QProcess m_manager;
};

} // namespace schemlet
