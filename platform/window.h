#pragma once

#include <string_view>

/// The name of a control, a menu item or a timer. Always one of the program's constants, so that it may be kept.
using Name = std::string_view;

enum class Look {
    plain,
    unchecked, ///< a check item whose mark is off at start
    hidden     ///< a menu that is not on the bar but pops up at the mouse
};

struct MenuItem {
    Name name;                   ///< empty for a separator
    std::string_view caption;    ///< & marks the mnemonic; "-" is a separator
    std::string_view shortcut{}; ///< such as "Ctrl+E"
    Look look = Look::plain;
};

/// A top-level window and its named controls. A name the window does not have is a fault of the program and ends it.
class Window {
public:
    virtual ~Window() = default;

    virtual void setCaption(std::string_view title) = 0;
    virtual void showWindow() = 0;

    /// Appends a row to the menus: depth 0 is the bar itself, each further depth lies under the last row above it.
    virtual void addMenuItem(int depth, const MenuItem& item) = 0;
    /// Opens a hidden menu at the mouse and returns at once.
    virtual void popUp(Name menu) = 0;
    virtual void setChecked(Name item, bool checked) = 0;
    [[nodiscard]] virtual bool checked(Name item) const = 0;

    virtual void setVisible(Name control, bool visible) = 0;
    [[nodiscard]] virtual bool visible(Name control) const = 0;
    virtual void setText(Name control, std::string_view text) = 0;
    /// Places a control that lies on the canvas; twips, any distance beyond the edges included.
    virtual void setLeft(Name control, double twips) = 0;
    virtual void setTop(Name control, double twips) = 0;

    /// Starts a timer that ticks until its interval is set to 0.
    virtual void setInterval(Name timer, int milliseconds) = 0;
};
