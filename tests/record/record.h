#pragma once

#include "tests/support/rig.h"

namespace schemlet {

/// What the program draws and decides, as texts that are compared with golden_record.txt.
struct Section {
    std::string title, body;
};

using Record = std::vector<Section>;

/// An item of the menus that runs a command.
struct Item {
    Name name;
    std::string title; ///< the captions on the way there

    [[nodiscard]] std::string click() const { return "click " + std::string(name.text()); }
};

/// All of them below these menus of the bar.
std::vector<Item> itemsOf(std::initializer_list<Name> menus);

/// Answers all questions alike; has a colour of its own for each family, for wires, for the canvas and for what is
/// drawn before a colour is chosen.
struct NotingRig : Rig {
    static constexpr Color colorInHand = 100;

    explicit NotingRig(int heading, const char* reply = "yes");

    /// What is drawn and asked, and how that leaves the canvas.
    std::string after(std::string_view script);
};

/// All that an event did: strokes, questions, and what is otherwise than before.
std::string played(Rig& rig, std::string_view event);

// Each adds its sections.
void recordDrawing(Record& record);   ///< each call that reaches the canvas, and what it leaves there
void recordClicks(Record& record);    ///< menus, hints and what follows a click
void recordChanges(Record& record);   ///< which squares a stroke changed, and taking that back
void recordInk(Record& record);       ///< the pixels of strokes
void recordScenarios(Record& record); ///< what the program decides, event by event

} // namespace schemlet
