// What each symbol of the library is wired to: its menu items, question, colour, way of the pen and marker. The strokes
// are checked by the symbol sheet.

#include "tests/support/stand_ins.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;
constexpr Color green = 0x00FF00;

/// For which headings it draws.
enum class Draws { always, toTheRight, eachWay };

struct Row {
    Name item;
    const char* title;
    Name question, color; ///< the menu items that switch and pick it
    int dx, dy;           ///< the pen's way, heading right
    bool marker = false;  ///< goes with the pen's x
    Draws draws = Draws::always;
};

const Row library[] = {
    {"and", "This draws an AND GATE", "gg", "gatescolor", 325, 50, true, Draws::toTheRight},
    {"or", "This draws an OR GATE", "gg", "gatescolor", 300, 90, true, Draws::toTheRight},
    {"nor", "This draws a NOR GATE", "gg", "gatescolor", 375, 90, true, Draws::toTheRight},
    {"nand", "This draws a NAND GATE", "gg", "gatescolor", 385, 75, true, Draws::toTheRight},
    {"exor", "This draws an EX-OR GATE", "gg", "gatescolor", 380, 90},
    {"exnor", "This draws an EX-NOR GATE", "gg", "gatescolor", 480, 100},
    {"not", "This draws a NOT GATE", "gg", "gatescolor", 375, 75, true, Draws::eachWay},
    {"buffering", "This draws a BUFFER", "buffer1", "buffercolor", 300, 0, true, Draws::eachWay},
    {"opamp", "This draws an OP-AMP", "opamp1", "opampcolor", 0, 0},
    {"diode", "This draws a ZENER DIODE", "dii", "diodescolor", 230, 0},
    {"pndoide", "This draws a PN DIODE", "dii", "diodescolor", 230, 0, false, Draws::eachWay},
    {"npdiode", "This draws a NP DIODE", "dii", "diodescolor", 220, 0, false, Draws::eachWay},
    {"tunneldiode", "This draws a TUNNEL DIODE", "dii", "diodescolor", 0, 620},
    {"singlephase", "This draws a SINGLE PHASE TRANSFORMER", "tr", "transformercolor", 0, 0},
    {"centertapped", "This draws a CENTER TAPPED TRANSFORMER", "tr", "transformercolor", 0, 0},
    {"emitter", "This draws an NPN COMMON EMITTER", "npnt", "transistorcolor", 430, -200, true},
    {"base", "This draws an NPN COMMON BASE", "npnt", "transformercolor", 700, 0, true}, // the two share one colour
    {"collector", "This draws an NPN COMMON COLLECTOR", "npnt", "transistorcolor", 430, -200, true},
    {"emitter1", "This draws an PNP COMMON EMITTER", "pnpt", "transistorcolor", 430, -200, true},
    {"base1", "This draws an PNP COMMON BASE", "pnpt", "transistorcolor", 700, 0, true},
    {"collector1", "This draws an PNP COMMON COLLECTOR", "pnpt", "transistorcolor", 430, -200, true},
    {"nchannel", "This draws an N-CHANNEL JFET", "jfett", "transistorcolor", 0, 1660},
    {"pchannel", "This draws a P-CHANNEL JFET", "jfett", "transistorcolor", 0, 1660},
    {"SCR", "This draws a SCR THYRISTOR", "thy", "Thyristorscolor", 0, 1650},
    {"TRIAC", "This draws a TRIAC THYRISTOR", "thy", "Thyristorscolor", 200, 1670},
    {"DIAC", "This draws a DIAC THYRISTOR", "thy", "Thyristorscolor", 0, 1670},
    {"UJT", "This draws a UJT THYRISTOR", "thy", "Thyristorscolor", 0, 1660},
    {"acmotor", "This draws an AC MOTOR", "m", "motorcolor", 0, 820},
    {"dcmotor", "This draws a DC MOTOR", "m", "motorcolor", 0, 820},
    {"acgenerator", "This draws an AC GENERATOR", "g", "generatorcolor", 0, 820},
    {"dcgenerator", "This draws a DC GENERATOR", "g", "generatorcolor", 0, 820},
    {"armature", "This draws an ARMATURE", "aar", "ar", 0, 820},
    {"field", "This draws a FIELD", "f", "field1", 1500, 0},
};

/// Where a symbol meets green as the current colour, red as its family's, and no marker where the pen is.
struct ColouredBench : Bench {
    explicit ColouredBench(const Row& row)
    {
        dialogs.picked = red;
        click(row.color);
        surface.setForeColor(green);
        window.setLeft(control::Picture1, 77);
    }
};

