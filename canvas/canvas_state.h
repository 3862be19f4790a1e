#pragma once

#include "platform/dialogs.h"
#include "platform/event.h"
#include "platform/pictures.h"
#include "platform/runtime_error.h"
#include "platform/surface.h"

#include <array>
#include <deque>
#include <optional>
#include <string>

/// The controls on and around the canvas, by the names they have in the form.
namespace control {
inline constexpr Name Picture1 = "Picture1"; ///< the pen marker
inline constexpr Name Shape1 = "Shape1";     ///< the eraser's outline
inline constexpr Name Label27 = "Label27";   ///< says that erase mode is on
inline constexpr Name Canvas = "Canvas";
inline constexpr Name Toolbar1 = "Toolbar1";
inline constexpr Name statusBar = "statusBar";
inline constexpr Name Frame2 = "Frame2"; ///< the toolbox
inline constexpr Name Label1 = "Label1"; ///< its handle
inline constexpr Name rc = "rc";         ///< the right-click menu
inline constexpr Name sb = "sb";         ///< panel 1 of the status bar, the hint
inline constexpr Name sbPen = "sbPen";
inline constexpr Name sbHeading = "sbHeading";
inline constexpr Name sbTool = "sbTool";
inline constexpr Name sbErase = "sbErase";
inline constexpr Name sbJumpers = "sbJumpers";
inline constexpr Name sbNotice = "sbNotice";       ///< only there while it says something
inline constexpr Name sbPointer = "sbPointer";     ///< only there while the mouse is over the canvas
inline constexpr Name sbOffCanvas = "sbOffCanvas"; ///< only there while the pen is off it
inline constexpr Name statusTimer = "statusTimer";
inline constexpr Name noticeTimer = "noticeTimer";
inline constexpr Name Timer1 = "Timer1"; ///< shows the help window once at start
inline constexpr Name Timer2 = "Timer2"; ///< blinks the pen marker

// The panel of supplies and batteries
inline constexpr Name panel = "panel"; ///< the box around all of it
inline constexpr Name sup = "sup";
inline constexpr Name bat = "bat";
inline constexpr Name Label11 = "Label11";   ///< asks for the kind of supply
inline constexpr Name Label13 = "Label13";   ///< asks for the kind of battery
inline constexpr Name Label12 = "Label12";   ///< asks for the value, in sup
inline constexpr Name Label28 = "Label28";   ///< asks for the value, in bat
inline constexpr Name Option1 = "Option1";   ///< neither of the kinds; its switches are kept, but it is never seen
inline constexpr Name Option2 = "Option2";   ///< current supply
inline constexpr Name Option3 = "Option3";   ///< voltage supply
inline constexpr Name Option4 = "Option4";   ///< positive battery
inline constexpr Name Option5 = "Option5";   ///< negative battery
inline constexpr Name Text11 = "Text11";     ///< the value
inline constexpr Name Command3 = "Command3"; ///< draws
inline constexpr Name Command7 = "Command7"; ///< cancels, in bat
inline constexpr Name Command8 = "Command8"; ///< cancels, in sup
} // namespace control

/// Directions of the pen. A heading variable may hold other numbers too, as the File menu leaves its answers there:
/// nothing is drawn for those.
namespace heading {
inline constexpr int right = 1;
inline constexpr int left = 2;
inline constexpr int up = 3;
inline constexpr int down = 4;
} // namespace heading

/// In words, for the user; empty for a number that is no direction.
[[nodiscard]] std::string_view headingName(int heading);

/// The families that can ask before they draw, in the order of their switches.
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

/// Where the next wire or symbol starts, in twips, and where it goes.
struct Pen {
    double x = 0;
    double y = 0;
    int heading = 0; ///< a code of namespace heading, or another number, for which nothing is drawn
};

/// The place beside a pen that is so many twips to the right and down. Only the result is rounded to single precision.
inline Point pointBeside(const Pen& pen, double dx = 0, double dy = 0)
{
    return {static_cast<float>(pen.x + dx), static_cast<float>(pen.y + dy)};
}

/// Everything the program knows besides the ink. One plain field per fact, 0 until something sets it; switches are
/// 1 or 0; lengths are twips.
struct CanvasState : Pen {
    int penMoved = 0; ///< 1 once an arrow key was pressed

