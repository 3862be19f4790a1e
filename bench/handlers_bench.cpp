// What the program's handlers cost, in the real window on Qt's offscreen platform. Run by hand; machines differ, so
// compare with the figures of the same machine before a change.

#include "platform/qt/canvas_widget.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/qt_window.h"
#include "shell/events.h"
#include "shell/main_window.h"
#include "ui_Form1.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace {

struct Program {
    QMainWindow view;
    Ui::Form1 form = [this] {
        Ui::Form1 made;
        made.setupUi(&view);
        return made;
    }();
    QtWindow window{view, [this](const Event& event) { deliver(form1, event); }};
    QtDialogs dialogs{view, *form.Canvas};
    QtPictures pictures{form.Canvas->surface()};
    QuietWindow others;
    Form1 form1{form.Canvas->surface(), window, dialogs, pictures, others, others, others, others};

    Program()
    {
        openMainWindow(form1);
        form1.confirm.fill(0);
        QCoreApplication::processEvents();
    }
};

/// The handler alone, or with the repaint that follows it.
void finish(const benchmark::State& state)
{
    if (state.range(0) == 1) {
        QCoreApplication::processEvents();
    }
}

void heldArrowKey(benchmark::State& state)
{
    Program program;
    int steps = 0;
    for (auto _ : state) {
        const int code = ++steps % 500 < 250 ? key::right : key::left;
        deliver(program.form1, {.kind = Event::Kind::keyDown, .code = code});
        finish(state);
    }
}
BENCHMARK(heldArrowKey)->ArgName("repaint")->Arg(0)->Arg(1);

void pencilMotion(benchmark::State& state)
{
    Program program;
    deliver(program.form1, {.kind = Event::Kind::click, .name = "pencil1"});
    deliver(program.form1, {.kind = Event::Kind::mouseDown, .code = button::left, .place = {1500, 1500}});
    int i = 0;
    for (auto _ : state) {
        ++i;
        const auto x = static_cast<float>(1500 + i % 200 * 45);
        const auto y = static_cast<float>(1500 + i % 2 * 105);
        deliver(program.form1, {.kind = Event::Kind::mouseMove, .code = button::left, .place = {x, y}});
        finish(state);
    }
}
BENCHMARK(pencilMotion)->ArgName("repaint")->Arg(0)->Arg(1);

void symbol(benchmark::State& state)
{
    Program program;
    for (auto _ : state) {
        program.form1.x = 3000;
        program.form1.y = 3000;
        deliver(program.form1, {.kind = Event::Kind::click, .name = "exnor"});
        finish(state);
    }
}
BENCHMARK(symbol)->ArgName("repaint")->Arg(0)->Arg(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
