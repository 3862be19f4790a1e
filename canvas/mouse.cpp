#include "canvas/mouse.h"

#include "canvas/keyboard.h"
#include "platform/event.h"

namespace {

struct Offset {
    float dx, dy;
};

// Rings of the eraser, close enough to blot out a whole patch: at 10 pixels' width each one leaves a hole of its own.
constexpr Offset eraserRings[] = {{0, 0},   {-10, 0}, {10, 0},  {0, -10}, {0, 10},  {-20, 0}, {20, 0},
                                  {0, -20}, {0, 20},  {-30, 0}, {30, 0},  {0, -30}, {0, 30}};
constexpr float eraserRingRadius = 100;

void erase(const Form1& form, float x, float y)
{
    form.surface.setForeColor(form.canvasBackColor);
    for (const Offset& ring : eraserRings) {
        form.surface.circle(x + ring.dx, y + ring.dy, eraserRingRadius);
    }
}

void showEraserOutline(const Form1& form, float x, float y)
{
    form.controls.setVisible(control::Shape1, form.eraseMode == 1);
    if (form.eraseMode == 1) {
        form.controls.setLeft(control::Shape1, x - 225);
        form.controls.setTop(control::Shape1, y - 150);
    }
}

void choose(Form1& form, int CanvasState::*tool)
{
    form.lineTool = form.rectTool = form.pencilTool = 0;
    form.*tool = 1;
}

} // namespace

void mouseDown(Form1& form, int button, float x, float y)
{
    if (button == button::left) {
        form.x = x;
        form.y = y;
        form.surface.setCurrent(x, y);
    }
    if (button == button::right) {
        form.controls.popUp(control::rc, {x, y});
    }
}

void mouseMove(Form1& form, int buttons, float x, float y)
{
    form.pointer = Point{x, y};
    if (buttons == button::left && form.pencilTool == 1) {
        const Point from = form.surface.current();
        form.surface.line(static_cast<float>(from.x), static_cast<float>(from.y), x, y);
    }
    form.controls.setText(control::sb,
                          form.eraseHint == 1 ? " Press 'E' to return to normal mode " : " Press F1 for Help ");
    showEraserOutline(form, x, y);
    if (form.eraseMode == 1 && buttons == button::left) {
        erase(form, x, y);
    }
    if (form.toolboxFollow == 1) {
        form.controls.setLeft(control::Frame2, x);
        form.controls.setTop(control::Frame2, y);
    }
}

void mouseUp(Form1& form, int button, float x, float y)
{
    form.savedMark = 0;
    form.mouseUpX = x;
    form.mouseUpY = y;
    if (button != button::left) {
        return;
    }
    form.controls.setLeft(control::Picture1, x);
    form.controls.setTop(control::Picture1, y - markerRise);
    const Point from = form.surface.current();
    if (form.lineTool == 1) {
        form.surface.line(static_cast<float>(from.x), static_cast<float>(from.y), x, y);
    }
    if (form.rectTool == 1) {
        form.surface.box(static_cast<float>(from.x), static_cast<float>(from.y), x, y);
    }
}

void popUpAtPen(Form1& form)
{
    form.controls.popUp(control::rc, {form.x, form.y});
}

void linee(Form1& form)
{
    choose(form, &CanvasState::lineTool);
}

void rectan(Form1& form)
{
    choose(form, &CanvasState::rectTool);
}

void pencil1(Form1& form)
{
    choose(form, &CanvasState::pencilTool);
}

void eraser(Form1& form)
{
    eraser1(form);
}
