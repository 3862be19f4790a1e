#include "tests/record/record.h"

namespace schemlet {

// What the program decides. A scenario is a script for Rig::run. The record has everything that each event did.

namespace {

struct Scenario {
    const char* title = "";
    const char* script = "";
    Rig::Start start = Rig::Start::behindIt;
};

constexpr Scenario scenarios[] = {
    // Start
    {"The splash fills its bar and opens the main window on the tick after it is full",
     "tick Form6.Timer1; tick Form6.Timer2 20; tick Form6.Timer2", Rig::Start::atSplash},
    {"The splash makes way when it is closed", "close Form6", Rig::Start::atSplash},
    {"The help window shows itself once at start and leaves the keyboard alone", "tick Timer1; tick Timer1"},
    {"The marker blinks on and off, across its counter's wrap, too",
     "tick Timer2; tick Timer2; tick Timer2; tick Timer2 395; tick Timer2; tick Timer2; tick Timer2; tick Timer2"},
    // Keys
    {"Arrow keys turn the pen in erase mode, too", "e; right; left; up; down"},
    {"Only the menu item flips the mark of automatic jumpers", "j; click jj; J; click jj"},
    {"Any other key only marks the drawing changed",
     "key 36; click save < /a.JPEG; char 8364; click save < /a.JPEG; x; key 41; key 65; char 27"},
    {"Events that come while a box is open wait for its answer, except timer ticks",
     "r < meanwhile down < meanwhile release left 30 450 < meanwhile tick statusTimer < meanwhile tick Timer2 < 5"},
    // Keys that no menu shows
    {"A run lays wire like the arrow key, and leaves no gap at its end",
     "canvas 1700 1600; tick statusTimer; click runRight; tick statusTimer; click undo; tick statusTimer; click redo"},
    {"Run and turn in erase mode only turn the pen", "e; click runUp; click runLeft; e; click turnUp; click turnDown"},
    {"A dot is as wide in erase mode, and a text goes on where it was",
     "press left 900 900; release left 1200 900; click forec < 255; click dot; tick statusTimer; e; click dot; click "
     "undo"},
    {"A label stands beyond the pen, to the right if it has no direction",
     "click label < In; tick statusTimer; click turnLeft; click label < Out; click turnUp; click label < Vcc; "
     "click turnDown; click label < GND; click label < cancel; click label < ; click open < no < cancel; "
     "click label < Ω"},
    {"Repeat asks as the component itself does, even if that was refused or undone",
     "click repeat; tick statusTimer; click ground; click undo; click repeat; click undo; tick statusTimer; "
     "click and < no; click repeat < yes; r < abc; click new < no; click repeat < 5; J; click forec < 255; "
     "click repeat < cancel"},
    {"Repeat opens the panel with the kind and the value of the last source",
     "source V 12; click repeat; click Command3; s; choose Option2; text 7; click Command8; click repeat; "
     "click Command3; source + 9; s; click Command8; click repeat; click Command3; b; click Command7; click repeat"},
    {"Copy says so, or that there is nothing to copy", "click copy; tick statusTimer; right; click copy"},
    // Mouse
    {"Any button that comes up marks the drawing changed",
     "press left 900 900; release left 900 900; click save < /a.JPEG; press right 900 900; release right 900 900; "
     "click save < /a.JPEG; press middle 900 900; release middle 900 900; click rc"},
    {"A line before any press starts in the corner", "click linee; release left 300 450"},
    {"The pencil joins every motion while the left button alone is held",
     "click pencil1; press left 0 0; move left 15 30; move left 45 30; move left+right 90 90; move none 90 90"},
    {"The eraser's outline follows the mouse and goes with the next move after erase mode",
     "move none 1000 1000; click Image20; move none 1000 1000; e; move none 1000 1000"},
    {"The toolbox follows the mouse from a click on its handle or a move over itself to the next one",
     "click Label1; move none 5000 6000; hover Label1; hover Image1; hover Frame2; move none 100 200; hover Frame2; "
     "move none 100 200"},
    // Components
    {"Values add up, capacitances by their reciprocals",
     "R < 10; R < 4.5; R < -4; I < 0.5; I < 1E-1; C < 2; C < 2; C < -4"},
    {"Zero and Cancel draw nothing, but make the next stroke black and bring the marker",
     "press left 3000 3000; click forec < 255; right; R < 0; right; r < cancel; I <  -0.0 ; i < cancel; C < 0e5; "
     "c < cancel"},
    {"A bad value brings one message and leaves drawing, pen and total",
     "R < 1.7e308; R < abc; R < 1,5; R < 1e999; R < 1.7e308; C < 1e-320; C < 5"},
    {"Supplies add up, batteries replace each other, and no number is 0",
     "source V 5; source V 7; source A -0.5; source A ; source + 9; source + 6; source - 4; source - x"},
    // The panel of supplies and batteries
    {"The panel shows what each step needs, and gives the keyboard to the value",
     "S; choose Option3; text 5; click Command3; b; choose Option5; choose Option4; text 5; click Command3"},
    {"Cancel and Esc draw no supply, and keep the text",
     "s; click panel; s; click Command8; s; choose Option2; text 33; click Command8; s; choose Option3; click panel; "
     "source + 5"},
    {"Cancel and Esc draw no battery, and keep the text",
     "b; click panel; b; click Command7; b; choose Option5; text 33; click Command7; b; choose Option4; click panel; "
     "source V 5"},
    {"Esc cancels the family opened last, then the other", "s; b; click panel; click panel"},
    {"Esc does so in the other order", "b; s; click panel; click panel"},
    {"One click draws a battery, then a supply", "b; choose Option4; choose Option5; source A 3"},
    {"Without a kind nothing is drawn, and the panel stays open",
     "s; choose Option3; s; text 5; click Command3; click panel; b; choose Option4; b; text 5; click Command3"},
    {"A number too large leaves everything as it is", "source V 1e999"},
    {"A sum too large leaves sum, pen and drawing, and uses the choices up",
     "source V 1.7e308; b; choose Option4; source V 1.7e308; source A 5"},
    // The Output window
    {"Batteries count for nothing in the Output window", "click output; source + 9; source - 9; click output"},
    {"Capacitances count by their reciprocals", "C < 2; C < 2; click output; R < 10; click output"},
    // The sum must come back to 0 for that. Without capacitance, the frequency stays, too.
    {"Without resistance the last three results stay",
     "R < 10; I < 1; C < 4; click output; R < -10; I < 3; click output; R < 5; C < -4; click output; C < 1; "
     "click output; I < -4; click output"},
    {"Frequency needs both inductance and capacitance", "I < 1; click output; C < 4; click output"},
    {"Supplies are totals", "source V 5; source V 7; source A 0.5; click output; source V -12; click output"},
    {"Negative values have a frequency if both are", "I < -1; C < -4; R < -2; click output"},
    {"Very large and very small totals", "R < 1E+15; I < 1E-05; click output"},
    {"Values before the root of a negative number are shown", "source V 5; I < -1; C < 4; click output"},
    {"Values before a result that is too large are shown", "source V 5; I < 1E+300; C < 1E-300; click output"},
    {"The Output window prints itself", "click Form4.print"},
    // The status bar
    {"One update of the status bar serves all events before it",
     "canvas 9000 1450; up; e; j; click rectan; move none 6194 4575; tick statusTimer; e; j; left; hover; "
     "tick statusTimer"},
    {"The status bar says that there is no direction", "right; click open < no < cancel; tick statusTimer"},
    {"The pointer's place is shown again after hovering, a press or a release over the canvas",
     "hover Canvas 150 300; tick statusTimer; hover; tick statusTimer; press middle 165 300; tick statusTimer; hover; "
     "tick statusTimer; release middle 150 300; tick statusTimer; release middle 9000 300; tick statusTimer"},
    {"The toolbar shows tool, colors and erase mode",
     "click Fore < 1193046; click Eraser; click Pencil; tick statusTimer; click Box; tick statusTimer; click Line; "
     "tick statusTimer"},
    {"The status bar offers the panel's keys", "s; tick statusTimer; b; click Command8; tick statusTimer"},
    {"A notice ends with the next command or its time, not with a move, a release or hovering",
     "click batterycolor; tick statusTimer; move none 5 5; release right 15 15; hover Image1; tick statusTimer; j; "
     "tick statusTimer; click batterycolor; tick statusTimer; tick noticeTimer"},
    {"A notice says why nothing was drawn",
     "click gg; up; click and; left; click Image5; click not; right; click and; click open < no < cancel; click and; "
     "click emitter < yes; click not; R < cancel; click jumper; R < 4; source V 5; source + 9; up; click jumper; C < "
     "0; "
     "C < cancel; source - 9"},
    // Colors, questions, views
    {"A color for the canvas wipes it and reaches toolbox and panel, black only the panel",
     "click bc < 255; click backc < 0; tick statusTimer"},
    {"A cancelled color dialog gives the color picked last", "click gatescolor < 255; click forec < cancel"},
    {"Families are black until they get a color",
     "click dcmotor < yes; click dcgenerator < yes; click armature < yes; click field < yes; click buffering < yes; "
     "click opamp < yes"},
    {"Questions are switched off and on with their marks", "click gg; click gg; click npnt; click pnpt"},
    {"Every view has its mark",
     "click lll; click lll; click sss; click sss; click toolbox; click toolbox; click Image7; click ToolBox"},
    {"A menu without a command does nothing", "click gates; click unknown"},
    // The other windows
    {"The help window slides open in steps, the last one shorter",
     "click hheellpp; click Form2.Check1; tick Form2.Timer2 17; tick Form2.Timer2; click htu; click Form2.Check1; "
     "click Form2.Check1; tick Form2.Timer2 5; click Form2.Check1; tick Form2.Timer2"},
    {"The label ticks the box and does what the box does",
     "click htu; click Form2.Label23; click Form2.Label23; click Form2.Label23"},
    {"Windows hide by their buttons and frames",
     "click about; click Form3.Command1; click Form3.Command2; click Form2.Command1; close Form2; close Form3; "
     "close Form4"},
    // Undo
    {"Undo and redo bring back pen, marker, totals and what Output shows",
     "right; click undo; click redo; R < 4; click output; I < 2; click output; tick statusTimer; click undo; "
     "click undo; tick statusTimer; click redo; source V 5; source - 9; click pndoide < yes; click undo; click undo; "
     "click undo; click undo"},
    {"Undo leaves tools, colors and settings alone",
     "right; click forec < 255; click linee; e; click gg; click jj; click save < /a/b.JPEG; click undo"},
    {"Undoing New brings back all that it reset",
     "right; click save < /a/b.JPEG; click bc < 255; R < 4; click forec < 255; click eraser; click gg; click Label1; "
     "click new < no; click open; click undo; click open < cancel; click redo; click undo"},
    {"Undoing Open brings back the title, undoing anything else does not",
     "right; click open < no < /a/b.png; down; click forec < 255; click save < /c/d.JPEG; click undo; click undo; "
     "click redo"},
    {"A canvas color is taken back from toolbox and panel, too", "s; click bc < 255; click undo; click redo"},
    {"Without a step undo and redo do nothing",
     "right; click save < /a/b.JPEG; click redo; click undo; "
     "click save < /a/b.JPEG; click undo; click redo; press left 15 15; click undo; release left 15 15"},
    // Files
    {"Save writes the picture and names it in the title",
     "right; click save < /home/me/my circuit.JPEG; click save < cancel"},
    {"A failed save is told until the next one",
     "right; click save < /broken/a; tick statusTimer; click batterycolor; tick statusTimer; tick noticeTimer; right; "
     "click save < cancel; tick statusTimer; click save < /home/a.JPEG; tick statusTimer"},
    {"After a failed save New goes on, and the next New forgets it",
     "right; click new < yes < /broken/a; tick statusTimer; click new; tick statusTimer"},
    {"A failed save is forgotten with an answer of No", "right; click save < /broken/a; right; click new < no"},
    {"New proposes no name", "right; click save < /a/b.JPEG; click new; click save < cancel"},
    {"New asks only after a change, and Cancel keeps the drawing",
     "right; click new < cancel; click new < yes < /a/b.JPEG; click new"},
    {"New restores the start, but keeps tool, component colors and jumpers",
     "right; click bc < 255; click gatescolor < 255; click forec < 255; click linee; click jj; click gg; click eraser; "
     "click Label1; move left 900 900; s; choose Option2; click new < no; tick statusTimer"},
    {"New sets every total and result to 0",
     "R < 10; I < 1; C < 4; source V 5; source A 5; source + 5; source - 5; click npdiode < yes; click output; "
     "click new < no"},
    {"Open does nothing before an arrow key since start or New, but puts the pencil down",
     "click pencil1; click open; right; click new < no; click open"},
    {"Open takes the picture and its name", "right; click open < no < /a/b.png"},
    {"Open saves first", "right; click open < yes < /a/saved.JPEG < /a/b.png"},
    {"Cancelled, Open still changes the title", "right; click open < no < cancel"},
    {"Cancelled after saving, Open leaves no name in the title", "right; click open < yes < /a/saved.JPEG < cancel"},
    {"Open leaves everything on Cancel or for a broken picture",
     "right; click open < cancel; click open < no < /broken/a.png"},
    {"Print asks first", "click print < no; click print < cancel; click print < yes"},
    {"Exit asks even where nothing has changed", "click exit < cancel; click exit < no"},
    {"Exit goes on after a cancelled save", "click exit < yes < cancel"},
    {"The frame's button is Exit", "close < cancel; close < no"},
};

} // namespace

void recordScenarios(Record& record)
{
    for (const Scenario& scenario : scenarios) {
        Rig rig(scenario.start);
        std::string body;
        for (const std::string_view event : split(scenario.script, "; ")) {
            body += "> " + std::string(event) + "\n" + played(rig, event);
        }
        record.push_back({scenario.title, body});
    }
}

} // namespace schemlet
