#pragma once

#include "platform/name.h"
#include "platform/surface.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace schemlet {

/// A top-level window and its named controls. A name that the window does not have is a fault of the program and ends
/// it. Texts are UTF-8.
class Window {
public:
    virtual ~Window() = default;

    virtual void setCaption(std::string_view title) = 0;
    /// Shows it beside the others, which stay usable, or brings it to the front.
    virtual void showWindow() = 0;
    /// Shows it where it covers little of the main window, which keeps the keyboard.
    virtual void showWithoutKeyboard() = 0;
    virtual void hideWindow() = 0;
    /// Closes it for good and ends its timers.
    virtual void unload() = 0;
    /// The height inside the frame, in twips, exactly as it was set last.
    virtual void setHeight(int twips) = 0;
    [[nodiscard]] virtual int height() const = 0;
    /// Prints the window's image on the default printer. Throws RuntimeError(Fault::printerError).
    virtual void printForm() = 0;

    virtual void setVisible(Name control, bool visible) = 0;
    [[nodiscard]] virtual bool visible(Name control) const = 0;
    virtual void setEnabled(Name control, bool enabled) = 0;
    [[nodiscard]] virtual bool enabled(Name control) const = 0; ///< the control's own switch
    /// Gives a control the keyboard, with its text selected if it has one.
    virtual void focus(Name control) = 0;
    virtual void setText(Name control, std::string_view text) = 0;
    [[nodiscard]] virtual std::string text(Name control) const = 0;
    /// What a screen reader says after a control's name, and again whenever it changes.
    virtual void setDescription(Name control, std::string_view text) = 0;
    /// What a control says when the mouse rests on it.
    virtual void setTip(Name control, std::string_view text) = 0;
    /// 1 for an option button that is chosen or a check box that is ticked, else 0; for a progress bar 0 to 100.
    /// Setting it does not count as a click.
    virtual void setValue(Name control, int value) = 0;
    [[nodiscard]] virtual int value(Name control) const = 0;
    /// Paints a control's ground, and its text so that it is readable there.
    virtual void setBackColor(Name control, Color color) = 0;
    /// Lets a label or a button show what is drawn on a surface of its fixed size, as sharp as the screen can.
    virtual void drawPicture(Name control, void (*draw)(Surface&)) = 0;

    /// Starts a timer that ticks every so many milliseconds, 1 or more; 0 stops it.
    virtual void setInterval(Name timer, int milliseconds) = 0;

    // The same for several controls, in the order given.
    void show(std::initializer_list<Name> controls);
    void hide(std::initializer_list<Name> controls);
    void enable(std::initializer_list<Name> controls);
    void disable(std::initializer_list<Name> controls);

    /// Shows a hidden control, hides a visible one.
    void flipVisible(Name control);
};

} // namespace schemlet
