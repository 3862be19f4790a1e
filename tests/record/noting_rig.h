#pragma once

#include "tests/support/stand_ins.h"

#include <utility>

namespace schemlet {

/// An item of the menus that runs a command.
struct Item {
    Name name;
    std::string title; ///< the captions on the way there
};

/// All of them below these menus of the bar.
std::vector<Item> itemsOf(std::initializer_list<Name> menus);

/// Notes questions among the ink and answers them all alike; has a colour of its own for each family, for wires, for
/// the canvas and for what is drawn before a colour is chosen.
struct NotingRig : Rig {
    static constexpr Color colorInHand = 100;

    explicit NotingRig(int heading, int reply = answer::yes)
    {
        static const std::vector<Item> pickers = itemsOf({"cc", "fc"});
        dialogs.picked = colorInHand;
        for (const Item& item : pickers) {
            ++*dialogs.picked;
            click(item.name);
        }
        drawn();
        dialogs.lastTitle = "";
        dialogs.always = {reply, reply == answer::yes ? "4.70" : ""};
        surface.notesColors = true;
        surface.setForeColor(colorInHand);
        window.setLeft(control::Picture1, 77);
        form.heading = heading;
    }

    /// What happens while somebody does this, and how it leaves the canvas.
    template <typename Action> std::string after(Action act)
    {
        dialogs.lastTitle = "";
        dialogs.meanwhile = [this] { noteQuestion(); };
        act(*this);
        dialogs.meanwhile = nullptr;
        return outcome() + ", text " + shortest(surface.current().x) + " " + shortest(surface.current().y) +
               ", color " + std::to_string(surface.foreColor) +
               (surface.drawWidth() == 2 ? "" : ", width " + std::to_string(surface.drawWidth())) + totals() + "\n";
    }

    std::string totals()
    {
        constexpr std::pair<const char*, double CanvasState::*> sums[] = {
            {", resistance ", &CanvasState::resist},
            {", inductance ", &CanvasState::induc},
            {", 1/capacitance ", &CanvasState::capac},
            {", voltage ", &CanvasState::supplyVoltage},
            {", current ", &CanvasState::supplyCurrent},
            {", positive battery ", &CanvasState::batteryPositive},
            {", negative battery ", &CanvasState::batteryNegative}};
        std::string text;
        for (const auto& [name, sum] : sums) {
            text += form.*sum != 0 ? name + shortest(form.*sum) : "";
        }
        return form.diodeCount != 0 ? text + ", diodes " + std::to_string(form.diodeCount) : text;
    }

    void noteQuestion()
    {
        constexpr std::array styles{"OK", "warning, OK", "question, Yes No", "question of the walk, Yes No",
                                    "warning, Yes No Cancel"};
        const auto style = static_cast<std::size_t>(std::exchange(dialogs.lastStyle, Box::okOnly));
        surface.ink.push_back("asks |" + dialogs.lastTitle + "|" + dialogs.lastPrompt + "| " + styles.at(style));
    }
};

} // namespace schemlet
