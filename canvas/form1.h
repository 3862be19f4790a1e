#pragma once

#include "canvas/canvas_state.h"
#include "canvas/controls.h"
#include "canvas/history.h"
#include "platform/dialogs.h"
#include "platform/main_window.h"
#include "platform/pictures.h"

namespace schemlet {

struct Form1;

/// The type of every command.
using Handler = void (*)(Form1&);

/// The argument of every command: the state and the interfaces to the screen.
struct Form1 : CanvasState {
    Form1(Surface& canvas, MainWindow& main, Dialogs& boxes, Pictures& files, Window& help, Window& about,
          Window& output, Window& splash)
        : surface(canvas), window(main), dialogs(boxes), pictures(files), form2(help), form3(about), form4(output),
          form6(splash)
    {
    }

    History history;
    Handler lastComponent = nullptr; ///< the command of the last component, to be repeated
    Surface& surface;
    MainWindow& window;
    Dialogs& dialogs;
    Pictures& pictures;
    Window& form2; ///< the help window
    Window& form3; ///< the about window
    Window& form4; ///< the Output window
    Window& form6; ///< the splash
};

/// Gives the canvas's part of the state its start values and moves the pen and the marker to their start. Keeps the
/// families' colours, the chosen tool and automatic jumpers.
void resetCanvas(Form1& form);

} // namespace schemlet
