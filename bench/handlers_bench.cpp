// Times the program's handlers in the real window, on Qt's offscreen platform. Compare figures only with those of the
// same machine before a change.

#include "platform/qt/canvas_widget.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_main_window.h"
#include "platform/qt/qt_pictures.h"
#include "shell/events.h"
#include "shell/main_window.h"
#include "ui_Form1.h"
#include "ui_Form2.h"
#include "ui_Form3.h"
#include "ui_Form4.h"
#include "ui_Form6.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <cstdlib>

namespace schemlet {

namespace {

template <typename View, typename Form> struct Made {
    View view;
    Form form = [this] {
        Form made;
        made.setupUi(&view);
        return made;
    }();
};

struct Program {
    Made<QMainWindow, Ui::Form1> main;
    Made<QDialog, Ui::Form2> help;
    Made<QDialog, Ui::Form3> about;
    Made<QDialog, Ui::Form4> output;
    Made<QDialog, Ui::Form6> splash;
    QtMainWindow window{main.view, [this](const Event& event) { events.deliver(event); }};
    QtWindow form2{help.view, [](const Event&) {}};
    QtWindow form3{about.view, [](const Event&) {}};
    QtWindow form4{output.view, [](const Event&) {}};
    QtWindow form6{splash.view, [](const Event&) {}};
    QtDialogs dialogs{main.view, *main.form.Canvas};
    QtPictures pictures{main.form.Canvas->surface()};
    Form1 form{main.form.Canvas->surface(), window, dialogs, pictures, form2, form3, form4, form6};
    Events events{form};

    Program()
    {
        openMainWindow(form);
        form.confirm.fill(0);
        for (const Name timer : {control::Timer1, control::Timer2}) {
            window.setInterval(timer, 0); // their ticks would be measured, too
        }
        QCoreApplication::processEvents();
    }
};

/// Ends an iteration: with range 1, the repaint is measured, too.
void finish(const benchmark::State& state)
{
    if (state.range(0) == 1) {
        QCoreApplication::processEvents();
    }
}

/// Runs a benchmark without and with the repaint. The variable ITERATIONS fixes the number of iterations, for tools
/// that count instructions.
void variants(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("repaint")->Arg(0)->Arg(1);
    if (const char* const iterations = std::getenv("ITERATIONS")) {
        benchmark->Iterations(std::atoll(iterations));
    }
}

void heldArrowKey(benchmark::State& state)
{
    Program program;
    int steps = 0;
    for (auto _ : state) {
        const int code = ++steps % 500 < 250 ? key::right : key::left;
        program.events.deliver({.kind = Event::Kind::keyDown, .code = code});
        finish(state);
    }
}
BENCHMARK(heldArrowKey)->Apply(variants);

void pencilMotion(benchmark::State& state)
{
    Program program;
    program.events.deliver({.kind = Event::Kind::click, .name = "pencil1"});
    program.events.deliver({.kind = Event::Kind::mouseDown, .code = button::left, .place = {1500, 1500}});
    int i = 0;
    for (auto _ : state) {
        ++i;
        const auto x = static_cast<float>(1500 + i % 200 * 45);
        const auto y = static_cast<float>(1500 + i % 2 * 105);
        program.events.deliver({.kind = Event::Kind::mouseMove, .code = button::left, .place = {x, y}});
        finish(state);
    }
}
BENCHMARK(pencilMotion)->Apply(variants);

void symbol(benchmark::State& state)
{
    Program program;
    for (auto _ : state) {
        program.form.x = 3000;
        program.form.y = 3000;
        program.events.deliver({.kind = Event::Kind::click, .name = "exnor"});
        finish(state);
    }
}
BENCHMARK(symbol)->Apply(variants);

/// Undoes and redoes the last step.
void undoAndRedo(Program& program, benchmark::State& state)
{
    for (auto _ : state) {
        for (const Name command : {control::undo, control::redo}) {
            program.events.deliver({.kind = Event::Kind::click, .name = command.text()});
            finish(state);
        }
    }
}

void undoWire(benchmark::State& state)
{
    Program program;
    for (int i = 0; i < 100; ++i) {
        program.events.deliver({.kind = Event::Kind::keyDown, .code = key::right});
    }
    undoAndRedo(program, state);
}
BENCHMARK(undoWire)->Apply(variants);

/// With a picture that has no blank paper.
void undoNew(benchmark::State& state)
{
    Program program;
    QImage picture(1920, 1080, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, static_cast<QRgb>(x * y));
        }
    }
    program.main.form.Canvas->surface().setPicture(picture);
    for (const char* const name : {"Eraser", "New"}) { // the first makes the picture a step of its own
        program.events.deliver({.kind = Event::Kind::click, .name = name});
    }
    undoAndRedo(program, state);
}
BENCHMARK(undoNew)->Apply(variants)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace schemlet

int main(int argc, char* argv[])
{
    using namespace schemlet;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
