#pragma once

#include "tests/gui/accessible_tree.h"
#include "tests/gui/desk.h"

#include <QColor>
#include <QImage>
#include <initializer_list>
#include <optional>

namespace schemlet {

inline constexpr auto saveQuestion = "Do you want to save changes?";
inline constexpr auto printQuestion = "Do you want to print this form?";

/// What a command brings: a window, which is closed again, or a text on a label, or both.
struct Outcome {
    const char* window = nullptr;
    const char* text = nullptr;
};

/// The real program in its window, used as a person does: by keys and mouse. What it does is looked for on the screen
/// and in what it tells a screen reader. Places are canvas pixels.
class Program {
public:
    enum class Stage {
        splash,  ///< the splash has the keyboard
        help,    ///< the main window has it, and the help window has opened beside
        drawing, ///< that is closed
    };

    /// Starts it in this folder, or else in a home folder of its own, and waits until it has come so far.
    explicit Program(Stage until = Stage::drawing, const QString& folder = {});
    ~Program() = default;
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void keys(std::initializer_list<const char*> keys);
    void type(const QString& text);
    void keyTimes(int times, const char* key);
    void moveMouse(int x, int y);
    void click(int button, int x, int y);
    void drag(int x1, int y1, int x2, int y2);
    void openPopup(int x, int y);
    void resize(int width, int height);
    /// Brings the main window to the front.
    void activate();
    void xdotool(const QStringList& words);

    [[nodiscard]] QImage screen(const QRect& part) const;
    [[nodiscard]] QImage canvas() const { return screen(m_canvas); }
    /// A place on the screen, on the canvas.
    [[nodiscard]] QRect onCanvas(QRect place) const { return place.translated(-m_canvas.topLeft()); }
    [[nodiscard]] QColor pixel(int x, int y) const;
    [[nodiscard]] bool inked(int x, int y) const { return pixel(x, y) != Qt::white; }

    /// What is to be seen in the window that has the keyboard, by its role and its name or, of a label, its text, in
    /// capitals or not; in these * stands for anything.
    [[nodiscard]] std::optional<Accessible> find(const char* role, const QString& name) const;
    [[nodiscard]] bool shows(const char* role, const QString& name) const { return find(role, name).has_value(); }
    /// Where that is on the screen, once it is there.
    [[nodiscard]] QRect placeOf(const char* role, const QString& name) const;
    void waitForText(const QString& words) const { (void)placeOf("label", words); }
    void hoverOver(const char* role, const QString& name);
    void clickOn(const char* role, const QString& name);
    void clickMenus(const QStringList& captions);
    /// Opens the menu bar's menu that is so many to the right of the first one, or to the left of it, round the end.
    /// (To the right there is no way past a menu that begins with a submenu.)
    void openMenu(int place);
    void waitForMark(const char* menu, const char* item, bool checked) const;

    /// Waits until a window with this title has the keyboard.
    void waitForWindow(const QString& title) const;
    void waitForMainWindow() const { waitForWindow(mainTitle); }
    /// Waits for that window, and for the main one after this key.
    void answer(const QString& title, const char* key);
    void expect(const Outcome& outcome);

    [[nodiscard]] bool isOpen(const QString& title) const;

    /// From the splash on: waits for the main window, and for the help window that opens after it.
    void waitForHelp();
    /// Closes the window that has the keyboard, as its frame does.
    void closeActiveWindow();
    /// What it has left in its home folder.
    [[nodiscard]] QStringList filesAtHome() const;
    void signal(int number);
    /// Waits for the program's end.
    int exitStatus();

    [[nodiscard]] const AccessibilityBus& bus() const { return m_bus; }

private:
    [[nodiscard]] QString titleInFront() const;
    void findCanvas();

    /// Ended with this object.
    struct Process : QProcess {
        ~Process() override { end(*this); }
    };
    /// Says what is on the screen when a test ends because something never came.
    struct Witness {
        const Program& program;
        ~Witness();
    };

    static constexpr auto splashTitle = "Schemlet 2.0";
    static constexpr auto mainTitle = " - Schemlet 2.0  New File ";
    AccessibilityBus m_bus;
    QTemporaryDir m_home;
    Process m_process;
    QString m_window; ///< the main one, by its number on the screen
    QRect m_canvas;   ///< on the screen
    Witness m_witness{*this};
};

} // namespace schemlet
