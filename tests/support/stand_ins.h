#pragma once

#include "canvas/form1.h"
#include "circuit/output_window.h"
#include "platform/ink/changes.h"
#include "platform/runtime_error.h"
#include "shell/about.h"
#include "shell/help.h"
#include "shell/splash.h"
#include "tests/support/paper.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace schemlet {

/// A text between bars, or a number in as few digits as tell it from all others.
template <typename Value> std::string written(const Value& value)
{
    if constexpr (std::is_arithmetic_v<Value>) {
        std::array<char, 32> text{};
        return {text.begin(), std::to_chars(text.begin(), text.end(), value).ptr};
    } else {
        return "|" + std::string(value) + "|";
    }
}

/// A place, such as "1600 1500".
inline std::string placed(double x, double y)
{
    return written(x) + " " + written(y);
}

/// What the program did, one line each, such as "line 1600 1500 1600 1750" or "Label27 shown".
class Notes {
public:
    bool kept = true; ///< off for random events

    void add(const std::string& line) { change("", "", line); }
    /// Replaces an earlier note about the same thing. If a thing is as before again, its note is dropped.
    void change(const std::string& thing, const std::string& before, const std::string& now);
    /// The notes since the last call.
    std::vector<std::string> takeLines();
    std::string take();

private:
    struct Note {
        std::string thing, before, now;
    };
    std::vector<Note> m_notes;
};

/// Notes every stroke. Also draws on a small image, for undo; a text becomes a line there.
class RecordingSurface final : public Surface {
public:
    explicit RecordingSurface(Notes& notes) : m_notes(notes)
    {
        std::ranges::fill(m_paper.pixels, white);
        m_inkChanges.grow(m_paper.width, m_paper.height);
    }

    std::optional<Color> notedColor; ///< the color of the last stroke; a change is noted
    std::optional<Color> ahead;      ///< what point() finds wherever it looks, if set

    std::size_t patchRoom = 0; ///< undo and redo leave patches with room for so many squares

    void line(Point from, Point to) override { stroke("line", from, to); }
    void box(Point from, Point to) override { stroke("box", from, to); }
    void circle(Point centre, float radius) override;
    void arc(Point centre, float radius, float start, float end) override;
    void print(std::string_view text, bool endLine) override;
    [[nodiscard]] double textWidth(std::string_view /*text*/) const override { return 100; }
    [[nodiscard]] std::optional<Color> point(Point place) const override;
    void clear() override { note("clear", {}); }
    void setBackColor(Color color) override;
    void setForeColor(Color color) override { m_foreColor = color; }
    [[nodiscard]] Color foreColor() const override { return m_foreColor; }
    [[nodiscard]] int drawWidth() const override { return m_drawWidth; }
    void setDrawWidth(int pixels) override { m_drawWidth = pixels; }
    [[nodiscard]] Point current() const override { return m_current; }
    void setCurrent(Point place) override { m_current = place; }
    [[nodiscard]] InkChange takeChange() override;
    void exchange(InkChange& change) override;
    [[nodiscard]] const std::vector<std::uint32_t>& pixels() const { return m_paper.pixels; }

private:
    void draw(Point from, Point to);
    void note(const char* what, std::initializer_list<float> numbers, std::string_view text = {});
    void stroke(const char* what, Point from, Point to);

    Notes& m_notes;
    int m_drawWidth = 2;
    Point m_current;
    Color m_foreColor = black;
    Color m_backColor = white;
    Paper m_paper{192, 128};
    ink::Changes m_inkChanges{white};
};

enum class Asked { box, text, color, file };

/// Notes every question. A question without a reply fails the test.
class ScriptedDialogs final : public Dialogs {
public:
    explicit ScriptedDialogs(Notes& notes) : m_notes(notes) {}

    std::deque<std::string> replies;                 ///< to the next questions; a box with only OK needs none
    std::function<void(std::string_view)> meanwhile; ///< runs the event of a reply "meanwhile EVENT"
    std::function<std::string(Asked)> replyTo;       ///< if set, replies to all; "cancel" is Cancel or No

    int messageBox(std::string_view prompt, Box style, std::string_view title) override;
    std::optional<std::string> inputBox(std::string_view prompt, std::string_view title,
                                        std::string_view preset) override;
    std::optional<Color> pickColor(std::string_view title, Color first) override;
    std::optional<std::string> openFile() override { return reply(Asked::file, "asks for a file to open"); }
    std::optional<std::string> saveFile(std::string_view name, std::string_view extension,
                                        std::string_view filter) override;

private:
    std::optional<std::string> reply(Asked asked, const std::string& question);

    Notes& m_notes;
};

/// Fails to read or write anything in the folder /broken/.
class StandInPictures final : public Pictures {
public:
    StandInPictures(Notes& notes, const RecordingSurface& surface) : m_notes(notes), m_surface(surface) {}

    void loadBackground(std::string_view path) override { note("loads ", path, Fault::invalidPicture); }
    void saveImage(std::string_view path) override { note("saves ", path, Fault::pictureNotSaved); }
    bool copyInk() override;

private:
    void note(const char* what, std::string_view path, Fault fault);

    Notes& m_notes;
    const RecordingSurface& m_surface;
};

