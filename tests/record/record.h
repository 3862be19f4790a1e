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

/// All items of these menus.
std::vector<Item> itemsOf(std::initializer_list<Name> menus);

/// A rig that gives every question the same answer. Families, wires and the canvas have different colours, and so has
/// everything that is drawn before a colour is set.
struct NotingRig : Rig {
    static constexpr Color colorInHand = 100;

    explicit NotingRig(int heading, const char* reply = "yes");

    /// The strokes and questions of a script, and the state of the canvas after it.
    std::string after(std::string_view script);
};

/// Everything that an event did: strokes, questions, and changes.
std::string played(Rig& rig, std::string_view event);

// Each function adds its sections.
void recordDrawing(Record& record);   ///< the strokes of every component and tool
void recordClicks(Record& record);    ///< menus, hints and the effects of clicks
void recordChanges(Record& record);   ///< the squares that strokes change, undo and redo
void recordInk(Record& record);       ///< the pixels of strokes
void recordScenarios(Record& record); ///< what the program decides, event by event

} // namespace schemlet
