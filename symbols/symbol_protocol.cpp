#include "symbols/symbol_protocol.h"

#include "canvas/notice.h"

#include <algorithm>
#include <cctype>
#include <string>

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

/// What its title calls it: of "This draws an AND GATE" it is "An AND gate".
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
    std::string headings;
    for (const Branch& branch : symbol.branches) {
        headings += headings.empty() ? "" : " or ";
        headings += headingName(branch.heading);
    }
    notify(form, nameOf(symbol) + " needs the pen heading " + headings);
}

} // namespace

bool drawBranch(Form1& form, std::span<const Branch> branches, std::string_view value)
{
    const auto branch = std::ranges::find_if(
        branches, [&](const Branch& b) { return b.heading == anyHeading || b.heading == form.heading; });
    if (branch == branches.end()) {
        return false;
    }
    const Point start{form.x, form.y};
    movePen(form, branch->before);
    const Point origin = branch->origin == Origin::movedPen ? Point{form.x, form.y} : start;
    for (const Stroke& stroke : branch->strokes) {
        draw(form.surface, stroke, origin, value);
    }
    movePen(form, branch->after);
    return true;
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
    if (!drawBranch(form, symbol.branches)) {
        sayWhyNotDrawn(form, symbol);
    }
    if (symbol.colorAfter == ColorAfter::toBlack || (symbol.colorAfter == ColorAfter::toBlackUnlessAsked && !asked)) {
        form.surface.setForeColor(black);
    }
    if (symbol.marker == Marker::gateForm) {
        placeMarkerGateForm(form);
    }
}
