// Times the program's handlers in the real window, on Qt's offscreen platform. Compare figures only with those of the
// same machine before a change.

#include "platform/qt/canvas_widget.h"
#include "platform/qt/picture_files.h"
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
#include <QTemporaryDir>
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

/// The variable ITERATIONS fixes the number of iterations, for tools that count instructions.
void fixIterations(benchmark::internal::Benchmark* benchmark)
{
    if (const char* const iterations = std::getenv("ITERATIONS")) {
        benchmark->Iterations(std::atoll(iterations));
    }
}

/// Runs a benchmark without and with the repaint.
void variants(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("repaint")->Arg(0)->Arg(1);
    fixIterations(benchmark);
}

/// A picture without blank paper, 6 to 5.
QImage picture(int width)
{
    QImage picture(width, width * 5 / 6, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < width; ++x) {
            picture.setPixel(x, y, 0xFF000000 | static_cast<QRgb>(x * y));
        }
    }
    return picture;
}

/// The pencil on its n-th motion, of which all are alike.
void movePencil(Program& program, int n)
{
    const auto x = static_cast<float>(1500 + n % 200 * 45);
    const auto y = static_cast<float>(1500 + n % 2 * 105);
    program.events.deliver({.kind = Event::Kind::mouseMove, .code = button::left, .place = {x, y}});
}

void pressPencil(Program& program)
{
    program.events.deliver({.kind = Event::Kind::click, .name = "pencil1"});
    program.events.deliver({.kind = Event::Kind::mouseDown, .code = button::left, .place = {1500, 1500}});
}

void drawMillionStrokes(Program& program)
{
    pressPencil(program);
    for (int i = 0; i < 1'000'000; ++i) {
        if (i % 1000 == 0) { // a new step for undo
            program.events.deliver({.kind = Event::Kind::mouseUp, .code = button::left, .place = {1500, 1500}});
            program.events.deliver({.kind = Event::Kind::mouseDown, .code = button::left, .place = {1500, 1500}});
        }
        movePencil(program, i);
    }
    program.events.deliver({.kind = Event::Kind::mouseUp, .code = button::left, .place = {1500, 1500}});
}

/// What the drawing may have grown to.
constexpr void (*growths[])(Program&) = {
    [](Program& /*program*/) {},
    [](Program& program) { program.main.view.resize(3840, 2160); },
    [](Program& program) { program.main.form.Canvas->surface().setPicture(picture(6000)); },
    drawMillionStrokes,
};

/// Runs a benchmark without and with the repaint, each at the start and after each growth.
void grownVariants(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"repaint", "growth"})->ArgsProduct({{0, 1}, {0, 1, 2, 3}});
    fixIterations(benchmark);
}

/// Makes what has changed a step of its own, so that it is not measured with the next one.
void endStep(Program& program)
{
    for (int i = 0; i < 2; ++i) {
        program.events.deliver({.kind = Event::Kind::click, .name = "Eraser"});
    }
}

void grow(Program& program, const benchmark::State& state)
{
    growths[state.range(1)](program);
    endStep(program);
    QCoreApplication::processEvents();
}

void heldArrowKey(benchmark::State& state)
{
    Program program;
    grow(program, state);
    int steps = 0;
    for (auto _ : state) {
        const int code = ++steps % 500 < 250 ? key::right : key::left;
        program.events.deliver({.kind = Event::Kind::keyDown, .code = code});
        finish(state);
    }
}
BENCHMARK(heldArrowKey)->Apply(grownVariants);

void pencilMotion(benchmark::State& state)
{
    Program program;
    grow(program, state);
    pressPencil(program);
    int n = 0;
    for (auto _ : state) {
        movePencil(program, ++n);
        finish(state);
    }
}
BENCHMARK(pencilMotion)->Apply(grownVariants);

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

/// Runs a benchmark with pictures of 1, 4 and 16 times the size.
void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"repaint", "width"})->ArgsProduct({{1}, {1500, 3000, 6000}})->Unit(benchmark::kMillisecond);
    fixIterations(benchmark);
}

void undoNew(benchmark::State& state)
{
    Program program;
    program.main.form.Canvas->surface().setPicture(picture(static_cast<int>(state.range(1))));
    endStep(program);
    program.events.deliver({.kind = Event::Kind::click, .name = "New"});
    undoAndRedo(program, state);
}
BENCHMARK(undoNew)->Apply(sizes);

void save(benchmark::State& state)
{
    Program program;
    program.main.form.Canvas->surface().setPicture(picture(static_cast<int>(state.range(1))));
    const QTemporaryDir folder;
    for (auto _ : state) {
        program.pictures.saveImage(folder.filePath("picture").toStdString());
    }
}
BENCHMARK(save)->Apply(sizes);

void open(benchmark::State& state)
{
    Program program;
    const QTemporaryDir folder;
    const QString path = folder.filePath("picture");
    savePicture(picture(static_cast<int>(state.range(1))), path);
    for (auto _ : state) {
        program.pictures.loadBackground(path.toStdString());
        finish(state);
    }
}
BENCHMARK(open)->Apply(sizes);

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
