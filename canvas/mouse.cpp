#include "canvas/mouse.h"

#include "canvas/keyboard.h"
#include "canvas/pen_marker.h"
#include "canvas/run.h"
#include "platform/event.h"

namespace schemlet {

namespace {

struct Offset {
    float dx, dy;
};

// The eraser draws several rings, because one ring of a pen 10 pixels wide leaves a hole in its middle.
constexpr Offset eraserRings[] = {{0, 0},   {-10, 0}, {10, 0},  {0, -10}, {0, 10},  {-20, 0}, {20, 0},
                                  {0, -20}, {0, 20},  {-30, 0}, {30, 0},  {0, -30}, {0, 30}};
constexpr float eraserRingRadius = 100;

void erase(Form1& form, Point place)
{
    form.surface.setForeColor(form.canvasBackColor);
    for (const Offset& ring : eraserRings) {
        form.surface.circle({place.x + ring.dx, place.y + ring.dy}, eraserRingRadius);
    }
}

void showEraserOutline(Form1& form, Point place)
{
    form.window.setVisible(control::Shape1, form.eraseMode == 1);
    if (form.eraseMode == 1) {
        form.window.setLeft(control::Shape1, place.x - 225);
        form.window.setTop(control::Shape1, place.y - 150);
    }
}

void choose(Form1& form, int CanvasState::*tool)
{
    form.lineTool = form.rectTool = form.pencilTool = 0;
    form.*tool = 1;
}

} // namespace

void mouseDown(Form1& form, int button, Point place)
{
    form.pointer = place; // an open menu may have received the moves before
    if (button == button::left) {
        form.x = place.x;
        form.y = place.y;
        beginWalk(form);
        form.surface.setCurrent(place);
    }
    if (button == button::right) {
        form.window.popUp(control::rc, place);
    }
}

void mouseMove(Form1& form, int buttons, Point place)
{
    form.pointer = place;
    if (buttons == button::left && form.pencilTool == 1) {
        form.surface.line(form.surface.current(), place);
    }
    form.window.setText(control::sb,
                        form.eraseHint == 1 ? " Press 'E' to return to normal mode " : " Press F1 for Help ");
    showEraserOutline(form, place);
    if (form.eraseMode == 1 && buttons == button::left) {
        erase(form, place);
    }
    if (form.toolboxFollow == 1) {
        form.window.setLeft(control::Frame2, place.x);
        form.window.setTop(control::Frame2, place.y);
    }
}

void mouseUp(Form1& form, int button, Point place)
{
    form.pointer = form.window.isOnCanvas(place) ? std::optional(place) : std::nullopt;
    form.savedMark = 0;
    form.mouseUpX = place.x;
    form.mouseUpY = place.y;
    if (button != button::left) {
        return;
    }
    setMarkerLeft(form, place.x);
    setMarkerTop(form, place.y - markerRise);
    const Point from = form.surface.current();
    if (form.lineTool == 1) {
        form.surface.line(from, place);
    }
    if (form.rectTool == 1) {
        form.surface.box(from, place);
    }
}

void popUpAtPen(Form1& form)
{
    form.window.popUp(control::rc, pointBeside(form));
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

} // namespace schemlet
