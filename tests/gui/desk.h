#pragma once

#include <QColor>
#include <QImage>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <initializer_list>

/// Waits for the first line of a process that says so when it is ready.
QByteArray waitForLine(QProcess& process);
void end(QProcess& process);

/// A screen of our own: an X server without a monitor and a window manager on it, ended with this object. Must be made
/// before the application object, which then looks at the same screen.
class Desk {
public:
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Gives programs no bus of the session: one would be started for this display, and outlive it.
    static void denySessionBus();

private:
    QProcess m_server;
    QProcess m_manager;
};

/// Waits until a condition holds; ends the test with these words if it never does.
void waitUntil(const char* what, const std::function<bool()>& condition);

/// The real program in its window, used as a person does: by keys, mouse and looking at the screen. Places are canvas
/// pixels.
class Program {
public:
    enum class Stage {
        splash,  ///< the splash has the keyboard
        help,    ///< the main window has it, and the help window has opened beside
        drawing, ///< that is closed
    };

    /// Starts it in this folder, or else in a home folder of its own, by way of a command that runs it, and waits until
    /// it has come so far.
    explicit Program(Stage until = Stage::drawing, const QString& folder = {}, const QStringList& launcher = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void keys(std::initializer_list<const char*> keys);
    void type(const QString& text);
    void keyTimes(int times, const char* key);
    void moveMouse(int x, int y);
    void press(int button);
    void release(int button);
    void click(int button, int x, int y);
    void drag(int x1, int y1, int x2, int y2);
    /// Presses the right button on clean paper and waits for the menu.
    void openPopup(int x, int y);
    void resize(int width, int height);
    /// Brings the main window to the front.
    void activate();
    void xdotool(const QStringList& words);

    [[nodiscard]] QImage canvas() const;
    /// A place on the screen, on the canvas.
    [[nodiscard]] QPoint onCanvas(QPoint place) const { return place - m_canvas.topLeft(); }
    [[nodiscard]] QColor pixel(int x, int y) const;
    [[nodiscard]] bool inked(int x, int y) const { return pixel(x, y) != Qt::white; }

    /// Where the panel of supplies and batteries lies in the lower right corner of the canvas; invalid without it.
    [[nodiscard]] QRect panel() const;

    /// Waits until a window with this title has the keyboard.
    void waitForWindow(const QString& title);
    void waitForMainWindow() { waitForWindow(mainTitle); }

    /// What the window that has the keyboard shows, without its frame.
    [[nodiscard]] QImage activeWindow() const;

    /// The X server's number of the window with this title; empty if there is none to be seen.
    [[nodiscard]] QString visibleWindow(const QString& title) const;
    /// The height inside its frame.
    [[nodiscard]] int heightOf(const QString& title) const;

    /// From the splash on: waits for the main window, and for the help window that opens after it.
    void waitForHelp();
    /// Closes the window that has the keyboard, as its frame does.
    void closeActiveWindow();
    /// The same with the main window; returns the program's exit status.
    int close();
    /// What it has left in its home folder.
    [[nodiscard]] QStringList filesAtHome() const;
    void signal(int number);
    /// Waits for the program's end.
    int exitStatus();

private:
    void findCanvas();

    static constexpr auto mainTitle = " - Schemlet 2.0  New File ";
    QTemporaryDir m_home;
    QProcess m_process;
    QString m_window; ///< the X server's number of the main window
    QRect m_canvas;   ///< on the screen
};
