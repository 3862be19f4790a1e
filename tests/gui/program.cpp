#include "tests/gui/program.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <algorithm>
#include <csignal>
#include <exception>
#include <gtest/gtest.h>
#include <iostream>
#include <string_view>
#include <utility>

namespace schemlet {

namespace {

QString outputOf(const QString& program, const QStringList& words)
{
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished(patience)) << program.toStdString() << ' ' << words.join(' ').toStdString();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

} // namespace

Program::Program(Stage until, const QString& folder)
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", m_home.path());
    for (const char* const elsewhere : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
        environment.remove(elsewhere);
    }
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(folder.isEmpty() ? m_home.path() : folder);
    m_process.start(SCHEMLET_PROGRAM, QStringList());
    if (until == Stage::splash) {
        waitForWindow(splashTitle);
        return;
    }
    waitUntil("the main window", [this] {
        const QString title = titleInFront();
        if (title == splashTitle) {
            keys({"Escape"});
        }
        return title == mainTitle;
    });
    waitForHelp();
    if (until == Stage::drawing) {
        waitUntil("the help window's frame", [] { return QProcess::execute("wmctrl", {"-F", "-c", "Help"}) == 0; });
        waitUntil("the help window's end", [this] { return !isOpen("Help"); });
        xdotool({"windowmove", m_window, "40", "40"});
        waitUntil("the main window in its place", [this] {
            findCanvas();
            return m_canvas.left() == 40;
        });
    }
}

void Program::waitForHelp()
{
    waitForMainWindow();
    waitUntil("the help window", [this] { return isOpen("Help"); });
    m_window = outputOf("xdotool", {"getactivewindow"});
    findCanvas();
}

void Program::findCanvas()
{
    m_canvas = placeOf("canvas", "Canvas");
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
    xdotool({"type", "--delay", "5", "--", text});
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

void Program::click(int button, int x, int y)
{
    moveMouse(x, y);
    xdotool({"click", QString::number(button)});
}

void Program::drag(int x1, int y1, int x2, int y2)
{
    moveMouse(x1, y1);
    xdotool({"mousedown", "1"});
    moveMouse((x1 + x2) / 2, (y1 + y2) / 2);
    moveMouse(x2, y2);
    xdotool({"mouseup", "1"});
}

void Program::openPopup(int x, int y)
{
    click(3, x, y);
    (void)placeOf("menu item", "Fore Color");
}

void Program::resize(int width, int height)
{
    xdotool({"windowsize", m_window, QString::number(width), QString::number(height)});
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

QImage Program::screen(const QRect& part) const
{
    return QGuiApplication::primaryScreen()->grabWindow(0, part.x(), part.y(), part.width(), part.height()).toImage();
}

QColor Program::pixel(int x, int y) const
{
    return screen({m_canvas.topLeft() + QPoint(x, y), QSize(1, 1)}).pixelColor(0, 0);
}

std::optional<Accessible> Program::find(const char* role, const QString& name) const
{
    const auto wanted = QRegularExpression::fromWildcard(name);
    const std::vector<Accessible> all = m_bus.inFront();
    const auto found = std::ranges::find_if(all, [&](const Accessible& each) {
        return each.showing() && each.role == role && wanted.match(each.name.simplified()).hasMatch();
    });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

QRect Program::placeOf(const char* role, const QString& name) const
{
    QRect place;
    waitUntil(qPrintable(role + (": " + name)), [&] {
        const std::optional<Accessible> found = find(role, name);
        const QRect last = std::exchange(place, found ? m_bus.place(*found) : QRect());
        return !place.isEmpty() && place == last; // it no longer moves
    });
    return place;
}

void Program::hoverOver(const char* role, const QString& name)
{
    const QPoint place = placeOf(role, name).center();
    xdotool({"mousemove", QString::number(place.x()), QString::number(place.y()), "mousemove_relative", "1", "0"});
}

void Program::clickOn(const char* role, const QString& name)
{
    hoverOver(role, name);
    xdotool({"click", "1"});
}

void Program::clickMenus(const QStringList& captions)
{
    for (const QString& caption : captions) {
        clickOn("menu item", caption);
    }
}

void Program::openMenu(int place)
{
    keys({"alt+f"});
    for (; place != 0; place += place > 0 ? -1 : 1) {
        keys({place > 0 ? "Right" : "Left"});
    }
}

void Program::waitForMark(const char* menu, const char* item, bool checked) const
{
    waitUntil(item, [&] {
        return std::ranges::any_of(m_bus.everything(), [&](const Accessible& each) {
            return each.parent == menu && each.name == item && each.checked() == checked;
        });
    });
}

QString Program::titleInFront() const
{
    const std::vector<Accessible> windows = m_bus.windows();
    const auto found = std::ranges::find_if(windows, &Accessible::inFront);
    return found == windows.end() ? QString() : found->name;
}

void Program::waitForWindow(const QString& title) const
{
    waitUntil(qPrintable(title), [&] { // until the program and the window manager agree
        return titleInFront().trimmed() == title.trimmed() &&
               outputOf("xdotool", {"getactivewindow", "getwindowname"}) == title.trimmed();
    });
}

void Program::answer(const QString& title, const char* key)
{
    waitForWindow(title);
    keys({key});
    waitForMainWindow();
}

void Program::expect(const Outcome& outcome)
{
    if (outcome.window != nullptr) {
        waitForWindow(outcome.window);
    }
    if (outcome.text != nullptr) {
        waitForText(outcome.text);
    }
    if (outcome.window == nullptr) {
        return;
    }
    keys({"Escape"});
    if (std::string_view(outcome.window) == "Save") {
        waitForText("Unkown error while saving file");
        keys({"Escape"});
    }
    waitForMainWindow();
}

bool Program::isOpen(const QString& title) const
{
    return std::ranges::any_of(m_bus.windows(), [&](const Accessible& window) {
        return window.showing() && window.name.trimmed() == title.trimmed();
    });
}

void Program::closeActiveWindow()
{
    EXPECT_EQ(QProcess::execute("wmctrl", {"-c", ":ACTIVE:"}), 0);
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

Program::Witness::~Witness()
{
    if (std::uncaught_exceptions() == 0) {
        return;
    }
    const QString picture = QCoreApplication::applicationDirPath() + "/" +
                            testing::UnitTest::GetInstance()->current_test_info()->name() + ".png";
    QGuiApplication::primaryScreen()->grabWindow().save(picture);
    std::cout << "The screen is in " << qPrintable(picture) << "; in front is";
    for (const Accessible& each : program.m_bus.inFront()) {
        if (each.showing() && !each.name.isEmpty()) {
            std::cout << " [" << qPrintable(each.role + ": " + each.name.simplified()) << ']'
                      << (each.focused() ? " with the focus" : "");
        }
    }
    std::cout << std::endl;
}

} // namespace schemlet
