#pragma once

#include "canvas/form1.h"

namespace schemlet {

// All colour commands share one dialog. After Cancel they use the colour picked last, even if another command picked
// it.

/// A colour of the state, and the dialog's title for it.
struct Colored {
    Color CanvasState::*color;
    std::string_view title;
};

/// What can be coloured. A new colour of a family applies to the symbols drawn from now on.
namespace colored {
inline constexpr Colored resistances{&CanvasState::resistanceColor, "Color of resistances"};
inline constexpr Colored inductances{&CanvasState::inductanceColor, "Color of inductances"};
inline constexpr Colored capacitances{&CanvasState::capacitanceColor, "Color of capacitances"};
inline constexpr Colored motors{&CanvasState::motorColor, "Color of motors"};
inline constexpr Colored generators{&CanvasState::generatorColor, "Color of generators"};
inline constexpr Colored transformers{&CanvasState::transformerColor, "Color of transformers and transistors"};
inline constexpr Colored armatures{&CanvasState::armatureColor, "Color of armatures"};
inline constexpr Colored fields{&CanvasState::fieldColor, "Color of fields"};
inline constexpr Colored gates{&CanvasState::gatesColor, "Color of gates"};
inline constexpr Colored diodes{&CanvasState::diodesColor, "Color of diodes"};
inline constexpr Colored buffers{&CanvasState::bufferColor, "Color of buffers"};
inline constexpr Colored opamps{&CanvasState::opampColor, "Color of op-amplifiers"};
inline constexpr Colored wires{&CanvasState::wireColor, "Color of wires"};
inline constexpr Colored canvas{&CanvasState::canvasBackColor, "Canvas color: wipes the drawing, Cancel too"};
} // namespace colored

template <const Colored& colored> void pickColor(Form1& form)
{
    form.pickedColor = form.dialogs.pickColor(colored.title, form.pickedColor).value_or(form.pickedColor);
    form.*colored.color = form.pickedColor;
}

/// Picks the wires' colour.
void forec(Form1& form);

/// Picks the canvas's colour and wipes the drawing. Black colours only the eraser's ink and the panel of supplies and
/// batteries, and wipes nothing.
void bc(Form1& form);

// Menu items that set no colour.
void batterycolor(Form1& form);
void Thyristorscolor(Form1& form);

} // namespace schemlet
