#include "tests/gui/program.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QRasterWindow>
#include <QRegularExpression>
#include <QScreen>
#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace schemlet {

namespace {

constexpr auto splashTitle = "Schemlet 2.0";
constexpr auto mainTitle = "- Schemlet 2.0 New File";

QString outputOf(const QString& program, const QStringList& words)
{
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished(patience)) << program.toStdString() << ' ' << words.join(' ').toStdString();
    return QString::fromUtf8(process.readAllStandardOutput()).simplified();
}

class Cover : public QRasterWindow {
public:
    static constexpr Qt::GlobalColor color = Qt::red;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).fillRect(0, 0, width(), height(), color); }
};

} // namespace

Program::Program(Stage until)
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    qputenv("HOME", m_home.path().toUtf8());
    for (const char* const elsewhere : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
        qunsetenv(elsewhere);
    }
    m_process.setWorkingDirectory(m_home.path());
    m_process.start(SCHEMLET_PROGRAM, QStringList());
    if (until == Stage::splash) {
        waitForWindow(splashTitle);
        return;
    }
    waitUntil("the splash's end", [this] {
        const QString title = m_bus.windowInFront().name();
        if (title == splashTitle) {
            keys("Escape");
        }
        return title == mainTitle;
    });
    waitForHelp();
    waitUntil("the help window's frame", [] { return close("Help"); });
    waitUntil("the help window's end", [this] { return !isOpen("Help"); });
    xdotool("windowmove " + m_window + " 40 40");
    waitUntil("the main window in its place", [this] {
        findCanvas();
        return m_canvas.left() == 40;
    });
}

void Program::waitForHelp()
{
    waitForMainWindow();
    waitUntil("the help window", [this] { return isOpen("Help"); });
    m_window = outputOf("xdotool", {"getactivewindow"});
    findCanvas();
}

void Program::xdotool(const QString& words)
{
    EXPECT_EQ(QProcess::execute("xdotool", words.split(' ')), 0) << words.toStdString();
}

void Program::keys(const QString& names, int times)
{
    xdotool(QString("key --delay 5 --repeat %1 %2").arg(times).arg(names));
}

void Program::open(const QString& names, const QString& title)
{
    keys(names);
    waitForWindow(title);
}

void Program::moveMouse(int x, int y)
{
    const QPoint place = m_canvas.topLeft() + QPoint(x, y);
    xdotool(QString("mousemove %1 %2").arg(place.x()).arg(place.y()));
}

void Program::click(int button, int x, int y)
{
    moveMouse(x, y);
    xdotool(QString("click %1").arg(button));
}

void Program::drag(int x1, int y1, int x2, int y2)
{
    moveMouse(x1, y1);
    xdotool("mousedown 1");
    moveMouse((x1 + x2) / 2, (y1 + y2) / 2);
    moveMouse(x2, y2);
    xdotool("mouseup 1");
}

void Program::resize(int width, int height)
{
    xdotool(QString("windowsize %1 %2 %3").arg(m_window).arg(width).arg(height));
    waitUntil("the new size", [&] {
        findCanvas();
        return m_canvas.width() == width;
    });
}

void Program::activate()
{
    xdotool("windowactivate " + m_window);
    waitForMainWindow();
}

QImage Program::canvas() const
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, m_canvas.x(), m_canvas.y(), m_canvas.width(), m_canvas.height())
        .toImage();
}

QImage Program::uncoveredCanvas() const
{
    Cover cover;
    cover.setFlags(Qt::BypassWindowManagerHint | Qt::Tool);
    cover.setGeometry(m_canvas);
    cover.show();
    const auto isSeen = [](const QImage& canvas) {
        return canvas.pixelColor(canvas.rect().center()) == Cover::color ||
               canvas.pixelColor(canvas.rect().topLeft()) == Cover::color;
    };
    waitUntil("the cover", [&] { return isSeen(canvas()); });
    cover.hide();
    QImage seen;
    waitUntil("the cover's end", [&] { return !isSeen(seen = canvas()); });
    return seen;
}

std::optional<Accessible> Program::find(const char* role, const QString& name) const
{
    const auto wanted = QRegularExpression::fromWildcard(name);
    const std::vector<Accessible> all = m_bus.windowInFront().contents();
    const auto found = std::ranges::find_if(all, [&](const Accessible& each) {
        return each.role() == role && wanted.match(each.name()).hasMatch() && each.is(Accessible::showing);
    });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

QRect Program::placeOf(const char* role, const QString& name) const
{
    QRect place;
    waitUntil(qPrintable(role + (": " + name)), [&] {
        const std::optional<Accessible> found = find(role, name);
        const QRect last = std::exchange(place, found ? found->placeOnScreen() : QRect());
        return !place.isEmpty() && place == last; // it no longer moves
    });
    return place;
}

void Program::hoverOver(const char* role, const QString& name)
{
    const QPoint place = placeOf(role, name).center();
    xdotool(QString("mousemove %1 %2 mousemove_relative 1 0").arg(place.x()).arg(place.y()));
}

void Program::clickOn(const char* role, const QString& name)
{
    hoverOver(role, name);
    xdotool("click 1");
}

void Program::clickMenus(const QStringList& captions)
{
    for (const QString& caption : captions) {
        clickOn("menu item", caption);
    }
}

void Program::waitForWindow(const QString& title) const
{
    waitUntil(qPrintable(title), [&] { // until the program and the window manager agree
        return m_bus.windowInFront().name() == title &&
               outputOf("xdotool", {"getactivewindow", "getwindowname"}) == title;
    });
}

void Program::waitForMainWindow() const
{
    waitForWindow(mainTitle);
}

void Program::answer(const QString& title, const char* key)
{
    waitForWindow(title);
    keys(key);
    waitForMainWindow();
}

bool Program::isOpen(const QString& title) const
{
    return std::ranges::any_of(m_bus.windows(), [&](const Accessible& window) {
        return window.is(Accessible::showing) && window.name() == title;
    });
}

int Program::exitStatus()
{
    EXPECT_TRUE(m_process.waitForFinished(patience)) << "the program does not end";
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

} // namespace schemlet
