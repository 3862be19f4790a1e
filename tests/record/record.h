#pragma once

#include <string>
#include <vector>

namespace schemlet {

/// What the program draws and decides, as texts that are compared with golden_record.txt.
struct Section {
    std::string title, body;
};

using Record = std::vector<Section>;

// Each adds its sections.
void recordDrawing(Record& record);   ///< each call that reaches the canvas, and what it leaves there
void recordClicks(Record& record);    ///< menus, hints and what follows a click
void recordChanges(Record& record);   ///< which squares a stroke changed, and taking that back
void recordInk(Record& record);       ///< the pixels of strokes
void recordScenarios(Record& record); ///< what the program decides, event by event

} // namespace schemlet
