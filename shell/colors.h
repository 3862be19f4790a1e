#pragma once

#include "canvas/canvas_state.h"

// All colour commands share one dialog. After Cancel they take the colour that was picked last, by whichever of them.

/// Sets one colour variable; the symbols look at it when they are drawn next.
template <Color CanvasState::*color> void pickColor(Form1& form)
{
    form.*color = form.dialogs.pickColor();
}

/// The wires' colour.
void forec(Form1& form);

/// The canvas's colour, which wipes the drawing. Black reaches only the panel of supplies and batteries.
void bc(Form1& form);
