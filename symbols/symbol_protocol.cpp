#include "symbols/symbol_protocol.h"

#include "canvas/notice.h"
#include "canvas/pen_marker.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace schemlet {

namespace {

void drawStroke(Surface& surface, const Stroke& stroke, const Pen& origin, std::string_view value)
{
    const Point from = pointBeside(origin, stroke.from.dx, stroke.from.dy);
    switch (stroke.kind) {
    case Stroke::Kind::circle: return surface.circle(from, static_cast<float>(stroke.radius));
    case Stroke::Kind::line:
        surface.line(from, pointBeside(origin, stroke.to.dx, stroke.to.dy));
        if (!stroke.text.empty()) {
            surface.print(stroke.text, stroke.endLine);
        }
        return;
    case Stroke::Kind::text: return surface.print(stroke.text, stroke.endLine);
    case Stroke::Kind::value: return surface.print(value, stroke.endLine);
    }
}

void move(Pen& pen, Offset by)
{
    pen.x += by.dx;
    pen.y += by.dy;
}

/// The symbol's name from the title of its question: "An AND gate" from "This draws an AND GATE".
std::string nameOf(const Symbol& symbol)
{
    std::string name(symbol.title.substr(std::string_view("This draws ").size()));
    name.front() = 'A';
    const auto lastWord = name.begin() + static_cast<std::ptrdiff_t>(name.rfind(' ') + 1);
    std::transform(lastWord, name.end(), lastWord,
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return name;
}

void sayWhyNotDrawn(Form1& form, const Symbol& symbol)
{
    if (headingName(form.heading).empty()) {
        return notify(form, noDirection);
    }
    // Symbols have branches for all four headings, for one, or the same for any.
    std::string reason = nameOf(symbol) + " needs the pen heading ";
    reason += headingName(symbol.branches.front().heading);
    notify(form, reason);
}

} // namespace

bool draw(Surface& surface, Pen& pen, std::span<const Branch> branches, std::string_view value)
{
    const auto branch = std::ranges::find_if(
        branches, [&](const Branch& b) { return b.heading == anyHeading || b.heading == pen.heading; });
    if (branch == branches.end()) {
        return false;
    }
    const Pen start = pen;
    move(pen, branch->before);
    const Pen origin = branch->origin == Origin::movedPen ? pen : start;
    for (const Stroke& stroke : branch->strokes) {
        drawStroke(surface, stroke, origin, value);
    }
    move(pen, branch->after);
    return true;
}

void moveMarkerLeft(Form1& form)
{
    // The first call has no effect: only the left edge follows the pen.
    setMarkerLeft(form, form.y - markerRise);
    setMarkerLeft(form, form.x);
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
    if (!draw(form.surface, form, symbol.branches, {})) {
        sayWhyNotDrawn(form, symbol);
    }
    if (symbol.colorAfter == ColorAfter::toBlack || (symbol.colorAfter == ColorAfter::toBlackUnlessAsked && !asked)) {
        form.surface.setForeColor(black);
    }
    if (symbol.marker == Marker::leftFollows) {
        moveMarkerLeft(form);
    }
}

} // namespace schemlet
