#pragma once

#include "canvas/form1.h"

namespace schemlet {

/// Turns the pen and lays wire, as the arrow key does, up to the next ink or to the column or row where the walk began,
/// whichever is nearer. If neither is ahead on the visible canvas, lays ten steps, but not beyond its edge. A pen
/// outside the visible canvas runs ten steps. In erase mode it only turns.
///
/// Ink joined to the pen's pixel or up to 5 pixels away belongs to what the pen has just drawn and does not end the
/// run. With automatic jumpers on, a run asks at each crossing, as the arrow key does. After No it ends at the crossing
/// wire; after Yes it starts again behind the jumper.
void run(Form1& form, int heading);

template <int heading> void run(Form1& form)
{
    run(form, heading);
}

/// Begins a walk at the pen. A run that comes back to this column or row ends there.
void beginWalk(Form1& form);

} // namespace schemlet