std::string strokesOf(const Row& row, int heading)
{
    Bench bench;
    bench.form.confirm.fill(0);
    bench.form.heading = heading;
    bench.click(row.item);
    return bench.drawn();
}

} // namespace

TEST(Library, SymbolsDrawInTheirColourAndLeaveColourPenAndMarkerAsTheyShouldButRefusedChangeNothing)
{
    constexpr int notAsked = 0;
    for (const Row& row : library) {
        for (const int reply : {notAsked, answer::no, answer::yes}) {
            SCOPED_TRACE(std::string(row.item) + std::to_string(reply));
            ColouredBench bench(row);
            if (reply == notAsked) {
                bench.click(row.question);
            } else {
                bench.dialogs.expect(row.title, reply);
            }
            EXPECT_EQ(bench.window.checked(row.question), reply != notAsked);
            bench.click(row.item);
            EXPECT_EQ(bench.dialogs.lastPrompt, reply == notAsked ? "" : " Do you want to Continue ?");
            if (reply == answer::no) {
                EXPECT_EQ(bench.outcome(), "pen 1600 1500, marker 77 1200");
                EXPECT_EQ(bench.surface.foreColor, green);
                EXPECT_EQ(bench.form.diodeCount, 0);
                EXPECT_EQ(bench.dialogs.lastStyle, Box::yesNoQuestion);
                continue;
            }
            const Color drawn = row.color == "Thyristorscolor" ? green : red; // that item does nothing
            EXPECT_EQ(bench.surface.firstInkColor, drawn);
            // Of the diodes only a PN diode that was asked for keeps the colour.
            const bool reset = row.question == "dii" && (row.item != "pndoide" || reply == notAsked);
            EXPECT_EQ(bench.surface.foreColor, reset ? black : drawn);
            EXPECT_EQ(bench.form.x, 1600 + row.dx);
            EXPECT_EQ(bench.form.y, 1500 + row.dy);
            EXPECT_EQ(bench.window.at(control::Picture1).left, row.marker ? bench.form.x : 77);
            EXPECT_EQ(bench.window.at(control::Picture1).top, 1200);
            EXPECT_EQ(bench.form.diodeCount, row.item == "pndoide" || row.item == "npdiode" ? 1 : 0);
        }
    }
}

TEST(Library, HeadingsMeanNothingToMostOfIt)
{
    for (const Row& row : library) {
        SCOPED_TRACE(row.item);
        const std::string elsewhere = row.draws == Draws::always ? strokesOf(row, heading::right) : "";
        EXPECT_EQ(strokesOf(row, 7), elsewhere);
        if (row.draws != Draws::eachWay) {
            EXPECT_EQ(strokesOf(row, heading::up), elsewhere);
        }
    }
}

TEST(Library, OtherHeadingsMoveThePenByWaysOfTheirOwn)
{
    struct Case {
        Name item;
        int heading;
        const char* pen;
    };
    for (const Case& c : {Case{"buffering", heading::left, "1290 1500"}, Case{"buffering", heading::up, "1600 1190"},
                          Case{"buffering", heading::down, "1600 1810"}, Case{"not", heading::left, "1225 1575"},
                          Case{"not", heading::up, "1600 1125"}, Case{"not", heading::down, "1675 1875"},
                          Case{"pndoide", heading::left, "1380 1500"}, Case{"pndoide", heading::up, "1600 1280"},
                          Case{"pndoide", heading::down, "1600 1720"}, Case{"npdiode", heading::left, "1380 1500"},
                          Case{"npdiode", heading::up, "1600 1280"}, Case{"npdiode", heading::down, "1600 1720"}}) {
        SCOPED_TRACE(std::string(c.item) + std::to_string(c.heading));
        Bench bench;
        bench.form.confirm.fill(0);
        bench.form.heading = c.heading;
        bench.click(c.item);
        EXPECT_EQ(bench.pen(), c.pen);
    }
}

TEST(Library, GoesAheadAlsoWhereTheHeadingLetsNothingBeDrawn)
{
    const auto row = [](Name item) { return *std::ranges::find(library, item, &Row::item); };
    ColouredBench bench(row("not"));
    bench.form.confirm.fill(0);
    bench.form.heading = 7;
    bench.click("not");
    EXPECT_EQ(bench.outcome(), nothing); // the marker comes to the pen
    EXPECT_EQ(bench.surface.foreColor, red);
    bench.click("pndoide");
    bench.click("npdiode");
    EXPECT_EQ(bench.form.diodeCount, 2);
}
