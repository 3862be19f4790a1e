#include "canvas/controls.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/colors.h"
#include "tests/gui/shown.h"
#include "ui_Form1.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolBar>
#include <QWindow>
#include <gtest/gtest.h>

/// Sends a key to the shortcuts, as the platform's plug-ins do.
extern bool qt_sendShortcutOverrideEvent(QObject* focus, ulong time, int key, Qt::KeyboardModifiers held,
                                         const QString& text, bool marked, ushort count);

namespace schemlet {

// Keys and mouse in the main window, in sequences that need exact timing.

namespace {

using namespace control;

struct QtWindowTest : testing::Test, Shown<QMainWindow, Ui::Form1> {
    QWindow* const screen = view.windowHandle();

    QMenu& addPopup()
    {
        window->addMenuItem(0, {"rc", "&Rightclick", "", Look::hidden});
        window->addMenuItem(1, {"eras", "&Eraser"});
        return *view.findChild<QMenu*>("rcMenu");
    }

    /// The frame shows that the canvas has the keyboard.
    [[nodiscard]] bool canvasIsFramed() const
    {
        return form.Canvas->grab().toImage().pixelColor(0, 300) != QColor(Qt::white);
    }
};

} // namespace

TEST_F(QtWindowTest, ReportsEveryReleaseOfAMouseButtonWhereverItHappens)
{
    const QPoint place = form.Canvas->mapTo(&view, QPoint(100, 200));
    QTest::mouseMove(screen, place);
    events.clear();
    QTest::mouseDClick(screen, Qt::LeftButton, {}, place);
    EXPECT_EQ(events.back().place.x, 1500);
    EXPECT_EQ(events.back().place.y, 3000);
    EXPECT_EQ(noted(), "mouseDown 1\nmouseUp 1\nmouseDown 1\nmouseUp 1\n");

    QMenu& menu = addPopup();
    QTest::mousePress(screen, Qt::LeftButton, {}, place);
    QTest::mousePress(screen, Qt::RightButton, {}, place);
    window->popUp("rc", {1500, 3000});
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    EXPECT_EQ(noted(), "mouseDown 1\nmouseDown 2\nhover 0\n"); // the menu lies under the mouse
    QTest::mouseRelease(menu.windowHandle(), Qt::RightButton, {}, {20, 20});
    menu.close();
    QTest::mouseRelease(screen, Qt::LeftButton, {}, place);
    EXPECT_EQ(noted(), "mouseUp 2\nclick eras0\nmouseUp 1\n");

    QTest::mousePress(screen, Qt::LeftButton, {}, place);
    QDialog box(&view);
    box.open();
    QTest::mouseRelease(screen, Qt::LeftButton, {}, place);
    EXPECT_EQ(noted(), "mouseDown 1\n");
    box.close();
    EXPECT_EQ(noted(), "mouseUp 1\n");

    const QPoint before = QCursor::pos();
    QCursor::setPos(form.Canvas->mapToGlobal(QPoint(100, 200)));
    QFocusEvent keyboardIsBack(QEvent::FocusIn, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(form.Canvas, &keyboardIsBack);
    events.clear();
    QCoreApplication::processEvents();
    QCursor::setPos(before);
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back().place.y, 3000);
    EXPECT_EQ(noted(), "hover Canvas0\n");
}

TEST_F(QtWindowTest, IgnoresADoubleClickIfItsFirstPressClosedSomethingOtherThanAMenu)
{
    window->show({Frame2});
    addPopup();
    const auto send = [](QWidget& below, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        QWidget* const popup = QApplication::activePopupWidget();
        QWidget& target = popup != nullptr ? *popup : below;
        const QPointF place = below.mapToGlobal(QPointF(10, 10));
        QMouseEvent event(type, target.mapFromGlobal(place), place, button, held, {});
        QCoreApplication::sendEvent(&target, &event);
    };
    const auto doubleClick = [&](QWidget& below) {
        send(below, QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton);
        send(below, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
        send(below, QEvent::MouseButtonRelease, Qt::LeftButton, {});
    };
    for (const auto& [below, dropped, done] :
         {std::tuple<QWidget*, const char*, const char*>{form.Canvas, "mouseMove 0\n", "mouseDown 1\nmouseUp 1\n"},
          {form.Image7, "hover Image70\n", "click Image70\n"}}) {
        QPushButton answer;
        send(answer, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        doubleClick(*below);
        EXPECT_EQ(noted(), dropped);

        window->popUp("rc", {1500, 3000});
        send(*below, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        doubleClick(*below);
        EXPECT_NE(noted().find(done), std::string::npos);
    }
}

TEST_F(QtWindowTest, OpensThePopupMenuOnTheCanvasForEveryMenuKey)
{
    window->addMenuItem(0, {"file", "&File"});
    window->addMenuItem(1, {"new", "&New"});
    QMenu& menu = addPopup();
    for (const auto& [at, place] :
         {std::pair{Point{1500, 3000}, QPoint(100, 200)}, {{-9000, 3000}, {0, 200}}, {{1500, -15}, {100, 0}}}) {
        window->popUp("rc", at);
        EXPECT_EQ(form.Canvas->mapFromGlobal(menu.pos()), place);
        menu.close();
    }
    view.activateWindow(); // without a window manager, a closed menu leaves no window active
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    window->show({Frame2, panel, sup, Text11});
    for (QWidget* const focus : std::initializer_list<QWidget*>{form.Canvas, form.Image1, form.Option2}) {
        focus->setFocus();
        QTest::keyClick(screen, Qt::Key_F10, Qt::ShiftModifier);
        EXPECT_EQ(noted(), "click rc0\n");
    }
    form.Text11->setFocus();
    QTest::keyClick(screen, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr); // the text box's own menu
    QApplication::activePopupWidget()->close();
    QTest::keyClick(screen, Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "fileMenu");
    EXPECT_NE(dynamic_cast<QMenu&>(*QApplication::activePopupWidget()).activeAction(), nullptr);
    QTest::keyClick(screen, Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), form.Text11);
    EXPECT_EQ(noted(), "");
}

TEST_F(QtWindowTest, TabVisitsPanelAndToolboxInOrderWhileArrowsAndLettersGoToTheCanvas)
{
    window->show({Frame2, panel, sup, bat, Text11, Command3, Command7, Command8});
    window->enable({Text11, Command3, Command7, Command8});
    form.Canvas->setFocus();
    for (const QString& next :
         QString("Option3 Option2 Option4 Option5 Text11 Command3 Command8 Command7 Image1 Image2 Image3 Image4 Image5 "
                 "Image15 Image16 Image17 Image18 Image19 Image20 Image7 Canvas")
             .split(' ')) {
        QTest::keyClick(view.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(view.focusWidget()->objectName().toStdString(), next.toStdString());
        QTest::keyClick(view.focusWidget(), Qt::Key_Right);
        QTest::keyClick(view.focusWidget(), Qt::Key_S);
        EXPECT_EQ(noted(), next == "Text11" ? "" : "keyDown 39\nkeyDown 0\nkeyPress 115\n");
    }
    EXPECT_TRUE(canvasIsFramed());
    QTest::keyClick(form.Canvas, Qt::Key_Backtab);
    EXPECT_FALSE(canvasIsFramed());
    QTest::keyClick(view.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(noted(), "click Image70\n");
    window->focus(Canvas); // no frame without Tab
    EXPECT_FALSE(canvasIsFramed());
    form.Canvas->setFocus(Qt::TabFocusReason);
    QTest::mouseClick(form.Canvas, Qt::LeftButton);
    EXPECT_FALSE(canvasIsFramed());
}

TEST_F(QtWindowTest, ReturnsTheKeyboardToTheCanvasWhenAControlVanishes)
{
    window->show({Frame2, panel, sup, Text11, Command3});
    for (const auto& [focus, goes] :
         {std::pair<QWidget*, Name>{form.Text11, Text11}, {form.Command3, panel}, {form.Image7, Frame2}}) {
        focus->setFocus();
        const QSignalSpy moves(qApp, &QApplication::focusChanged);
        goes == Text11 ? window->disable({goes}) : window->hide({goes});
        EXPECT_EQ(moves.size(), 1);
        EXPECT_EQ(view.focusWidget(), form.Canvas);
        EXPECT_FALSE(canvasIsFramed());
    }
}

TEST_F(QtWindowTest, OnlyTheProgramPressesToolButtonsAndTheirColoursAreSharp)
{
    window->addToolButton("Line", "", Look::unchecked);
    window->addToolButton("Fore", "", Look::plain);
    auto& bar = *view.findChild<QToolBar*>();
    auto& button = *bar.widgetForAction(bar.actions().front());
    QTest::mouseMove(screen, button.mapTo(&view, button.rect().center()));
    EXPECT_NE(noted().find("hover Line"), std::string::npos);
    for (const bool pressed : {false, true}) {
        window->setChecked("Line", pressed);
        QTest::mouseClick(&button, Qt::LeftButton);
        EXPECT_EQ(window->checked("Line"), pressed);
        EXPECT_NE(noted().find("click Line"), std::string::npos);
    }
    for (const QColor color : {QColor(Qt::white), QColor(255, 0, 10), QColor(Qt::black)}) {
        window->setSwatch("Fore", toColor(color));
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const QImage icon = bar.actions().back()->icon().pixmap({24, 24}, ratio).toImage();
            const auto pixel = [&](QPointF place) { return icon.pixelColor((place * ratio).toPoint()); };
            EXPECT_EQ(icon.width(), 24 * ratio);
            EXPECT_EQ(pixel({4, 18}), color);
            EXPECT_EQ(pixel({20, 18}), color);
            EXPECT_NE(pixel({4, 15}), color); // its outline
        }
    }
}

TEST_F(QtWindowTest, OnlyTheProgramMarksMenuItems)
{
    window->addMenuItem(0, {"askc", "Ask Confirmation"});
    window->addMenuItem(1, {"gg", "Gates", "", Look::checked});
    view.findChild<QAction*>("gg")->trigger();
    EXPECT_EQ(noted(), "click gg0\n");
    EXPECT_TRUE(window->checked("gg"));
}

TEST_F(QtWindowTest, AHeldShortcutRepeatsOnlyIfItShould)
{
    window->addShortcut({"dot", "Ctrl+D"});
    window->addShortcut({"undo", "Ctrl+Z", true});
    const auto hold = [this](int key) {
        for (const ulong time : {1UL, 2UL, 3UL}) { // X11 reports each repeat as a release and a press at the same time
            qt_sendShortcutOverrideEvent(form.Canvas, time, key, Qt::ControlModifier, "", time == 3, 1);
            QKeyEvent release(QEvent::KeyRelease, key, Qt::ControlModifier);
            release.setTimestamp(time + 1);
            QCoreApplication::sendEvent(form.Canvas, &release);
        }
        return noted();
    };
    EXPECT_EQ(hold(Qt::Key_D), "click dot0\n");
    EXPECT_EQ(hold(Qt::Key_Z), "click undo0\nclick undo0\nclick undo0\n");
}

TEST_F(QtWindowTest, ShowsTheWholeNameOfADrawing)
{
    window->setCaption("plan [*] b");
    EXPECT_EQ(screen->title(), "plan [*] b");
}

} // namespace schemlet
