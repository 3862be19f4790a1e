#pragma once

#include <QProcess>
#include <functional>

namespace schemlet {

inline constexpr int patience = 15000; // milliseconds, for a busy machine; nothing waits that long by design

/// Waits for the first line of a process that says so when it is ready.
QByteArray waitForLine(QProcess& process);
void end(QProcess& process);

/// Ended with this object.
struct Process : QProcess {
    ~Process() override { end(*this); }
};

/// Waits until a condition holds; ends the test with these words and a picture of the screen if it never does.
void waitUntil(const char* what, const std::function<bool()>& condition);

/// A screen of our own: an X server without a monitor and a window manager on it, ended with this object. Must be made
/// before the application object, which then looks at the same screen.
class Desk {
public:
    Desk();

private:
    Process m_server;
    Process m_manager;
};

} // namespace schemlet
