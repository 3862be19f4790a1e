#pragma once

#include "tests/gui/desk.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QRect>
#include <QString>
#include <QTemporaryDir>

namespace schemlet {

/// The real program on the screen, used as a person does: with keys and mouse. Places are canvas pixels.
class Program {
public:
    enum class Stage {
        splash,  ///< the splash has the keyboard
        drawing, ///< the main window has it, and the help window is closed
    };

    /// Starts the program in a home folder of its own, and waits for this stage.
    explicit Program(Stage until = Stage::drawing);

    /// Presses keys one after the other, by the names that xdotool has for them.
    void keys(const QString& names, int times = 1);
    void type(const QString& text) { xdotool("type --delay 5 -- " + text); }
    void moveMouse(int x, int y);
    void click(int button, int x, int y);
    void drag(int x1, int y1, int x2, int y2);
    void xdotool(const QString& words);
    void resize(int width, int height);
    /// Presses keys that open a window, and waits for it.
    void open(const QString& names, const QString& title);
    /// Brings the main window to the front.
    void activate();

    [[nodiscard]] QImage canvas() const;
    /// What the canvas shows first when a window that covered it has gone.
    [[nodiscard]] QImage uncoveredCanvas() const;
    [[nodiscard]] bool inked(int x, int y) const { return canvas().pixelColor(x, y) != Qt::white; }

    /// Waits until a window with this title has the keyboard.
    void waitForWindow(const QString& title) const;
    void waitForMainWindow() const;
    /// Waits for that window, presses a key, and waits for the main window.
    void answer(const QString& title, const char* key);
    /// The heights of the open windows that have this title.
    [[nodiscard]] static QList<int> heightsOf(const QString& title);
    [[nodiscard]] static bool isOpen(const QString& title) { return !heightsOf(title).isEmpty(); }
    /// Closes a window by its frame. Returns whether there was one with this in its title.
    static bool close(const QString& title) { return QProcess::execute("wmctrl", {"-c", title}) == 0; }

    /// Call while the splash is open: waits for the main window, and for the help window that opens after it.
    void waitForHelp();
    /// Call after waitForHelp(), and before anything that needs the canvas.
    void closeHelp();

    [[nodiscard]] QDir home() const { return QDir(m_home.path()); }
    [[nodiscard]] QStringList filesAtHome() const
    {
        return home().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }
    /// Waits for the program's end.
    int exitStatus();

private:
    void findCanvas();

    QTemporaryDir m_home;
    Process m_process;
    QString m_window; ///< the number of the main window
    QRect m_canvas;   ///< on the screen
};

} // namespace schemlet
