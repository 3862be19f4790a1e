#pragma once

#include "canvas/canvas_state.h"
#include "canvas/controls.h"
#include "canvas/history.h"
#include "platform/dialogs.h"
#include "platform/main_window.h"
#include "platform/pictures.h"

namespace schemlet {

/// What every command gets: the state and the way to the screen.
struct Form1 : CanvasState {
    Form1(Surface& canvas, MainWindow& main, Dialogs& boxes, Pictures& files, Window& help, Window& about,
          Window& output, Window& splash)
        : surface(canvas), window(main), dialogs(boxes), pictures(files), form2(help), form3(about), form4(output),
          form6(splash)
    {
    }

    History history;
    Surface& surface;
    MainWindow& window;
    Dialogs& dialogs;
    Pictures& pictures;
    Window& form2; ///< the help window
    Window& form3; ///< the about window
    Window& form4; ///< the Output window
    Window& form6; ///< the splash
};

/// The one shape of every command.
using Handler = void (*)(Form1&);

/// Sets the canvas's part of the state to its start values and puts the pen and the marker at their start. What it does
/// not assign stays: the families' colours, the tool in hand, automatic jumpers.
void resetCanvas(Form1& form);

} // namespace schemlet
