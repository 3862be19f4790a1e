#pragma once

#include "tests/gui/accessible_tree.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <optional>

namespace schemlet {

/// The real program in its window, used as a person does: by keys and mouse. What it does is looked for on the screen
/// and in what it tells a screen reader. Places are canvas pixels.
class Program {
public:
    enum class Stage {
        splash,  ///< the splash has the keyboard
        drawing, ///< the main window has it, and the help window is closed
    };

    /// Starts it in a home folder of its own, and waits until it has come so far.
    explicit Program(Stage until = Stage::drawing);

    /// Presses keys, which xdotool's names tell, one after the other.
    void keys(const QString& names, int times = 1);
    void type(const QString& text) { xdotool("type --delay 5 -- " + text); }
    void moveMouse(int x, int y);
    void click(int button, int x, int y);
    void drag(int x1, int y1, int x2, int y2);
    void xdotool(const QString& words);
    void resize(int width, int height);
    /// Presses keys that bring a window, and waits for it.
    void open(const QString& names, const QString& title);
    /// Brings the main window to the front.
    void activate();

    [[nodiscard]] QImage canvas() const;
    /// The first that the canvas shows once a window that covered it has gone.
    [[nodiscard]] QImage uncoveredCanvas() const;
    /// A place on the screen, on the canvas.
    [[nodiscard]] QRect onCanvas(QRect place) const { return place.translated(-m_canvas.topLeft()); }
    [[nodiscard]] bool inked(int x, int y) const { return canvas().pixelColor(x, y) != Qt::white; }

    /// What is to be seen in the window that has the keyboard, by its role and its name or, of a label, its text, in
    /// which * stands for anything.
    [[nodiscard]] std::optional<Accessible> find(const char* role, const QString& name) const;
    [[nodiscard]] bool shows(const char* role, const QString& name) const { return find(role, name).has_value(); }
    /// Where that is on the screen, once it is there.
    [[nodiscard]] QRect placeOf(const char* role, const QString& name) const;
    void waitForText(const QString& words) const { (void)placeOf("label", words); }
    void hoverOver(const char* role, const QString& name);
    void clickOn(const char* role, const QString& name);
    void clickMenus(const QStringList& captions);

    /// Waits until a window with this title has the keyboard.
    void waitForWindow(const QString& title) const;
    void waitForMainWindow() const;
    /// Waits for that window, and for the main one after this key.
    void answer(const QString& title, const char* key);
    [[nodiscard]] bool isOpen(const QString& title) const;
    /// Closes a window by its frame; says whether there is one with this in its title.
    static bool close(const QString& title) { return QProcess::execute("wmctrl", {"-c", title}) == 0; }

    /// From the splash on: waits for the main window, and for the help window that opens after it.
    void waitForHelp();

    [[nodiscard]] QDir home() const { return QDir(m_home.path()); }
    [[nodiscard]] QStringList filesAtHome() const
    {
        return home().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }
    /// Waits for the program's end.
    int exitStatus();

    [[nodiscard]] const AccessibilityBus& bus() const { return m_bus; }

private:
    void findCanvas() { m_canvas = placeOf("canvas", "Canvas"); }

    AccessibilityBus m_bus;
    QTemporaryDir m_home;
    Process m_process;
    QString m_window; ///< the main one, by its number on the screen
    QRect m_canvas;   ///< on the screen
};

} // namespace schemlet
