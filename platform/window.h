#pragma once

#include "platform/surface.h"

#include <initializer_list>
#include <string>
#include <string_view>

/// The name of a control, a menu item or a timer. Always one of the program's constants, so that it may be kept.
using Name = std::string_view;

inline constexpr Name mainWindow = "Form1";

enum class Look {
    plain,
    unchecked, ///< a check item whose mark is off at start
    checked,   ///< a check item whose mark is on at start
    hidden     ///< a menu that is not on the bar: a key that asks for a popup menu reports a click on it
};

struct MenuItem {
    Name name;                   ///< empty for a separator
    std::string_view caption;    ///< & marks the mnemonic; "-" is a separator
    std::string_view shortcut{}; ///< such as "Ctrl+E"; of "Ctrl+X; Ctrl+Q" the menu shows the first
    Look look = Look::plain;
};

/// A pointer, by the name of its picture of 24 by 24 pixels, and the pixel of it that points.
struct Cursor {
    Name picture;
    int hotX;
    int hotY;
};

/// A top-level window and its named controls. A name the window does not have is a fault of the program and ends it.
/// Texts are UTF-8.
class Window {
public:
    virtual ~Window() = default;

    virtual void setCaption(std::string_view title) = 0;
    /// Shows it beside the others, which stay usable, or brings it to the front.
    virtual void showWindow() = 0;
    /// Shows it beside the window that owns it, or over the lower part of that one's canvas where the screen is too
    /// small, and leaves the keyboard with the window that has it.
    virtual void showWithoutKeyboard() = 0;
    virtual void hideWindow() = 0;
    /// Closes it for good and ends its timers.
    virtual void unload() = 0;
    /// The height inside the frame, in twips: the one last set, whatever the screen's pixels make of it. The width
    /// becomes what the texts ask for.
    virtual void setHeight(int twips) = 0;
    [[nodiscard]] virtual int height() const = 0;
    /// Prints the window's image on the default printer. Throws printerError.
    virtual void printForm() = 0;

    /// Ends the program's main loop, as if nothing were open.
    virtual void endProgram() = 0;

    /// Appends a button to the toolbar, with the picture of this name; an empty key is a separator. One that is
    /// checkable looks pressed while it is checked, and only setChecked changes that.
    virtual void addToolButton(Name key, std::string_view tip, Look look) = 0;
    /// Puts a bar of a colour into a toolbar button's picture.
    virtual void setSwatch(Name key, Color color) = 0;
    /// The pointer over the canvas.
    virtual void setCursor(const Cursor& cursor) = 0;

    /// Appends a row to the menus: depth 0 is the bar itself, each further depth lies under the last row above it. So
    /// a row's depth is at most one more than that of the row before it.
    virtual void addMenuItem(int depth, const MenuItem& item) = 0;
    /// Opens a hidden menu at a place on the canvas, or where the canvas comes nearest to it, and returns at once.
    virtual void popUp(Name menu, Point place) = 0;
    virtual void setChecked(Name item, bool checked) = 0;
    [[nodiscard]] virtual bool checked(Name item) const = 0;

    virtual void setVisible(Name control, bool visible) = 0;
    [[nodiscard]] virtual bool visible(Name control) const = 0;
    virtual void setEnabled(Name control, bool enabled) = 0;
    [[nodiscard]] virtual bool enabled(Name control) const = 0; ///< the control's own switch
    /// Gives a control the keyboard, with its text selected if it has one.
    virtual void focus(Name control) = 0;
    virtual void setText(Name control, std::string_view text) = 0;
    [[nodiscard]] virtual std::string text(Name control) const = 0;
    /// What a screen reader says of a control after its name; said again when it changes.
    virtual void setDescription(Name control, std::string_view text) = 0;
    /// 1 for an option button that is chosen or a check box that is ticked, else 0; of a progress bar 0 to 100. Setting
    /// it is no click.
    virtual void setValue(Name control, int value) = 0;
    [[nodiscard]] virtual int value(Name control) const = 0;
    /// Paints a control's ground, and its text so that it is readable there.
    virtual void setBackColor(Name control, Color color) = 0;
    /// Lets a label or a button show what is drawn on a surface of its fixed size, as sharp as the screen can.
    virtual void drawPicture(Name control, void (*draw)(Surface&)) = 0;
    /// Places a control that lies on the canvas; twips, any distance beyond the edges included.
    virtual void setLeft(Name control, double twips) = 0;
    virtual void setTop(Name control, double twips) = 0;
    /// Puts a visible control into a corner of the canvas: if there is one where it covers neither a place, in twips,
    /// nor another control, and no other window covers it, there. If there are several, the farthest from the place.
    virtual void placeAwayFrom(Name control, Point place, Name other) = 0;

    /// Whether a place, in twips, is on the part of the canvas that the window shows.
    [[nodiscard]] virtual bool isOnCanvas(Point place) const = 0;

    /// Starts a timer that ticks every so many milliseconds, 1 or more; 0 stops it.
    virtual void setInterval(Name timer, int milliseconds) = 0;

    // The same for several controls, in the order given.
    void show(std::initializer_list<Name> controls);
    void hide(std::initializer_list<Name> controls);
    void enable(std::initializer_list<Name> controls);
    void disable(std::initializer_list<Name> controls);

    /// Shows a hidden control, hides a visible one.
    void flipVisible(Name control);
    /// Marks a menu item, or takes its mark away.
    void flipChecked(Name item);
};