    int eraseMode = 0;
    int eraseHint = 0; ///< nothing sets it, so the hint it stands for never shows
    int lineTool = 0;  ///< at most one of the three tools is 1
    int rectTool = 0;
    int pencilTool = 0;
    double mouseUpX = 0; ///< where a mouse button last came up
    double mouseUpY = 0;
    std::optional<Point> pointer; ///< where the mouse is, while it is over the canvas

    int autoJumper = 0;
    int toolboxFollow = 0;    ///< 1 while the toolbox follows the mouse
    Color probeColor = black; ///< what lay ahead of the pen at the last arrow key
    int jumperAnswer = 0;     ///< the button that closed the question about a jumper

    int savedMark = 0;     ///< 100 = nothing changed since start or save, 0 = changed
    std::string fileTitle; ///< the name of the file saved last since New, without its folder
    int printAnswer = 0;   ///< the button that closed the question about printing
    int blinkCount = 0;    ///< 0 to 9975: the marker shows at multiples of 50
    int statusDue = 0;     ///< 1 while the status bar waits to be brought up to date
    std::string notice;    ///< what the status bar says for some seconds
    std::string saveFault; ///< what it says until the next save or New, after a save that failed

    int startShown = 0;     ///< 1 once the help window has shown itself at start
    int splashProgress = 0; ///< of the splash's bar, 0 to 100
    int helpOpen = 0;       ///< 1 = the help window slides open when it loads; nothing sets it, so it opens collapsed
    int helpLoaded = 0;     ///< 1 once the help window was shown

    Color wireColor = black;
    Color canvasBackColor = black; ///< the one picked last
    Color paperColor = white;      ///< the one that the canvas has: never black

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

    std::array<int, confirmCount> confirm{}; ///< 1 = ask before drawing

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
    Name lastFamily{}; ///< the frame of the panel that was opened last

    // What the Output window showed last, as far as it could be computed. The formulas put capac, a reciprocal, where
    // they mean a capacitance, so the figures are no hertz and no ohms of the circuit drawn.
    double resonanceDenominator = 0;
    double resonanceFrequency = 0;
    double qualityFactor = 0;
    double frequencyCopy = 0;
    double angularFrequency = 0;
    double frequencyCapac = 0;
    double capacitiveReactance = 0;
    int form4Loaded = 0; ///< 1 once the Output window was touched

    int diodeCount = 0; ///< PN and NP diodes placed

    // The button that closed a symbol's question last.
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

/// What every command gets: the state and the way to the screen.
struct Form1 : CanvasState {
    Form1(Surface& canvas, Window& window, Dialogs& boxes, Pictures& files, Window& help, Window& about, Window& output,
          Window& splash)
        : surface(canvas), controls(window), dialogs(boxes), pictures(files), form2(help), form3(about), form4(output),
          form6(splash)
    {
    }

    Surface& surface;
    Window& controls;
    Dialogs& dialogs;
    Pictures& pictures;
    Window& form2; ///< the help window
    Window& form3; ///< the about window
    Window& form4; ///< the Output window
    Window& form6; ///< the splash

    std::deque<Event> waiting; ///< the one that is being handled first; empty while the user does nothing
};

/// The one shape of every command.
using Handler = void (*)(Form1&);

/// How far the marker's top stands above the pen, in twips: its picture's 16 pixels, and 4 to see the ink.
inline constexpr double markerRise = 300;

/// Sets the main window's variables to their start values, puts the pen at its start and the marker with it, and fills
/// the Output window from the zeros, without showing it. What it does not assign stays: family colours, tools,
/// automatic jumpers.
void load(Form1& form);

/// Names the program in the titles of its windows and boxes.
inline constexpr std::string_view productName = "Schemlet 2.0";

/// What the title shows in place of a file's name.
inline constexpr std::string_view noFile = " New File ";

/// Puts a file's name into the main window's title.
void setTitle(Form1& form, std::string_view file);

/// Tells the user what went wrong.
void tell(Form1& form, const RuntimeError& error);

/// Moves the marker to a left edge of its own, in twips, and to the pen's height.
void placeMarker(Form1& form, double left);

/// One tick of the marker's blink, every 500 ms.
void Timer2(Form1& form);
