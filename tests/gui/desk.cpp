#include "tests/gui/desk.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <csignal>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

constexpr int patience = 15000; // milliseconds, for a busy machine; nothing waits that long by design

QString outputOf(const QString& program, const QStringList& words)
{
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished(patience)) << program.toStdString() << ' ' << words.join(' ').toStdString();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// Where a window is on the screen, without its frame.
QRect placeOf(const QString& window)
{
    const QString place = outputOf("xwininfo", {"-id", window});
    const auto number = [&](const char* label) {
        return place.section(label, 1).trimmed().section('\n', 0, 0).toInt();
    };
    return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"), number("Height:")};
}

QImage grab(const QRect& part)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, part.x(), part.y(), part.width(), part.height()).toImage();
}

} // namespace

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

Desk::Desk()
{
    m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
    const QByteArray number = waitForLine(m_server);
    qputenv("DISPLAY", ":" + number);
    qputenv("QT_QPA_PLATFORM", "xcb");
    denySessionBus();
    // A window that opens while the manager still starts may never be shown.
    m_manager.start("openbox", {"--startup", "echo ready"});
    waitForLine(m_manager);
}

Desk::~Desk()
{
    end(m_manager);
    end(m_server);
}

void Desk::denySessionBus()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

void waitUntil(const char* what, const std::function<bool()>& condition)
{
    if (!QTest::qWaitFor(condition, patience)) {
        throw std::runtime_error(std::string("never came: ") + what);
    }
}

Program::Program(Stage until, const QString& folder, const QStringList& launcher)
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", m_home.path());
    for (const char* const elsewhere : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
        environment.remove(elsewhere);
    }
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(folder.isEmpty() ? m_home.path() : folder);
    const QStringList command = launcher + QStringList(SCHEMLET_PROGRAM);
    m_process.start(command.first(), command.mid(1));
    waitForWindow("Schemlet 2.0");
    if (until != Stage::splash) {
        waitForHelp();
    }
    if (until == Stage::drawing) {
        EXPECT_EQ(QProcess::execute("wmctrl", {"-F", "-c", "Help"}), 0);
        waitUntil("the help window's end", [this] { return visibleWindow("Help").isEmpty(); });
        xdotool({"windowmove", m_window, "40", "40"});
        findCanvas();
    }
}

void Program::waitForHelp()
{
    waitForMainWindow();
    m_window = visibleWindow(mainTitle);
    waitUntil("the help window", [this] { return !visibleWindow("Help").isEmpty(); });
    findCanvas();
}

QString Program::visibleWindow(const QString& title) const
{
    return outputOf("xdotool", {"search", "--onlyvisible", "--name", "^" + title + "$"});
}

int Program::heightOf(const QString& title) const
{
    const QString shape = outputOf("xdotool", {"getwindowgeometry", "--shell", visibleWindow(title)});
    return shape.section("HEIGHT=", 1).section('\n', 0, 0).toInt();
}

Program::~Program()
{
    if (m_process.state() != QProcess::NotRunning) {
        end(m_process);
    }
}

void Program::findCanvas()
{
    waitUntil("a white canvas under the menu bar", [this] {
        const QRect window = placeOf(m_window);
        const QImage picture = grab(window);
        int top = 0;
        while (top < picture.height() && picture.pixelColor(1, top) != Qt::white) {
            ++top;
        }
        int bottom = top;
        while (bottom < picture.height() && picture.pixelColor(1, bottom) == Qt::white) {
            ++bottom;
        }
        m_canvas = QRect(window.left(), window.top() + top, window.width(), bottom - top);
        return top > 0 && m_canvas.height() > 100;
    });
}

void Program::xdotool(const QStringList& words)
{
    EXPECT_EQ(QProcess::execute("xdotool", words), 0) << words.join(' ').toStdString();
}

void Program::keys(std::initializer_list<const char*> keys)
{
    QStringList words{"key", "--delay", "10"};
    for (const char* const key : keys) {
        words << key;
    }
    xdotool(words);
}

void Program::type(const QString& text)
{
    xdotool({"type", "--delay", "5", text});
}

void Program::keyTimes(int times, const char* key)
{
    xdotool({"key", "--delay", "2", "--repeat", QString::number(times), key});
}

void Program::moveMouse(int x, int y)
{
    const QPoint place = m_canvas.topLeft() + QPoint(x, y);
    xdotool({"mousemove", QString::number(place.x()), QString::number(place.y())});
}

void Program::press(int button)
{
    xdotool({"mousedown", QString::number(button)});
}

void Program::release(int button)
{
    xdotool({"mouseup", QString::number(button)});
}

void Program::click(int button, int x, int y)
{
    moveMouse(x, y);
    press(button);
    release(button);
}

void Program::drag(int x1, int y1, int x2, int y2)
{
    moveMouse(x1, y1);
    press(1);
    moveMouse((x1 + x2) / 2, (y1 + y2) / 2);
    moveMouse(x2, y2);
    release(1);
}

void Program::openPopup(int x, int y)
{
    const QRect spot(x + 4, y + 4, 80, 40);
    const QImage before = canvas().copy(spot);
    click(3, x, y);
    waitUntil("the popup menu", [&] { return canvas().copy(spot) != before; });
}

void Program::resize(int width, int height)
{
    xdotool({"windowsize", "--sync", m_window, QString::number(width), QString::number(height)});
    waitUntil("the new size", [&] {
        findCanvas();
        return m_canvas.width() == width;
    });
}

void Program::activate()
{
    xdotool({"windowactivate", m_window});
    waitForMainWindow();
}

QRect Program::panel() const
{
    const QImage picture = canvas();
    const auto paper = [&](int x, int y) { return picture.pixelColor(x, y) == Qt::white; };
    const QPoint corner(picture.width() - 3, picture.height() - 3);
    int left = corner.x();
    while (left > 0 && !paper(left, corner.y())) {
        --left;
    }
    int top = corner.y();
    while (top > 0 && !paper(corner.x(), top)) {
        --top;
    }
    return left == corner.x() ? QRect() : QRect(QPoint(left, top), corner);
}

QImage Program::canvas() const
{
    return grab(m_canvas);
}

QColor Program::pixel(int x, int y) const
{
    return grab({m_canvas.topLeft() + QPoint(x, y), QSize(1, 1)}).pixelColor(0, 0);
}

void Program::waitForWindow(const QString& title)
{
    waitUntil(qPrintable(title), [&] {
        return outputOf("xdotool", {"getactivewindow", "getwindowname"}) == title.trimmed();
    });
}

QImage Program::activeWindow() const
{
    return grab(placeOf(outputOf("xdotool", {"getactivewindow"})));
}

void Program::closeActiveWindow()
{
    EXPECT_EQ(QProcess::execute("wmctrl", {"-c", ":ACTIVE:"}), 0);
}

int Program::close()
{
    closeActiveWindow();
    waitForWindow("Schemlet 2.0");
    keys({"n"}); // nothing is to be saved
    return exitStatus();
}

QStringList Program::filesAtHome() const
{
    return QDir(m_home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void Program::signal(int number)
{
    EXPECT_EQ(kill(static_cast<pid_t>(m_process.processId()), number), 0);
}

int Program::exitStatus()
{
    EXPECT_TRUE(m_process.waitForFinished(patience)) << "the program does not end";
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}
