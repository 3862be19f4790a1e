#pragma once

#include "canvas/form1.h"

namespace schemlet {

// Wire, as the arrow keys lay it.

/// One of the pen's four directions.
struct Direction {
    int key; ///< the code of its arrow key
    int heading;
    int dx, dy;
    int probe;        ///< the distance from the pen at which a crossing wire is looked for, twips
    int markerOffset; ///< of the marker's left edge from the pen, twips
};

// Null if there is none.
[[nodiscard]] const Direction* directionOfKey(int code);
[[nodiscard]] const Direction* directionOfHeading(int heading);

inline constexpr int stepLength = 50; ///< the wire of one arrow key, in twips

/// Draws wire in the foreground colour and moves the pen to its end. The length is in twips, 0 or more.
void layWire(Surface& surface, Pen& pen, const Direction& way, double length);

/// Draws a step of wire along the heading. Does nothing if the heading is no direction.
void layStep(Surface& surface, Pen& pen);

/// Closes the gap between the end of a wire, where the pen is, and what it meets.
void joinWire(Surface& surface, const Pen& pen);

/// Whether an arrow key that moved the pen like this drew a jumper, too.
[[nodiscard]] bool hopped(const Pen& from, const Pen& to);

/// Turns the pen without drawing.
void turnPen(Form1& form, const Direction& way);

enum class Crossing { none, refused, hopped };

/// Looks for a crossing wire ahead. If there is one and automatic jumpers are on, asks whether to draw a jumper, and
/// draws it.
Crossing lookAhead(Form1& form, const Direction& way);

/// Moves the marker to the end of a wire.
void placeMarkerBeside(Form1& form, const Direction& way);

} // namespace schemlet
