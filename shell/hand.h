#pragma once

#include "canvas/canvas_state.h"
#include "platform/quiet.h"

#include <string_view>

/// Draws on any surface by the program's own commands, as fast as they run: for the program's own pictures of its
/// symbols. Starts at (0, 0), heading right. Places and lengths are twips.
class Hand {
public:
    explicit Hand(Surface& surface);

    /// The pen's state, to give it colours.
    [[nodiscard]] CanvasState& state() { return m_form; }

    void goTo(int x, int y);
    /// Lays wire by an arrow key, in whole steps: at least as far as asked.
    void wire(int arrow, int twips);
    /// Places a component; a value is typed into the box of one that asks, which else takes its preset. Throws what the
    /// component throws.
    void put(Handler component, std::string_view value = {});
    /// Places a source, by the option of its kind.
    void putSource(Name option);

private:
    QuietWindow m_window;
    QuietDialogs m_dialogs;
    QuietPictures m_pictures;
    Form1 m_form;
};
