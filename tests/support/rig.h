#pragma once

#include "shell/events.h"
#include "tests/support/stand_ins.h"

#include <string_view>
#include <vector>

namespace schemlet {

/// The sums of the Output window, the last values, and the results.
inline constexpr std::pair<const char*, double Drawing::*> sumsAndResults[] = {
    {"resist", &Drawing::resist},
    {"induc", &Drawing::induc},
    {"capac", &Drawing::capac},
    {"supplyVoltage", &Drawing::supplyVoltage},
    {"supplyCurrent", &Drawing::supplyCurrent},
    {"batteryPositive", &Drawing::batteryPositive},
    {"batteryNegative", &Drawing::batteryNegative},
    {"supplyValue", &Drawing::supplyValue},
    {"resonanceDenominator", &Drawing::resonanceDenominator},
    {"resonanceFrequency", &Drawing::resonanceFrequency},
    {"qualityFactor", &Drawing::qualityFactor},
    {"frequencyCopy", &Drawing::frequencyCopy},
    {"angularFrequency", &Drawing::angularFrequency},
    {"frequencyCapac", &Drawing::frequencyCapac},
    {"capacitiveReactance", &Drawing::capacitiveReactance}};

/// The program without a toolkit, driven by scripts.
struct Rig {
    enum class Start { atSplash, behindIt };

    Notes ink;     ///< strokes, questions, files
    Notes changes; ///< of the windows
    RecordingSurface surface{ink};
    StandInWindow window{changes, mainWindow, formControls};
    ScriptedDialogs dialogs{ink};
    StandInPictures pictures{ink, surface};
    StandInWindow help{changes, form2::window, helpControls};
    StandInWindow about{changes, form3::window, aboutControls};
    StandInWindow output{changes, form4::window, form4::control::captions, form4::control::values};
    StandInWindow splash{changes, form6::window, splashControls};
    Form1 form{surface, window, dialogs, pictures, help, about, output, splash};
    Events events{form};

    explicit Rig(Start start = Start::behindIt);

    /// Runs a script: events separated by "; ". Replies to an event's questions follow it, each after " < ".
    ///
    ///     right                    an arrow key; so are left, up and down
    ///     r                        any one character
    ///     key 36, char 8364        other keys and characters, by their codes
    ///     press left 10 20         a mouse button at a place; so is release
    ///     move left+right 10 20    the mouse, with these buttons held, or none
    ///     click jj, click Form2.Check1, tick Timer2, hover Image1, hover, close, close Form2
    ///     hover Canvas 10 20       the mouse comes back without a move
    ///     tick Timer2 5            five times
    ///     click new < yes < /a/b   two questions are answered
    ///     r < meanwhile down < 5   before the answer, an arrow key is pressed
    ///     choose Option3           a click on an option, which is on before the click is reported
    ///     text 12V                 typed into the panel
    ///     source V 12              a whole source: A or V for a supply, + or - for a battery, and its value
    ///     canvas 9000 1450         the canvas's size
    ///     ahead 0                  the pen has ink of this colour ahead, wherever it stands
    void run(std::string_view script);

private:
    void happen(std::string_view line);
};

/// The parts of a text that a separator divides.
std::vector<std::string_view> split(std::string_view text, std::string_view separator);

} // namespace schemlet
