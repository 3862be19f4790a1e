#pragma once

#include "platform/window.h"

namespace schemlet {

/// How a menu item or a toolbar button looks at start.
enum class Look {
    plain,
    unchecked, ///< checkable, not checked
    checked,   ///< checkable, checked
    hidden     ///< a popup menu, which is not on the menu bar
};

struct MenuItem {
    Name name;                   ///< empty for a separator
    std::string_view caption;    ///< & marks the mnemonic; "-" is a separator
    std::string_view shortcut{}; ///< such as "Ctrl+E", or several: "Ctrl+X; Ctrl+Q"
    Look look = Look::plain;
};

/// Keys of a command that no menu shows.
struct Shortcut {
    Name name;
    std::string_view keys; ///< such as "Ctrl+Z", or several: "Ctrl+Shift+Z; Ctrl+Y"
    bool repeats = false;  ///< again and again while the key is held
};

/// A mouse pointer: the name of its picture of 24 by 24 pixels, and its hot spot in pixels of that picture.
struct Cursor {
    std::string_view picture;
    int hotX;
    int hotY;
};

/// The window with the canvas: menus, toolbar, mouse pointer, and controls that lie on the canvas.
class MainWindow : public virtual Window {
public:
    /// Ends the program's main loop, even while dialogs are open.
    virtual void endProgram() = 0;

    /// Appends a row to the menus. Depth 0 is the menu bar. A deeper row goes into the menu of the last row one level
    /// above, so its depth is at most one more than that of the row before it.
    virtual void addMenuItem(int depth, const MenuItem& item) = 0;
    /// Makes keys report a click with the shortcut's name. A text box with the focus keeps these keys.
    virtual void addShortcut(const Shortcut& shortcut) = 0;
    /// Opens a popup menu at a place, or at the nearest edge of the canvas, and returns at once.
    virtual void popUp(Name menu, Point place) = 0;
    /// Appends a button to the toolbar, with the picture of this name. An empty key appends a separator. A checkable
    /// button looks pressed while it is checked, and only setChecked() changes that.
    virtual void addToolButton(Name key, std::string_view tip, Look look) = 0;
    /// Draws a bar of a colour over a toolbar button's picture.
    virtual void setSwatch(Name key, Color color) = 0;
    /// Checks or unchecks a menu item or a toolbar button.
    virtual void setChecked(Name item, bool checked) = 0;
    [[nodiscard]] virtual bool checked(Name item) const = 0;

    /// Sets the mouse pointer over the canvas.
    virtual void setCursor(const Cursor& cursor) = 0;
    /// Whether a place is on the part of the canvas that the window shows.
    [[nodiscard]] virtual bool isOnCanvas(Point place) const = 0;
    /// Move a control that lies on the canvas. In twips; it may lie beyond the edges.
    virtual void setLeft(Name control, double twips) = 0;
    virtual void setTop(Name control, double twips) = 0;
    /// Moves a visible control to a corner of the canvas where it covers neither the place nor the other control, and
    /// no window covers it, as far as possible. Of several such corners, takes the one farthest from the place.
    virtual void placeAwayFrom(Name control, Point place, Name other) = 0;

    /// Toggles the mark of a menu item.
    void flipChecked(Name item);
};

} // namespace schemlet
