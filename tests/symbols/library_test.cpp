// What each symbol of the library is wired to: its question, switch, colour, way of the pen and marker. The strokes are
// checked by the symbol sheet.

#include "symbols/bipolar.h"
#include "symbols/buffer_not_opamp.h"
#include "symbols/diodes.h"
#include "symbols/gates.h"
#include "symbols/jfets.h"
#include "symbols/machines.h"
#include "symbols/thyristors.h"
#include "symbols/transformers.h"
#include "tests/support/stand_ins.h"

#include <gtest/gtest.h>

namespace {

constexpr Color red = 0x0000FF;
constexpr Color green = 0x00FF00;

struct Row {
    Handler draw;
    const char* title;
    Confirm confirm;
    Color CanvasState::*color; ///< none: the current one
    int dx, dy;                ///< the pen's way, heading right
    bool marker;               ///< goes with the pen's x
};

const Row library[] = {
    {and_, "This draws an AND GATE", gatesConfirm, &CanvasState::gatesColor, 325, 50, true},
    {or_, "This draws an OR GATE", gatesConfirm, &CanvasState::gatesColor, 300, 90, true},
    {nor, "This draws a NOR GATE", gatesConfirm, &CanvasState::gatesColor, 375, 90, true},
    {nand, "This draws a NAND GATE", gatesConfirm, &CanvasState::gatesColor, 385, 75, true},
    {exor, "This draws an EX-OR GATE", gatesConfirm, &CanvasState::gatesColor, 380, 90, false},
    {exnor, "This draws an EX-NOR GATE", gatesConfirm, &CanvasState::gatesColor, 480, 100, false},
    {buffer, "This draws a BUFFER", bufferConfirm, &CanvasState::bufferColor, 300, 0, true},
    {notgate, "This draws a NOT GATE", gatesConfirm, &CanvasState::gatesColor, 375, 75, true},
    {opamp, "This draws an OP-AMP", opampConfirm, &CanvasState::opampColor, 0, 0, false},
    {diode, "This draws a ZENER DIODE", diodesConfirm, &CanvasState::diodesColor, 230, 0, false},
    {diod, "This draws a PN DIODE", diodesConfirm, &CanvasState::diodesColor, 230, 0, false},
    {npdiode, "This draws a NP DIODE", diodesConfirm, &CanvasState::diodesColor, 220, 0, false},
    {tunneldiode, "This draws a TUNNEL DIODE", diodesConfirm, &CanvasState::diodesColor, 0, 620, false},
    {singlephase, "This draws a SINGLE PHASE TRANSFORMER", transformersConfirm, &CanvasState::transformerColor, 0, 0,
     false},
    {centertapped, "This draws a CENTER TAPPED TRANSFORMER", transformersConfirm, &CanvasState::transformerColor, 0, 0,
     false},
    {emitter, "This draws an NPN COMMON EMITTER", npnConfirm, &CanvasState::transformerColor, 430, -200, true},
    {base, "This draws an NPN COMMON BASE", npnConfirm, &CanvasState::transformerColor, 700, 0, true},
    {collector, "This draws an NPN COMMON COLLECTOR", npnConfirm, &CanvasState::transformerColor, 430, -200, true},
    {emitter1, "This draws an PNP COMMON EMITTER", pnpConfirm, &CanvasState::transformerColor, 430, -200, true},
    {base1, "This draws an PNP COMMON BASE", pnpConfirm, &CanvasState::transformerColor, 700, 0, true},
    {collector1, "This draws an PNP COMMON COLLECTOR", pnpConfirm, &CanvasState::transformerColor, 430, -200, true},
    {nchannel, "This draws an N-CHANNEL JFET", jfetConfirm, &CanvasState::transformerColor, 0, 1660, false},
    {pchannel, "This draws a P-CHANNEL JFET", jfetConfirm, &CanvasState::transformerColor, 0, 1660, false},
    {SCR, "This draws a SCR THYRISTOR", thyristorsConfirm, nullptr, 0, 1650, false},
    {TRIAC, "This draws a TRIAC THYRISTOR", thyristorsConfirm, nullptr, 200, 1670, false},
    {DIAC, "This draws a DIAC THYRISTOR", thyristorsConfirm, nullptr, 0, 1670, false},
    {UJT, "This draws a UJT THYRISTOR", thyristorsConfirm, nullptr, 0, 1660, false},
    {acmotor, "This draws an AC MOTOR", motorsConfirm, &CanvasState::motorColor, 0, 820, false},
    {dcmotor, "This draws a DC MOTOR", motorsConfirm, &CanvasState::motorColor, 0, 820, false},
    {acgenerator, "This draws an AC GENERATOR", generatorsConfirm, &CanvasState::generatorColor, 0, 820, false},
    {dcgenerator, "This draws a DC GENERATOR", generatorsConfirm, &CanvasState::generatorColor, 0, 820, false},
    {armature, "This draws an ARMATURE", armatureConfirm, &CanvasState::armatureColor, 0, 820, false},
    {field, "This draws a FIELD", fieldConfirm, &CanvasState::fieldColor, 1500, 0, false},
};

/// Green current colour, red family colour, no marker where the pen is.
struct ColouredBench : Bench {
    explicit ColouredBench(const Row& row)
    {
        surface.setForeColor(green);
        window.setLeft(control::Picture1, 77);
        if (row.color != nullptr) {
            form.*row.color = red;
        }
    }
};

std::string strokesOf(Handler draw, int heading = heading::right)
{
    Bench bench;
    bench.form.confirm.fill(0);
    bench.form.heading = heading;
    draw(bench.form);
    return bench.drawn();
}

} // namespace

