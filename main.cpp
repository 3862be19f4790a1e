#include "platform/qt/accessibility.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_main_window.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/termination.h"
#include "shell/events.h"
#include "shell/splash.h"
#include "ui_Form1.h"
#include "ui_Form2.h"
#include "ui_Form3.h"
#include "ui_Form4.h"
#include "ui_Form6.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>

namespace schemlet {

namespace {

void prepareToolkit()
{
    // Fast pencil strokes need every motion. The platform plug-in switches merging on when it starts, so this must come
    // after the application object.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    // The desktop uses this name to find the menu entry of a window.
    QGuiApplication::setDesktopFileName("org.schemlet.schemlet");
    installAccessibility();
    endOnSignals();
    // Otherwise Qt would first ask every hidden window to close, and none of them would.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Qt's dialogs would read and write a settings file in the home directory.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

} // namespace

} // namespace schemlet

int main(int argc, char* argv[])
{
    using namespace schemlet;
    const QApplication application(argc, argv);
    prepareToolkit();

    Events* program = nullptr; // null until all windows exist
    const auto report = [&program](const Event& event) {
        if (program != nullptr) {
            program->deliver(event);
        }
    };

    // The splash is visible while everything else is created.
    QDialog splashView;
    Ui::Form6().setupUi(&splashView);
    QtWindow form6(splashView, report);
    form6::load(form6);
    QCoreApplication::processEvents();
    // After the splash, because drawing the icon in all sizes takes a while.
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QGuiApplication::desktopFileName(), QIcon(":/schemlet.svg")));

    QMainWindow mainView;
    Ui::Form1 form;
    form.setupUi(&mainView);
    QDialog helpView(&mainView);
    Ui::Form2().setupUi(&helpView);
    QDialog aboutView(&mainView);
    Ui::Form3().setupUi(&aboutView);
    QDialog outputView(&mainView);
    Ui::Form4().setupUi(&outputView);

    QtMainWindow window(mainView, report);
    QtWindow form2(helpView, report);
    QtWindow form3(aboutView, report);
    QtWindow form4(outputView, report);
    QtDialogs dialogs(mainView, *form.Canvas);
    QtPictures pictures(form.Canvas->surface());
    Form1 form1(form.Canvas->surface(), window, dialogs, pictures, form2, form3, form4, form6);
    Events events(form1);
    program = &events;
    return QApplication::exec();
}
