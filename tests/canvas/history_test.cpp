#include "canvas/history.h"

#include "tests/support/rig.h"

#include <malloc.h>

namespace schemlet {

namespace {

/// Undoes all steps. Returns their names, the last step first.
std::string takenBack(Rig& rig)
{
    std::string names;
    while (!rig.form.history.undoable().empty()) {
        names += (names.empty() ? "" : ", ") + std::string(rig.form.history.undoable());
        rig.run("click undo");
    }
    return names;
}

} // namespace

TEST(History, MakesOneStepOfWhatAPersonSeesAsOne)
{
    for (const auto& [script, steps] : std::initializer_list<std::pair<const char*, const char*>>{
             {"right; right; right", "wire"},
             {"right; right; down; left", "wire, wire, wire"},
             {"right; tick Timer2; tick statusTimer; move none 15 15; hover Image1; right", "wire"},
             {"right; tick Timer2; right; tick Timer2; right", "wire"},
             {"right; tick Timer2 2; right", "wire, wire"},
             {"click htu; click Form2.Check1; right; tick Form2.Timer2 2; right", "wire"},
             {"right; click save < /a/b.JPEG; right; click save < /broken/a; right", "wire"},
             {"right; press left 900 900; release left 900 900; right", "wire, wire"},
             {"right; press middle 900 900; right; click undo; release middle 900 900", "wire, wire"},
             {"right; x; right", "wire, wire"},
             {"e; right; left", ""},
             {"right; e; press left 1590 1500; move left 1600 1500; release left 1600 1500; e", "eraser, wire"},
             {"click pencil1; press left 900 900; move left 960 900; tick Timer2 3; move left 990 990; "
              "release left 990 990; press left 900 900; release left 900 900",
              "pencil"},
             {"click linee; press left 900 900; release left 990 990; click Box; press left 900 300; "
              "release left 990 990",
              "rectangle, line"},
             {"press left 900 900; right; r < 5; click undo; click ground; release left 900 900", "wire"},
             {"click and < yes; click and < no; left; click and < yes", "wire, AND Gate"},
             {"r < 5; r < cancel; r < abc; r < 0; click Image16 < 2", "Inductance, Resistance"},
             {"right; click open < no < cancel; r < 5; i < 5; c < 5; source A 5; source V 5; source - 5; source + 5; "
              "click npdiode < yes", // counted, but not drawn
              "NP Diode, Battery, Battery, Supply, Supply, Capacitance, Inductance, Resistance, wire"},
             {"source V 5; source - 9; s; choose Option3; s; text 5; click Command3", "Battery, Supply"},
             {"click gatescolor < 255; click forec < 255; click gg; click jj; click toolbox; click print < yes", ""},
             {"click output; R < 4; click output", "Resistance"},
             {"click bc < 255; click Back < 255; click backc < 0", "Backcolor, Backcolor"},
             {"right; click new < cancel; click new < no; click new", "New, wire"},
             {"right; click open < cancel; click open < no < /broken/a; click open < no < /a/b.png", "Open, wire"},
             {"ahead 0; j; right < no; right < no; right < yes; right < no; right < no", "wire, Jumper, wire"},
             {"ahead 0; j; right < yes; right < yes; click jumper; click jumper", "Jumper, Jumper, Jumper, Jumper"},
             {"click repeat; click dot; click label < A; click copy; r < 5; click repeat < 6; click repeat < cancel",
              "Resistance, Resistance, label, junction dot"},
             {"press left 300 300; release left 300 300; click ground; down; click repeat", "Ground, wire, Ground"},
             {"press left 300 300; release left 300 300; click runRight; click turnLeft; click runDown; click runLeft; "
              "down; "
              "click runUp",
              "wire, wire, wire, wire, wire"},
             {"right; click undo; down; click redo", "wire"},
             {"right; down; click undo; press left 900 900; release left 900 900; e; e; click redo", "wire, wire"},
             {"right; click undo; right; right", "wire"}}) {
        SCOPED_TRACE(script);
        Rig rig;
        rig.run(script);
        EXPECT_EQ(takenBack(rig), steps);
        EXPECT_EQ(std::ranges::count(rig.surface.pixels(), white), std::ssize(rig.surface.pixels()));
        if (std::string_view(script).find("press") == std::string_view::npos) {
            EXPECT_EQ(placed(rig.form.x, rig.form.y), "1600 1500");
        }
    }
}

TEST(History, ForgetsOldStepsToLimitItsMemoryButNeverTheLast)
{
    Rig rig;
    rig.ink.kept = false;
    const auto draw = [&rig](const char* component, std::size_t bytes) {
        rig.run(component + std::string(" < ") + std::string(bytes, '0') + "5");
    };
    // A step stores the last text twice, before and after it. So eight steps take about 64 MB.
    for (const std::string y : {"300", "700", "1100"}) {
        rig.run("press left 1500 " + y + "; release left 1500 " + y);
        draw("r", 4 << 20);
        rig.run("right; right; down; left");
    }
    EXPECT_EQ(takenBack(rig), "wire, wire, wire, Resistance, wire, wire, wire");
    for (int i = 0; i < 12; ++i) {
        draw("r", 4 << 20);
    }
    const auto memory = mallinfo2();
    EXPECT_LT(memory.uordblks + memory.hblkhd, 90 << 20);
    for (int i = 0; i < 12; ++i) {
        rig.run("click undo; click undo");
        draw("r", 4 << 20);
        draw("r", 4 << 20);
    }
    EXPECT_EQ(std::ranges::count(takenBack(rig), 'R'), 7); // steps that redo lost count no more
    draw("r", 40 << 20);
    draw("i", 40 << 20);
    rig.run("click undo; click redo");
    EXPECT_EQ(takenBack(rig), "Inductance");
}

TEST(History, KeepsTheStepJustUndoneEvenIfStepsGrewByUndo)
{
    Rig rig;
    rig.surface.patchRoom = 900'000; // 27 MB
    rig.run("r < 1; i < 1; c < 1; source V 1; click undo; click undo; click undo");
    EXPECT_EQ(rig.form.history.undoable(), "");
    EXPECT_EQ(rig.form.history.redoable(), "Inductance");
    rig.run("click redo; click redo; click redo");
    EXPECT_EQ(takenBack(rig), "Capacitance, Inductance");
}

} // namespace schemlet
