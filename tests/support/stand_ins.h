#pragma once

#include "canvas/form1.h"
#include "circuit/output_window.h"
#include "platform/event.h"
#include "platform/runtime_error.h"
#include "shell/about.h"
#include "shell/events.h"
#include "shell/help.h"
#include "shell/splash.h"

#include <array>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace schemlet {

/// Notes one text line for each call that draws, such as "line 1600 1500 1600 1750".
class RecordingSurface final : public Surface {
public:
    std::vector<std::string> ink;
    bool recording = true;           ///< off for long walks: then nothing is kept
    bool notesColors = false;        ///< before the first thing that is drawn in a colour, a line for that
    std::optional<Color> underPoint; ///< what point() finds, anywhere
    mutable std::string probedAt;    ///< where point() looked last
    Color foreColor = black;

    void line(Point from, Point to) override { stroke("line", from, to); }
    void box(Point from, Point to) override { stroke("box", from, to); }
    void circle(Point centre, float radius) override { note("circle", {centre.x, centre.y, radius}); }
    void arc(Point centre, float radius, float start, float end) override;
    void print(std::string_view text, bool endLine) override;
    [[nodiscard]] std::optional<Color> point(Point place) const override;
    void clear() override { note("clear", {}); }
    void setBackColor(Color color) override { note("back", {static_cast<float>(color)}); }
    void setForeColor(Color color) override { foreColor = color; }
    [[nodiscard]] int drawWidth() const override { return m_drawWidth; }
    void setDrawWidth(int pixels) override { m_drawWidth = pixels; }
    [[nodiscard]] Point current() const override { return m_current; }
    void setCurrent(Point place) override { m_current = place; }

private:
    void note(const char* what, std::initializer_list<float> numbers, std::string_view text = {});
    void stroke(const char* what, Point from, Point to);

    int m_drawWidth = 2;
    Point m_current;
    std::optional<Color> m_notedColor;
};

/// Gives queued answers; an unexpected question or one left over fails the test.
class ScriptedDialogs final : public Dialogs {
public:
    ~ScriptedDialogs() override { EXPECT_TRUE(m_expected.empty()) << "not asked: " << m_expected.front().title; }

    /// The next question must have this title, and is answered so.
    void expect(const char* title, int answer) { m_expected.push_back({title, {answer, {}}}); }
    /// Before all others an input box must have this title; "" is Cancel.
    void expectInput(const char* title, const std::string& text) { m_expected.push_front({title, {answer::no, text}}); }

    int messageBox(std::string_view prompt, Box style, std::string_view title) override;
    std::optional<std::string> inputBox(std::string_view prompt, std::string_view title,
                                        std::string_view preset) override;
    std::optional<Color> pickColor(std::string_view title, Color first) override
    {
        lastTitle = title;
        firstColor = first;
        return picked;
    }
    std::optional<std::string> openFile() override { return choice(fileToOpen); }
    std::optional<std::string> saveFile(std::string_view name, std::string_view extension,
                                        std::string_view filter) override;

    struct Reply {
        int answer = answer::no;
        std::string text;
    };
    std::optional<Reply> always;           ///< to every question, whatever its title
    std::function<void()> meanwhile;       ///< happens while the next box is open
    std::optional<Color> picked = black;   ///< what the colour dialog says
    Color firstColor = black;              ///< what it was opened with
    std::optional<std::string> fileToOpen; ///< what the file dialogs say; "" is Cancel, none fails the test
    std::optional<std::string> fileToSave;
    std::string lastFilter;
    std::string lastName;  ///< proposed to save by
    std::string lastTitle; ///< of any box
    std::string lastPrompt;
    Box lastStyle = Box::okOnly;

private:
    struct Expected {
        std::string title;
        Reply reply;
    };
    Reply next(std::string_view prompt, std::string_view title);
    Reply expected(std::string_view title);
    static std::optional<std::string> choice(std::optional<std::string>& file);

    std::deque<Expected> m_expected;
};

/// Notes what is asked of it.
class StandInPictures final : public Pictures {
public:
    std::string notes;
    std::optional<Fault> fault; ///< thrown by the next call

    void loadBackground(std::string_view path) override { note("load ", path); }
    void saveImage(std::string_view path) override { note("save ", path); }

private:
    void note(const char* what, std::string_view path);
};

inline void PrintTo(Name name, std::ostream* out)
{
    *out << name.text();
}

