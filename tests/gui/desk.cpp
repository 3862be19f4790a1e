#include "tests/gui/desk.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <stdexcept>

namespace schemlet {

QByteArray waitForLine(QProcess& process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(patience)) {
            throw std::runtime_error(process.program().toStdString() + " does not start");
        }
    }
    return process.readLine().trimmed();
}

void end(QProcess& process)
{
    process.terminate();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished(patience);
    }
}

void waitUntil(const char* what, const std::function<bool()>& condition)
{
    if (!QTest::qWaitFor(condition, patience)) {
        const QString picture =
            QString("%1/screen-%2.png").arg(QDir::tempPath()).arg(QCoreApplication::applicationPid());
        QGuiApplication::primaryScreen()->grabWindow().save(picture);
        throw std::runtime_error(std::string("timed out waiting for: ") + what + "; the screen is in " +
                                 picture.toStdString());
    }
}

Desk::Desk()
{
    const QString screen = "1280x1024x" + qEnvironmentVariable("SCREEN_BITS", "24"); // of a pixel
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp", "-noreset"});
    const QByteArray number = waitForLine(m_server);
    qputenv("DISPLAY", ":" + number);
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Otherwise a session bus would be started for this display, and would outlive it.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    // A window that opens before the window manager is ready may never be shown.
    m_manager.start("openbox", {"--startup", "echo ready"});
    waitForLine(m_manager);
}

} // namespace schemlet
