#pragma once

#include "platform/name.h"
#include "platform/surface.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace schemlet {

/// A top-level window and its named controls. An unknown name is a fault in the code and ends the program. Texts are
/// UTF-8.
class Window {
public:
    virtual ~Window() = default;

    virtual void setCaption(std::string_view title) = 0;
    /// Shows the window or brings it to the front. The other windows stay usable.
    virtual void showWindow() = 0;
    /// Shows the window where it covers little of the main window, which keeps the focus.
    virtual void showWithoutKeyboard() = 0;
    virtual void hideWindow() = 0;
    /// Closes the window for good and stops its timers.
    virtual void unload() = 0;
    /// Sets the height inside the frame, in twips; height() returns exactly that number.
    virtual void setHeight(int twips) = 0;
    [[nodiscard]] virtual int height() const = 0;
    /// Prints the window's image on the default printer. Throws RuntimeError(Fault::printerError).
    virtual void printForm() = 0;

    virtual void setVisible(Name control, bool visible) = 0;
    [[nodiscard]] virtual bool visible(Name control) const = 0;
    virtual void setEnabled(Name control, bool enabled) = 0;
    [[nodiscard]] virtual bool enabled(Name control) const = 0; ///< even if its parent is disabled
    /// Gives a control the focus, and selects its text if it has one.
    virtual void focus(Name control) = 0;
    virtual void setText(Name control, std::string_view text) = 0;
    [[nodiscard]] virtual std::string text(Name control) const = 0;
    /// The text that a screen reader reads after a control's name, and again whenever the text changes.
    virtual void setDescription(Name control, std::string_view text) = 0;
    /// The text of the tool tip.
    virtual void setTip(Name control, std::string_view text) = 0;
    /// 1 for a chosen option button or a ticked check box, otherwise 0; from 0 to 100 for a progress bar. A new value
    /// reports no click.
    virtual void setValue(Name control, int value) = 0;
    [[nodiscard]] virtual int value(Name control) const = 0;
    /// Sets a control's background colour, and a text colour that is readable on it.
    virtual void setBackColor(Name control, Color color) = 0;
    /// Calls draw with a surface of the fixed size of a label or a button, and shows the picture there. The picture has
    /// the screen's pixel ratio.
    virtual void drawPicture(Name control, void (*draw)(Surface&)) = 0;

    /// Starts a timer that ticks every so many milliseconds, 1 or more; 0 stops it.
    virtual void setInterval(Name timer, int milliseconds) = 0;

    // For several controls, in the given order.
    void show(std::initializer_list<Name> controls);
    void hide(std::initializer_list<Name> controls);
    void enable(std::initializer_list<Name> controls);
    void disable(std::initializer_list<Name> controls);

    /// Shows a hidden control, or hides a visible one.
    void flipVisible(Name control);
};

} // namespace schemlet