/// A name of the program's, or one that a test makes up.
struct AnyName {
    AnyName(Name name) : text(name.text()) {}
    AnyName(std::string_view name) : text(name) {}
    AnyName(const char* name) : text(name) {}

    std::string_view text;
};

/// Every named control of the main window's form; a test of the form itself finds each of them there.
inline constexpr Name formControls[] = {control::Canvas,
                                        control::Picture1,
                                        control::Shape1,
                                        control::Label27,
                                        control::sb,
                                        control::sbPen,
                                        control::sbHeading,
                                        control::sbTool,
                                        control::sbErase,
                                        control::sbJumpers,
                                        control::sbNotice,
                                        control::sbPointer,
                                        control::sbOffCanvas,
                                        control::panel,
                                        control::sup,
                                        control::bat,
                                        control::Label11,
                                        control::Label12,
                                        control::Label13,
                                        control::Label28,
                                        control::Option1,
                                        control::Option2,
                                        control::Option3,
                                        control::Option4,
                                        control::Option5,
                                        control::Text11,
                                        control::Command3,
                                        control::Command7,
                                        control::Command8,
                                        control::Toolbar1,
                                        control::Frame2,
                                        control::Label1,
                                        control::statusBar,
                                        "Image1",
                                        "Image2",
                                        "Image3",
                                        "Image4",
                                        "Image5",
                                        "Image15",
                                        "Image16",
                                        "Image17",
                                        "Image18",
                                        "Image19",
                                        "Image20",
                                        "Image7"};

// The same of the other windows' forms.
inline constexpr Name helpControls[] = {form2::control::Check1, form2::control::Label23, form2::control::Command1};
inline constexpr Name aboutControls[] = {form3::control::Picture1, form3::control::Command1, form3::control::Command2};
inline constexpr Name splashControls[] = {form6::control::Picture1, form6::control::ProgressBar1};

/// Keeps what was set last.
class StandInWindow final : public MainWindow {
public:
    struct Control {
        bool visible = true;
        bool enabled = true;
        bool checked = false;
        int value = 0;
        Color backColor = white;
        std::string text;
        std::string description;
        void (*picture)(Surface&) = nullptr;
        double left = 0;
        double top = 0;
        Point awayFrom; ///< the place that it keeps away from
    };

    explicit StandInWindow(std::span<const Name> names, std::span<const Name> more = {});

    std::string caption;
    Name focused; ///< the control that was given the keyboard last
    Cursor cursor{};
    int timesEnded = 0;
    int timesShown = 0;
    int timesShownWithoutKeyboard = 0;
    int timesHidden = 0;
    int timesUnloaded = 0;
    std::vector<int> heights; ///< in the order in which they were set
    int timesPrinted = 0;
    std::optional<Fault> printFault;                ///< thrown by every printForm()
    std::string poppedUp;                           ///< the menu and its place, such as "rc 1600 1500"
    Point canvas{9000, 6000};                       ///< its size
    std::vector<std::pair<int, MenuItem>> menuRows; ///< with their depths
    std::map<std::string, int, std::less<>> intervals;

    // A name that the program's windows do not have fails the test.
    [[nodiscard]] Control& at(AnyName name) { return m_controls.at(std::string(name.text)); }
    [[nodiscard]] const Control& at(AnyName name) const { return m_controls.at(std::string(name.text)); }
    /// Of all controls, menu items and toolbar buttons.
    [[nodiscard]] std::vector<std::string_view> names() const;