TEST(Library, RefusedSymbolsChangeNothing)
{
    for (const Row& row : library) {
        SCOPED_TRACE(row.title);
        ColouredBench bench(row);
        bench.dialogs.expect(row.title, answer::no);
        row.draw(bench.form);
        EXPECT_EQ(bench.drawn(), "");
        EXPECT_EQ(bench.pen(), "1600 1500");
        EXPECT_EQ(bench.marker(), "77 1200");
        EXPECT_EQ(bench.surface.foreColor, green);
        EXPECT_EQ(bench.form.diodeCount, 0);
    }
}

TEST(Library, SymbolsDrawInTheirColourAndLeavePenAndMarkerWhereTheyShould)
{
    for (const Row& row : library) {
        SCOPED_TRACE(row.title);
        ColouredBench bench(row);
        bench.form.confirm[row.confirm] = 0; // nothing else may be asked, or the script fails
        row.draw(bench.form);
        ASSERT_FALSE(bench.surface.ink.empty());
        EXPECT_EQ(bench.surface.firstInkColor, row.color != nullptr ? red : green);
        EXPECT_EQ(bench.form.x, 1600 + row.dx);
        EXPECT_EQ(bench.form.y, 1500 + row.dy);
        EXPECT_EQ(bench.window.at(control::Picture1).left, row.marker ? bench.form.x : 77);
        EXPECT_EQ(bench.window.at(control::Picture1).top, 1200);
    }
}

TEST(Library, ColourStaysButForDiodesOfWhichOnlyAnAskedPnDiodeKeepsIt)
{
    for (const Row& row : library) {
        for (const bool asked : {false, true}) {
            SCOPED_TRACE(row.title);
            ColouredBench bench(row);
            bench.form.confirm[row.confirm] = asked ? 1 : 0;
            if (asked) {
                bench.dialogs.expect(row.title, answer::yes);
            }
            row.draw(bench.form);
            const bool reset = row.confirm == diodesConfirm && !(row.draw == diod && asked);
            EXPECT_EQ(bench.surface.foreColor, reset ? black : row.color != nullptr ? red : green);
        }
    }
}

TEST(Diodes, PnAndNpCountThemselvesEvenWhenTheHeadingLetsThemDrawNothing)
{
    Bench bench;
    bench.form.confirm.fill(0);
    bench.form.heading = 7;
    diod(bench.form);
    npdiode(bench.form);
    EXPECT_EQ(bench.form.diodeCount, 2);
    EXPECT_EQ(bench.drawn(), "");
    EXPECT_EQ(bench.pen(), "1600 1500");
    diode(bench.form);
    tunneldiode(bench.form);
    EXPECT_EQ(bench.form.diodeCount, 2);
}

