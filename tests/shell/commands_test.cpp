#include "shell/commands.h"

#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

// Captions are the product's own, blanks and misspellings included: a change must be meant.
TEST(Menus, AreThisTree)
{
    const Bench bench;
    EXPECT_EQ(bench.window.menus, R"(edit| &Edit |
 eraser|&Eraser|Ctrl+E
 |-|
 pencil1|&Pencil|Ctrl+C
 |-|
 rectan|&Rectangle|Ctrl+R
 |-|
 linee|&Line|Ctrl+L
 |-|
 ground|&Ground|Ctrl+G
 |-|
 jumper|Jumper|Ctrl+J
electricalcomponents| &Electrical Components |
 resistance|&Resistance|
 |-|
 inductance|&Inductance|
 |-|
 capacitance|&Capacitance|
 |-|
 motor|&Motors|
  acmotor|&A.C Motor|
  |-|
  dcmotor|&D.C Motor|
 |-|
 generator|&Generators|
  acgenerator|&A.C Generator|
  |-|
  dcgenerator|&D.C Ggenerator|
 |-|
 transformer|&Transformer|
  singlephase|&Single Phase|
  |-|
  centertapped|&Center Tapped|
 |-|
 armature|&Armature|
 |-|
 field|&Field|
electroniccomponets| E&lectronic Components |
 npn|&NPN Transistors|
  emitter|Common &Emitter|
  |-|
  base|Common &Base|
  |-|
  collector|Common &Collector|
 |-|
 pnp|&PNP Transistors|
  emitter1|Common &Emitter|
  |-|
  base1|Common &Base|
  |-|
  collector1|Common &Collector|
 |-|
 jfet|&JFET Transistors|
  nchannel|&N Channel|
  |-|
  pchannel|&P Channel|
 |-|
 Thyristors|T&hyristors|
  SCR|&SCR|
  |-|
  TRIAC|&TRIAC|
  |-|
  DIAC|&DIAC|
  |-|
  UJT|&UJT|
 |-|
 gates|&Gates|
  and|&AND Gate|
  |-|
  or|&OR Gate|
  |-|
  not|&NOT Gate|
  |-|
  nor|NO&R Gate|
  |-|
  nand|N&AND Gate|
  |-|
  exor|EX - &OR Gate|
  |-|
  exnor|EX - &NOR Gate|
 |-|
 diodes|&Diodes|
  diode|&Zener Diode|
  |-|
  pndoide|&PN Diode|
  |-|
  npdiode|&NP Diode|
  |-|
  tunneldiode|&Tunnel Diode|
 |-|
 buffering|&Buffer|
 |-|
 opamp|&Op - Amplifier|
rc|&Rightclick|
 eras|&Eraser|
 |-|
 penc|&Pencil|
 rectang|&Rectangle|
 lineee|&Line|
ae| &Enable |
 jj|Automatic Jumper|
)");
}
