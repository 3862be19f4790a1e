#pragma once

#include "platform/name.h"
#include "platform/surface.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace schemlet {

/// Directions of the pen. The File menu also stores the answer to its question in the heading. Cancel (2) then means
/// left; Yes (6) and No (7) are no direction, and nothing is drawn for them.
namespace heading {
inline constexpr int right = 1;
inline constexpr int left = 2;
inline constexpr int up = 3;
inline constexpr int down = 4;
} // namespace heading

/// The direction in words; empty for a number that is no direction.
[[nodiscard]] std::string_view headingName(int heading);

/// The families that can ask before they draw: indexes of their switches in Modes::confirm.
enum Confirm : std::size_t {
    motorsConfirm,
    generatorsConfirm,
    transformersConfirm,
    armatureConfirm,
    fieldConfirm,
    pnpConfirm,
    npnConfirm,
    jfetConfirm,
    thyristorsConfirm,
    gatesConfirm,
    diodesConfirm,
    bufferConfirm,
    opampConfirm,
    confirmCount
};

/// Where the next wire or symbol starts, in twips, and its direction.
struct Pen {
    double x = 0;
    double y = 0;
    int heading = 0; ///< a code of namespace heading; nothing is drawn for any other number
};

/// The place dx twips to the right of a pen and dy twips below it. Only the result is rounded to single precision.
inline Point pointBeside(const Pen& pen, double dx = 0, double dy = 0)
{
    return {static_cast<float>(pen.x + dx), static_cast<float>(pen.y + dy)};
}

/// The texts of the Output window's values.
using OutputTexts = std::array<std::string, 9>;

/// What belongs to the drawing besides its ink. Undo restores it.
struct Drawing : Pen {
    int penMoved = 0; ///< 1 once an arrow key was pressed
    double walkX = 0; ///< where the walk began: the last left click, or the start
    double walkY = 0;
    double markerLeft = 0; ///< of the pen marker
    double markerTop = 0;

    Color canvasBackColor = black; ///< the canvas colour picked last
    Color paperColor = white;      ///< the canvas's present colour: never black
    Color toolboxColor = white;

    double resist = 0;       ///< sum of the resistances, ohm
    double induc = 0;        ///< sum of the inductances, henry
    double capac = 0;        ///< sum of the capacitances' reciprocals, 1/farad
    std::string resistValue; ///< the texts last entered
    std::string inductValue;
    std::string capacValue;
    double supplyValue = 0;     ///< the number typed last for a source, volt or ampere
    double supplyVoltage = 0;   ///< sum of the voltage supplies, volt
    double supplyCurrent = 0;   ///< sum of the current supplies, ampere
    double batteryPositive = 0; ///< the last battery of each kind, volt; batteries are not summed
    double batteryNegative = 0;
    int diodeCount = 0; ///< PN and NP diodes placed

    // The results that the Output window showed last. The formulas use capac, a sum of reciprocals, where they mean a
    // capacitance, so the results are not true hertz or ohms.
    double resonanceDenominator = 0;
    double resonanceFrequency = 0;
    double qualityFactor = 0;
    double frequencyCopy = 0;
    double angularFrequency = 0;
    double frequencyCapac = 0;
    double capacitiveReactance = 0;
    OutputTexts outputTexts; ///< in the order of the window's values
};

/// The drawing's names. Undoing New or Open restores them.
struct Title {
    std::string fileTitle; ///< the file saved last, without its folder; empty after New
    std::string title;     ///< the file's name in the window's title
};

/// A kind of source and its value, to be proposed again.
struct LastSource {
    Name option;
    std::string value; ///< the text
};

/// Settings that New resets. Undoing New restores them.
struct Modes {
    Color wireColor = black;
    int eraseMode = 0;
    int toolboxFollow = 0;                   ///< 1 while the toolbox follows the mouse
    std::array<int, confirmCount> confirm{}; ///< 1 = ask before drawing
};

/// The whole state besides the ink: the drawing, and the user's tools and settings. It has one plain field per fact.
/// Fields are 0 at first, switches are 1 or 0, lengths are in twips.
struct CanvasState : Drawing, Title, Modes {
    int newDrawings = 0;    ///< how often New began a drawing
    int openedDrawings = 0; ///< how often Open set the title

    int eraseHint = 0; ///< always 0, so the status bar never shows its hint
    int lineTool = 0;  ///< at most one of the three tools is 1
    int rectTool = 0;
    int pencilTool = 0;
    double mouseUpX = 0; ///< where a mouse button last came up
    double mouseUpY = 0;
    std::optional<Point> pointer; ///< where the mouse is, while it is over the canvas

    int autoJumper = 0;
    Color probeColor = black; ///< the colour ahead of the pen at the last arrow key
    int jumperAnswer = 0;     ///< the button that closed the question about a jumper
    Name lastFamily;          ///< the frame of the source panel that was opened last
    LastSource lastSupply;    ///< what the source panel was used for last
    LastSource lastBattery;

    int savedMark = 0;     ///< 100 = nothing changed since start or save, 0 = changed
    int printAnswer = 0;   ///< the button that closed the question about printing
    int blinkCount = 0;    ///< 0 to 9975: the marker shows at multiples of 50
    int statusDue = 0;     ///< 1 while the timer that updates the status bar is running
    std::string notice;    ///< a message that the status bar shows for some seconds
    std::string saveFault; ///< why a save failed; the status bar shows it until the next save or New

    int startShown = 0;     ///< 1 once the help window was shown at start
    int splashProgress = 0; ///< the value of the splash's bar, 0 to 100
    int helpOpen = 0;       ///< 1 = the help window slides open when it loads; always 0, so it opens collapsed
    int helpLoaded = 0;     ///< 1 once the help window was shown
    int form4Loaded = 0;    ///< 1 once the Output window was filled

    Color pickedColor = black; ///< the colour picked last in the dialog

    // The families' colours, black until the user picks one. Transistors share the transformers'.
    Color resistanceColor = black;
    Color inductanceColor = black;
    Color capacitanceColor = black;
    Color motorColor = black;
    Color generatorColor = black;
    Color transformerColor = black;
    Color armatureColor = black;
    Color fieldColor = black;
    Color gatesColor = black;
    Color diodesColor = black;
    Color opampColor = black;
    Color bufferColor = black;

    // The button that last closed each symbol's question.
    int andAnswer = 0, orAnswer = 0, notAnswer = 0, norAnswer = 0, nandAnswer = 0, exorAnswer = 0, exnorAnswer = 0;
    int bufferAnswer = 0, opampAnswer = 0;
    int diodeAnswer = 0, diodAnswer = 0, npdiodeAnswer = 0, tunneldiodeAnswer = 0;
    int singlephaseAnswer = 0, centertappedAnswer = 0;
    int emitterAnswer = 0, baseAnswer = 0, collectorAnswer = 0;
    int emitter1Answer = 0, base1Answer = 0, collector1Answer = 0;
    int nchannelAnswer = 0, pchannelAnswer = 0;
    int SCRAnswer = 0, TRIACAnswer = 0, DIACAnswer = 0, UJTAnswer = 0;
    int acmotorAnswer = 0, dcmotorAnswer = 0, acgeneratorAnswer = 0, dcgeneratorAnswer = 0;
    int armatureAnswer = 0, fieldAnswer = 0;
};

} // namespace schemlet