// The named controls of the forms. Another test looks for each of them in the real forms.
inline constexpr Name formControls[] = {
    "Canvas",  "Picture1",  "Shape1",   "Label27",   "sb",          "sbPen",     "sbHeading", "sbTool",
    "sbErase", "sbJumpers", "sbNotice", "sbPointer", "sbOffCanvas", "statusBar", "Toolbar1",  "panel",
    "sup",     "bat",       "Label11",  "Label12",   "Label13",     "Label28",   "Option1",   "Option2",
    "Option3", "Option4",   "Option5",  "Text11",    "Command3",    "Command7",  "Command8",  "Frame2",
    "Label1",  "Image1",    "Image2",   "Image3",    "Image4",      "Image5",    "Image15",   "Image16",
    "Image17", "Image18",   "Image19",  "Image20",   "Image7",      "undo",      "redo",      "copy"};
inline constexpr Name helpControls[] = {form2::control::Check1, form2::control::Label23, form2::control::Command1};
inline constexpr Name aboutControls[] = {form3::control::Picture1, form3::control::Command1, form3::control::Command2};
inline constexpr Name splashControls[] = {form6::control::Picture1, form6::control::ProgressBar1};

/// Notes every change. An unknown name fails the test.
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
        std::string tip;
        void (*picture)(Surface&) = nullptr;
        double left = 0;
        double top = 0;
        std::string awayFrom; ///< the place that the control keeps away from
    };

    StandInWindow(Notes& notes, Name window, std::span<const Name> names, std::span<const Name> more = {});

    bool hasPrinter = true;
    Point canvas{9000, 6000};                       ///< its size
    std::vector<std::pair<int, MenuItem>> menuRows; ///< with their depths
    std::string toolRows;                           ///< the shortcuts, then the toolbar's buttons
    std::map<std::string_view, int> intervals;

    [[nodiscard]] Control& at(std::string_view name) { return m_controls.at(name); }
    [[nodiscard]] const Control& at(std::string_view name) const { return m_controls.at(name); }
    /// The names of all controls, menu items and toolbar buttons.
    [[nodiscard]] std::vector<std::string_view> names() const;

    void setCaption(std::string_view title) override { note("caption " + written(title)); }
    void showWindow() override { note("window shown"); }
    void showWithoutKeyboard() override { note("window shown without the keyboard"); }
    void hideWindow() override { note("window hidden"); }
    void unload() override;
    void setHeight(int twips) override;
    [[nodiscard]] int height() const override { return m_height; }
    void printForm() override;
    void addMenuItem(int depth, const MenuItem& item) override;
    void endProgram() override { note("program ended"); }
    void addShortcut(const Shortcut& shortcut) override;
    void addToolButton(Name key, std::string_view tip, Look look) override;
    void setSwatch(Name key, Color color) override { setBackColor(key, color); }
    void setCursor(const Cursor& pointer) override;
    void popUp(Name menu, Point where) override;
    void setChecked(Name item, bool on) override { setSwitch(item, &Control::checked, on, "unchecked", "checked"); }
    [[nodiscard]] bool checked(Name item) const override { return at(item.text()).checked; }
    void setVisible(Name name, bool on) override { setSwitch(name, &Control::visible, on, "hidden", "shown"); }
    [[nodiscard]] bool visible(Name name) const override { return at(name.text()).visible; }
    void setEnabled(Name name, bool on) override { setSwitch(name, &Control::enabled, on, "disabled", "enabled"); }
    [[nodiscard]] bool enabled(Name name) const override { return at(name.text()).enabled; }
    void focus(Name name) override { note(std::string(name.text()) + " focused"); }
    void setText(Name name, std::string_view text) override { set(name, &Control::text, std::string(text), ""); }
    [[nodiscard]] std::string text(Name name) const override { return at(name.text()).text; }
    void setDescription(Name name, std::string_view text) override
    {
        set(name, &Control::description, std::string(text), "described ");
    }
    void setTip(Name name, std::string_view text) override { set(name, &Control::tip, std::string(text), "tip "); }
    void setValue(Name name, int value) override { set(name, &Control::value, value, "value "); }
    [[nodiscard]] int value(Name name) const override { return at(name.text()).value; }
    void setBackColor(Name name, Color color) override { set(name, &Control::backColor, color, "color "); }
    void drawPicture(Name name, void (*draw)(Surface&)) override;
    void setLeft(Name name, double twips) override { set(name, &Control::left, twips, "left "); }
    void setTop(Name name, double twips) override { set(name, &Control::top, twips, "top "); }
    void placeAwayFrom(Name name, Point place, Name other) override;
    [[nodiscard]] bool isOnCanvas(Point place) const override
    {
        return place.x >= 0 && place.y >= 0 && place.x < canvas.x && place.y < canvas.y;
    }
    void setInterval(Name timer, int milliseconds) override;

private:
    void note(const std::string& what) { m_notes.add(m_prefix + what); }
    void setSwitch(Name name, bool Control::*aspect, bool on, const char* off, const char* onWord);
    template <typename Value>
    void set(Name name, Value Control::*aspect, const std::type_identity_t<Value>& value, const char* words)
    {
        const Value before = std::exchange(at(name.text()).*aspect, value);
        if (m_notes.kept && before != value) {
            const std::string what = m_prefix + std::string(name.text()) + " " + words;
            m_notes.change(what, what + written(before), what + written(value));
        }
    }

    Notes& m_notes;
    std::string m_prefix; ///< empty for the main window
    int m_height = 0;
    std::string m_cursor;
    std::map<std::string_view, Control> m_controls;
};

} // namespace schemlet