    void setCaption(std::string_view title) override { caption = title; }
    void showWindow() override { ++timesShown; }
    void showWithoutKeyboard() override { ++timesShownWithoutKeyboard; }
    void hideWindow() override { ++timesHidden; }
    void unload() override;
    void setHeight(int twips) override { heights.push_back(twips); }
    [[nodiscard]] int height() const override { return heights.empty() ? 0 : heights.back(); }
    void printForm() override;
    void addMenuItem(int depth, const MenuItem& item) override;
    void endProgram() override { ++timesEnded; }
    void addToolButton(Name key, std::string_view /*tip*/, Look /*look*/) override
    {
        m_controls.emplace(key.text(), Control{});
    }
    void setSwatch(Name key, Color color) override { at(key).backColor = color; }
    void setCursor(const Cursor& pointer) override { cursor = pointer; }
    void popUp(Name menu, Point where) override;
    void setChecked(Name changed, bool checked) override { at(changed).checked = checked; }
    [[nodiscard]] bool checked(Name asked) const override { return at(asked).checked; }
    void setVisible(Name control, bool visible) override { at(control).visible = visible; }
    [[nodiscard]] bool visible(Name control) const override { return at(control).visible; }
    void setEnabled(Name control, bool enabled) override { at(control).enabled = enabled; }
    [[nodiscard]] bool enabled(Name control) const override { return at(control).enabled; }
    void focus(Name control) override
    {
        (void)at(control);
        focused = control;
    }
    void setText(Name control, std::string_view text) override { at(control).text = text; }
    [[nodiscard]] std::string text(Name control) const override { return at(control).text; }
    void setDescription(Name control, std::string_view text) override { at(control).description = text; }
    void setValue(Name control, int value) override { at(control).value = value; }
    [[nodiscard]] int value(Name control) const override { return at(control).value; }
    void setBackColor(Name control, Color color) override { at(control).backColor = color; }
    void drawPicture(Name control, void (*draw)(Surface&)) override { at(control).picture = draw; }
    void setLeft(Name control, double twips) override { at(control).left = twips; }
    void setTop(Name control, double twips) override { at(control).top = twips; }
    void placeAwayFrom(Name control, Point place, Name /*other*/) override { at(control).awayFrom = place; }
    [[nodiscard]] bool isOnCanvas(Point place) const override
    {
        return place.x >= 0 && place.y >= 0 && place.x < canvas.x && place.y < canvas.y;
    }
    void setInterval(Name timer, int milliseconds) override { intervals[std::string(timer.text())] = milliseconds; }

private:
    std::map<std::string, Control, std::less<>> m_controls;
};

/// The shortest text that no other number has.
std::string shortest(float number);
std::string shortest(double number);

/// The program without a toolkit, and what a user and the clock do to it.
struct Rig {
    enum class Start { atSplash, behindIt };

    RecordingSurface surface;
    StandInWindow window{formControls};
    ScriptedDialogs dialogs;
    StandInPictures pictures;
    StandInWindow help{helpControls};
    StandInWindow about{aboutControls};
    StandInWindow output{form4::control::captions, form4::control::values};
    StandInWindow splash{splashControls};
    Form1 form{surface, window, dialogs, pictures, help, about, output, splash};
    Events events{form};

    explicit Rig(Start start = Start::behindIt);

    void press(int key) { events.deliver({.kind = Event::Kind::keyDown, .code = key}); }
    void type(int character) { events.deliver({.kind = Event::Kind::keyPress, .code = character}); }
    void click(AnyName name, Name of = mainWindow) { events.deliver({Event::Kind::click, of.text(), name.text}); }
    void tick(Name timer, Name of = mainWindow) { events.deliver({Event::Kind::tick, of.text(), timer.text()}); }
    void close(Name closed = mainWindow) { events.deliver({Event::Kind::close, closed.text()}); }
    void hover(AnyName name) { events.deliver({.kind = Event::Kind::hover, .name = name.text}); }
    void mouse(Event::Kind kind, int buttons, float x, float y)
    {
        events.deliver({.kind = kind, .code = buttons, .place = {x, y}});
    }
    void mouseDown(int button, float x, float y) { mouse(Event::Kind::mouseDown, button, x, y); }
    void mouseMove(int buttons, float x, float y) { mouse(Event::Kind::mouseMove, buttons, x, y); }
    void mouseUp(int button, float x, float y) { mouse(Event::Kind::mouseUp, button, x, y); }

    /// As the toolkit does it: the option is on before its click is reported.
    void choose(Name option);
    /// Types a text into the panel and ends it with Enter.
    void confirm(std::string_view text);
    /// Adds a component, such as "R4.7": its letter, R, I or C, or of a source V, A, + or -, and its value.
    void enter(const std::string& component);

    /// The ink since the last call, one line each.
    std::string drawn();
    [[nodiscard]] std::string pen() const; ///< such as "1600 1500"
    [[nodiscard]] std::string marker();    ///< left and top, such as "1600 1200"
    /// All of that, such as "line 0 0 9 9\npen 1600 1500, marker 1600 1200".
    std::string outcome();
};

/// What a command leaves that does nothing right after start.
inline constexpr const char* nothing = "pen 1600 1500, marker 1600 1200";

} // namespace schemlet
