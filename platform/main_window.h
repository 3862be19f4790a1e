#pragma once

#include "platform/window.h"

namespace schemlet {

enum class Look {
    plain,
    unchecked, ///< a check item whose mark is off at start
    checked,   ///< a check item whose mark is on at start
    hidden     ///< a menu that is not on the bar but pops up
};

struct MenuItem {
    Name name;                   ///< empty for a separator
    std::string_view caption;    ///< & marks the mnemonic; "-" is a separator
    std::string_view shortcut{}; ///< such as "Ctrl+E", or several: "Ctrl+X; Ctrl+Q"
    Look look = Look::plain;
};

/// A pointer, by the name of its picture of 24 by 24 pixels, and the pixel of it that points.
struct Cursor {
    std::string_view picture;
    int hotX;
    int hotY;
};

/// The window with the canvas: what it has besides controls.
class MainWindow : public virtual Window {
public:
    /// Ends the program's main loop, as if nothing were open.
    virtual void endProgram() = 0;

    /// Appends a row to the menus: depth 0 is the bar itself, each further depth lies under the last row above it. So
    /// a row's depth is at most one more than that of the row before it.
    virtual void addMenuItem(int depth, const MenuItem& item) = 0;
    /// Lets keys, such as "Ctrl+Z", or several: "Ctrl+Shift+Z; Ctrl+Y", click what has this name. In a text box they
    /// are the text's own.
    virtual void addShortcut(Name name, std::string_view keys) = 0;
    /// Opens a hidden menu at a place, or at the canvas's edge nearest to it, and returns at once.
    virtual void popUp(Name menu, Point place) = 0;
    /// Appends a button to the toolbar, with the picture of this name; an empty key is a separator. One that is
    /// checkable looks pressed while it is checked, and only setChecked changes that.
    virtual void addToolButton(Name key, std::string_view tip, Look look) = 0;
    /// Puts a bar of a colour into a toolbar button's picture.
    virtual void setSwatch(Name key, Color color) = 0;
    /// The mark of a menu item, or whether a toolbar button looks pressed.
    virtual void setChecked(Name item, bool checked) = 0;
    [[nodiscard]] virtual bool checked(Name item) const = 0;

    /// The pointer over the canvas.
    virtual void setCursor(const Cursor& cursor) = 0;
    /// Whether a place is on the part of the canvas that the window shows.
    [[nodiscard]] virtual bool isOnCanvas(Point place) const = 0;
    /// Places a control that lies on the canvas; twips, any distance beyond the edges included.
    virtual void setLeft(Name control, double twips) = 0;
    virtual void setTop(Name control, double twips) = 0;
    /// Puts a visible control into a corner of the canvas where it covers neither a place nor another control and no
    /// other window covers it, if there is one; of several such corners into the one farthest from the place.
    virtual void placeAwayFrom(Name control, Point place, Name other) = 0;

    /// Marks a menu item, or takes its mark away.
    void flipChecked(Name item);
};

} // namespace schemlet
