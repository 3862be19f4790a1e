#include "tests/gui/program.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QRasterWindow>
#include <QScreen>
#include <algorithm>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr auto splashTitle = "Schemlet 2.0";
constexpr auto mainTitle = "- Schemlet 2.0 New File";

QString outputOf(const QString& program, const QStringList& words)
{
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished(patience)) << program.toStdString() << ' ' << words.join(' ').toStdString();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QString titleInFront()
{
    return outputOf("xdotool", {"getactivewindow", "getwindowname"}).simplified();
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
        const QString title = titleInFront();
        if (title == splashTitle) {
            keys("Escape");
        }
        return title == mainTitle;
    });
    waitForHelp();
    closeHelp();
}

void Program::waitForHelp()
{
    waitForMainWindow();
    waitUntil("the help window", [] { return isOpen("Help"); });
    m_window = outputOf("xdotool", {"getactivewindow"});
}

void Program::closeHelp()
{
    waitUntil("the help window's frame", [] { return close("Help"); });
    waitUntil("the help window's end", [] { return !isOpen("Help"); });
    xdotool("windowmove " + m_window + " 40 40");
    waitUntil("the main window in its place", [this] {
        findCanvas();
        return m_canvas.left() == 40;
    });
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
    const int bars = heightsOf(mainTitle).value(0) - m_canvas.height();
    xdotool(QString("windowsize %1 %2 %3").arg(m_window).arg(width).arg(height));
    waitUntil("the new size", [&] {
        findCanvas();
        return m_canvas.size() == QSize(width, height - bars);
    });
}

void Program::activate()
{
    xdotool("windowactivate " + m_window);
    waitForMainWindow();
}

void Program::findCanvas()
{
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow().toImage();
    const auto paperEnds = [&screen](QPoint place, QPoint step) {
        while (screen.valid(place + step) && screen.pixelColor(place + step) == Qt::white) {
            place += step;
        }
        return place;
    };
    const QPoint inside(60, 200);
    const QPoint bottom = paperEnds(inside, {0, 1}) - QPoint(0, 4); // below the toolbox and the drawing
    m_canvas.setTopLeft({paperEnds(bottom, {-1, 0}).x(), paperEnds(inside, {0, -1}).y()});
    m_canvas.setBottomRight({paperEnds(bottom, {1, 0}).x(), bottom.y() + 4});
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

void Program::waitForWindow(const QString& title) const
{
    waitUntil(qPrintable(title), [&] { return titleInFront() == title; });
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

QList<int> Program::heightsOf(const QString& title)
{
    QList<int> heights;
    for (const QString& line : outputOf("wmctrl", {"-lG"}).split('\n')) {
        const QStringList words = line.simplified().split(' '); // number, desktop, x, y, width, height, host, title
        if (words.mid(7).join(' ') == title) {
            heights << words[5].toInt();
        }
    }
    return heights;
}

int Program::exitStatus()
{
    EXPECT_TRUE(m_process.waitForFinished(patience)) << "the program does not end";
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

} // namespace schemlet
