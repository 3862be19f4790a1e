#pragma once

#include <QProcess>
#include <functional>

namespace schemlet {

inline constexpr int patience = 15000; // milliseconds; a busy machine needs them

/// Waits for the first line of a process. It writes one when it is ready.
QByteArray waitForLine(QProcess& process);
void end(QProcess& process);

/// A process that ends with this object.
struct Process : QProcess {
    ~Process() override { end(*this); }
};

/// Waits until a condition holds. If it never does, saves a picture of the screen and ends the test with these words.
void waitUntil(const char* what, const std::function<bool()>& condition);

/// A screen for the tests: an X server without a monitor, and a window manager. Create it before the application
/// object, which then uses the same screen.
class Desk {
public:
    Desk();

private:
    Process m_server;
    Process m_manager;
};

} // namespace schemlet
