#include "tests/gui/steps.h"

#include <string_view>

void clickWords(Program& program, const QString& words)
{
    waitForWords(words);
    const QPoint place = findWords(words).center();
    program.xdotool({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "1"});
}

void expect(Program& program, const Outcome& outcome)
{
    if (outcome.window != nullptr) {
        program.waitForWindow(outcome.window);
    }
    if (outcome.words != nullptr) {
        waitForWords(outcome.words);
    }
    if (outcome.window == nullptr) {
        return;
    }
    program.keys({"Escape"});
    if (std::string_view(outcome.window) == "Save") {
        program.waitForWindow("Schemlet 2.0");
        waitForWords("Unkown error while saving file");
        program.keys({"Escape"});
    }
    program.waitForMainWindow();
}

void openMenu(Program& program, int place)
{
    program.keys({"alt+f"});
    for (; place != 0; place += place > 0 ? -1 : 1) {
        program.keys({place > 0 ? "Right" : "Left"});
    }
}

QImage lookOf(Program& program, const char* menu, const char* item)
{
    clickWords(program, menu);
    waitForWords(item);
    const QRect place = findWords(item).adjusted(-30, -4, 4, 4);
    QImage look = screen(place);
    program.xdotool({"click", "1"}); // on the menu's caption still; Escape would leave the keyboard with the menu bar
    program.moveMouse(5, 5);
    waitUntil("no menu", [&] { return screen(place) != look; });
    waitForWords(menu); // dark again, so the menu bar is at rest
    return look;
}
