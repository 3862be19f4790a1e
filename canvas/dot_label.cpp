#include "canvas/dot_label.h"

#include "canvas/notice.h"

namespace schemlet {

namespace {

/// The top left corner of a text of this width beside the pen.
Point labelPlace(const Pen& pen, double width)
{
    constexpr double gap = 4 * twipsPerPixel;
    switch (pen.heading) {
    case heading::left: return pointBeside(pen, -gap - width, -lineHeight / 2);
    case heading::up: return pointBeside(pen, -width / 2, -gap - lineHeight);
    case heading::down: return pointBeside(pen, -width / 2, gap);
    default: return pointBeside(pen, gap, -lineHeight / 2);
    }
}

} // namespace

void dot(Form1& form)
{
    constexpr int dotWidth = 9; // pixels: odd, to be centred on wire, which is 3 pixels wide
    form.savedMark = 0;
    const int penWidth = form.surface.drawWidth();
    form.surface.setForeColor(form.wireColor);
    form.surface.setDrawWidth(dotWidth);
    form.surface.circle(pointBeside(form), 0);
    form.surface.setDrawWidth(penWidth);
    notify(form, "Junction dot drawn");
}

void label(Form1& form)
{
    form.savedMark = 0;
    const auto text = form.dialogs.inputBox(" Enter Text of Label ", " LABEL ", "");
    if (!text || text->empty()) {
        return;
    }
    const double width = form.surface.textWidth(*text);
    const Point place = labelPlace(form, width);
    const Point end{static_cast<float>(place.x + width), static_cast<float>(place.y + lineHeight)};
    const bool isVisible = form.window.isOnCanvas(place) || form.window.isOnCanvas(end);
    const Point current = form.surface.current();
    form.surface.setForeColor(form.wireColor);
    form.surface.setCurrent(place);
    form.surface.print(*text, true);
    form.surface.setCurrent(current);
    notify(form, isVisible ? "Label drawn" : "The label is off the canvas");
}

} // namespace schemlet
