#include "symbols/symbol_protocol.h"

#include <algorithm>

namespace {

Point operator+(Point pen, Offset offset)
{
    return {pen.x + offset.dx, pen.y + offset.dy};
}

void draw(Surface& surface, const Stroke& stroke, Point pen, std::string_view value)
{
    const Point from = pen + stroke.from;
    const Point to = pen + stroke.to;
    switch (stroke.kind) {
    case Stroke::Kind::circle:
        surface.circle(static_cast<float>(from.x), static_cast<float>(from.y), static_cast<float>(stroke.radius));
        return;
    case Stroke::Kind::line:
        surface.line(static_cast<float>(from.x), static_cast<float>(from.y), static_cast<float>(to.x),
                     static_cast<float>(to.y));
        if (stroke.text.empty()) {
            return;
        }
        break;
    case Stroke::Kind::text: break;
    case Stroke::Kind::value: surface.print(value, stroke.endLine); return;
    }
    surface.print(stroke.text, stroke.endLine);
}

void movePen(CanvasState& state, Offset by)
{
    state.x += by.dx;
    state.y += by.dy;
}

} // namespace

void drawBranch(Form1& form, std::span<const Branch> branches, std::string_view value)
{
    const auto branch = std::ranges::find_if(
        branches, [&](const Branch& b) { return b.heading == anyHeading || b.heading == form.heading; });
    if (branch == branches.end()) {
        return;
    }
    const Point start{form.x, form.y};
    movePen(form, branch->before);
    const Point origin = branch->origin == Origin::movedPen ? Point{form.x, form.y} : start;
    for (const Stroke& stroke : branch->strokes) {
        draw(form.surface, stroke, origin, value);
    }
    movePen(form, branch->after);
}

void placeMarkerGateForm(Form1& form)
{
    // The pen's height is assigned first and overwritten at once: the top was meant, but keeps its place.
    form.controls.setLeft(control::Picture1, form.y - markerRise);
    form.controls.setLeft(control::Picture1, form.x);
}

void place(Form1& form, const Symbol& symbol)
{
    const bool asked = form.confirm[symbol.confirm] == 1;
    if (asked) {
        form.*symbol.answer = form.dialogs.messageBox(" Do you want to Continue ?", Box::yesNoQuestion, symbol.title);
        if (form.*symbol.answer != answer::yes) {
            return;
        }
    }
    if (symbol.count != nullptr) {
        ++(form.*symbol.count);
    }
    if (symbol.color != nullptr) {
        form.surface.setForeColor(form.*symbol.color);
    }
    drawBranch(form, symbol.branches);
    if (symbol.colorAfter == ColorAfter::toBlack || (symbol.colorAfter == ColorAfter::toBlackUnlessAsked && !asked)) {
        form.surface.setForeColor(black);
    }
    if (symbol.marker == Marker::gateForm) {
        placeMarkerGateForm(form);
    }
}