TEST(Diodes, NpMovesThePenFirstAndDrawsTheOppositePnFigureFromThere)
{
    EXPECT_EQ(strokesOf(npdiode, heading::left), "line 1380 1500 1380 1650\nline 1380 1650 1380 1350\n"
                                                 "line 1380 1350 1580 1500\nline 1580 1500 1380 1650\n"
                                                 "line 1580 1500 1580 1350\nline 1580 1350 1580 1670\n");
    EXPECT_EQ(strokesOf(npdiode, heading::up), "line 1600 1280 1450 1280\nline 1450 1280 1750 1280\n"
                                               "line 1750 1280 1600 1480\nline 1600 1480 1450 1280\n"
                                               "line 1450 1480 1750 1480\n");
    EXPECT_EQ(strokesOf(npdiode, heading::down), "line 1600 1720 1450 1720\nline 1450 1720 1750 1720\n"
                                                 "line 1750 1720 1600 1520\nline 1600 1520 1450 1720\n"
                                                 "line 1450 1520 1750 1520\n");
}

TEST(Headings, MoveThePenByEachDirectionsOwnWay)
{
    struct Case {
        Handler draw;
        int heading;
        const char* pen;
        const char* lastStroke;
    };
    const Case cases[] = {
        {buffer, heading::left, "1290 1500", "line 1300 1500 1600 1650\n"},
        {buffer, heading::up, "1600 1190", "line 1600 1200 1450 1500\n"},
        {buffer, heading::down, "1600 1810", "line 1600 1800 1450 1500\n"},
        {notgate, heading::left, "1225 1575", "circle 1270 1575 30\n"},
        {notgate, heading::up, "1600 1125", "circle 1675 1170 30\n"},
        {notgate, heading::down, "1675 1875", "circle 1675 1830 30\n"},
        {diod, heading::left, "1380 1500", "line 1400 1350 1400 1670\n"},
        {diod, heading::up, "1600 1280", "line 1450 1300 1750 1300\n"},
        {diod, heading::down, "1600 1720", "line 1450 1700 1750 1700\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.lastStroke);
        Bench bench;
        bench.form.confirm.fill(0);
        bench.form.heading = c.heading;
        c.draw(bench.form);
        EXPECT_EQ(bench.surface.ink.back() + "\n", c.lastStroke);
        EXPECT_EQ(bench.pen(), c.pen);
    }
}

TEST(Headings, MeanNothingToMostOfTheLibrary)
{
    for (const Row& row : library) {
        if (row.draw == buffer || row.draw == notgate || row.draw == diod || row.draw == npdiode) {
            continue;
        }
        if (row.draw == and_ || row.draw == or_ || row.draw == nor || row.draw == nand) {
            EXPECT_EQ(strokesOf(row.draw, heading::up), ""); // these draw to the right only
            continue;
        }
        SCOPED_TRACE(row.title);
        EXPECT_EQ(strokesOf(row.draw, heading::up), strokesOf(row.draw));
        EXPECT_EQ(strokesOf(row.draw, 7), strokesOf(row.draw));
    }
}

TEST(Transistors, BothCommonCollectorsAreTheSameFigureAndTheOthersDifferInTheirArrowsAlone)
{
    EXPECT_EQ(strokesOf(collector1), strokesOf(collector));
    struct Pair {
        Handler npn, pnp;
        const char* arrow;
    };
    for (const auto& [npn, pnp, arrow] :
         {Pair{emitter, emitter1, "line 1800 1670 1850 1600\nline 1800 1670 1850 1750\n"},
          Pair{base, base1, "line 2170 1600 2170 1680\nline 2170 1600 2050 1600\n"},
          Pair{nchannel, pchannel, "line 1100 2300 1200 2400\nline 1100 2300 1200 2200\n"}}) {
        const std::string drawn = strokesOf(pnp);
        EXPECT_EQ(drawn.size(), strokesOf(npn).size());
        EXPECT_NE(drawn, strokesOf(npn));
        EXPECT_NE(drawn.find(arrow), std::string::npos) << drawn;
    }
}

TEST(Triac, PrintsItsThirdNameWhereTheSecondOneLeftOff)
{
    const std::string drawn = strokesOf(TRIAC);
    const std::string end = "line 1900 3000 1900 3000\nprint 1900 3000 T2\nprint 0 3195 T3\n";
    EXPECT_EQ(drawn.substr(drawn.size() - end.size()), end);
}
