#include "circuit/valued_components.h"

#include "canvas/notice.h"
#include "circuit/numbers.h"
#include "symbols/stroke_tables.h"

namespace schemlet {

namespace {

// The zigzag to the right ends 40 twips above the axis. The dot is apart from it.
constexpr auto resistorRight =
    strokes(line(0, 0, 100, -100), line(100, -100, 200, 200), line(200, 200, 350, -100), dot(500, -350),
            line(350, -100, 450, 200), value(), line(450, 200, 600, -100), line(600, -100, 700, 200),
            line(700, 200, 850, -100), line(850, -100, 950, 200), line(950, 200, 1050, -40));
// The rows of resistorRight turned, with another dot, and with the value one stroke later.
constexpr auto resistorLeft =
    join(turned(rows<1, 3>(resistorRight)), strokes(dot(-550, -400)), turned(rows<5, 5>(resistorRight)),
         turned(rows<7, 7>(resistorRight)), strokes(value()), turned(rows<8, 11>(resistorRight)));
constexpr auto resistorDown =
    strokes(line(0, 0, 100, 100), line(100, 100, -200, 200), line(-200, 200, 100, 300), line(100, 300, -200, 400),
            line(-200, 400, 100, 500), dot(-390, 300), line(100, 300, 101, 300), value(), line(100, 500, -200, 600),
            line(-200, 600, 100, 700), line(100, 700, -40, 750));
constexpr auto resistorUp =
    join(turned(rows<1, 5>(resistorDown)), strokes(dot(200, -500), line(-400, -500, -401, -500), value()),
         turned(rows<9, 11>(resistorDown)));
constexpr Branch resistorBranches[] = {{.heading = heading::right, .strokes = resistorRight, .after = {1050, 0}},
                                       {.heading = heading::left, .strokes = resistorLeft, .after = {-1050, 0}},
                                       {.heading = heading::up, .strokes = resistorUp, .after = {0, -750}},
                                       {.heading = heading::down, .strokes = resistorDown, .after = {0, 750}}};

// Five turns, one radius apart. To the right, two of them are drawn again over the text.
constexpr auto turnsRight =
    strokes(circle(150, 0, 150), circle(300, 0, 150), circle(450, 0, 150), circle(600, 0, 150), circle(750, 0, 150));
constexpr auto turnsDown =
    strokes(circle(0, 150, 150), circle(0, 300, 150), circle(0, 450, 150), circle(0, 600, 150), circle(0, 750, 150));
constexpr auto inductorRight =
    join(turnsRight, strokes(line(350, 200, 350, 201), value()), rows<2, 2>(turnsRight), rows<4, 4>(turnsRight));
constexpr auto inductorLeft = join(turned(turnsRight), strokes(line(-550, 200, -550, 201), value()));
constexpr auto inductorUp = join(turned(turnsDown), strokes(line(-450, -450, -450, -449), value()));
constexpr auto inductorDown = join(turnsDown, strokes(line(200, 450, 200, 449), value()));
constexpr Branch inductorBranches[] = {{.heading = heading::right, .strokes = inductorRight, .after = {900, 0}},
                                       {.heading = heading::left, .strokes = inductorLeft, .after = {-900, 0}},
                                       {.heading = heading::up, .strokes = inductorUp, .after = {0, -900}},
                                       {.heading = heading::down, .strokes = inductorDown, .after = {0, 900}}};

// The first plate reaches 180 twips to one side and 210 to the other, the second one 200 to both.
constexpr auto capacitorRight = strokes(line(0, 0, 0, -180), line(0, -180, 0, 210), value(), line(150, 200, 150, -200));
constexpr auto capacitorLeft = strokes(line(0, 0, 0, 180), line(0, 180, 0, -210), line(-150, -200, -150, 200), value());
constexpr auto capacitorUp = strokes(line(0, 0, 180, 0), line(180, 0, -210, 0), line(-500, -150, -501, -150), value(),
                                     line(-200, -150, 200, -150));
constexpr auto capacitorDown = strokes(line(0, 0, 180, 0), value(), line(180, 0, -210, 0), line(-200, 150, 200, 150));
constexpr Branch capacitorBranches[] = {{.heading = heading::right, .strokes = capacitorRight, .after = {160, 0}},
                                        {.heading = heading::left, .strokes = capacitorLeft, .after = {-160, 0}},
                                        {.heading = heading::up, .strokes = capacitorUp, .after = {0, -160}},
                                        {.heading = heading::down, .strokes = capacitorDown, .after = {0, 160}}};

double itself(double value)
{
    return value;
}

double reciprocal(double value)
{
    return 1 / value;
}

} // namespace

constexpr ValuedComponent resistor{" Enter Value of Resistance ",
                                   " RESISTANCE ",
                                   &CanvasState::resistanceColor,
                                   &CanvasState::resistValue,
                                   &CanvasState::resist,
                                   itself,
                                   resistorBranches};
constexpr ValuedComponent inductor{" Enter Value of Inductance ",
                                   " INDUCTANCE ",
                                   &CanvasState::inductanceColor,
                                   &CanvasState::inductValue,
                                   &CanvasState::induc,
                                   itself,
                                   inductorBranches};
constexpr ValuedComponent capacitor{" Enter Value of Capacitance ",
                                    " CAPACITANCE ",
                                    &CanvasState::capacitanceColor,
                                    &CanvasState::capacValue,
                                    &CanvasState::capac,
                                    reciprocal,
                                    capacitorBranches};

void place(Form1& form, const ValuedComponent& component)
{
    form.surface.setForeColor(form.*component.color);
    const std::string entered = form.dialogs.inputBox(component.prompt, component.title, "10").value_or("");
    std::string& typed = form.*component.typed;
    typed = entered.empty() ? "0" : entered;
    const double value = toNumber(typed);
    if (value != 0) {
        form.*component.total = checked(form.*component.total + component.share(value));
        if (!draw(form.surface, form, component.branches, typed)) {
            notify(form, countedOnly);
        }
    } else if (!entered.empty()) {
        notify(form, "A value of 0 draws nothing");
    }
    form.surface.setForeColor(black);
    moveMarkerLeft(form);
}

} // namespace schemlet
