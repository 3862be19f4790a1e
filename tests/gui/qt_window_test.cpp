#include "platform/qt/canvas_widget.h"
#include "platform/qt/colors.h"
#include "tests/gui/shown.h"
#include "tests/support/stand_ins.h"
#include "ui_Form1.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QToolBar>
#include <QWindow>
#include <gtest/gtest.h>

namespace schemlet {

// What the main window makes of keys and mouse where that takes better timing than a person has.

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

    void resize(int width, int height)
    {
        view.resize(width, height);
        QCoreApplication::processEvents();
    }

    /// It shows that it has the keyboard.
    [[nodiscard]] bool canvasIsFramed() const
    {
        return form.Canvas->grab().toImage().pixelColor(0, 300) != QColor(Qt::white);
    }
};

} // namespace

TEST_F(QtWindowTest, TellsTheCanvasOfEveryButtonThatComesUpWhereverThatIs)
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

TEST_F(QtWindowTest, DropsADoubleClickWhoseFirstPressWasOnSomethingThatWentAwayButAMenu)
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

TEST_F(QtWindowTest, OpensThePopupMenuAtAPlaceOrTheCanvasesEdgeWhenAKeyAsksForIt)
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
    view.activateWindow(); // without a window manager a menu does not give the keyboard back
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    window->show({Frame2, panel, sup, Text11});
    for (QWidget* const focus : std::initializer_list<QWidget*>{form.Canvas, form.Image1, form.Option2}) {
        focus->setFocus();
        QTest::keyClick(screen, Qt::Key_F10, Qt::ShiftModifier);
        EXPECT_EQ(noted(), "click rc0\n");
    }
    form.Text11->setFocus();
    QTest::keyClick(screen, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr); // the text's own
    QApplication::activePopupWidget()->close();
    QTest::keyClick(screen, Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "fileMenu");
    EXPECT_NE(dynamic_cast<QMenu&>(*QApplication::activePopupWidget()).activeAction(), nullptr);
    QTest::keyClick(screen, Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), form.Text11);
    EXPECT_EQ(noted(), "");
}

TEST_F(QtWindowTest, ToolboxCountsEveryMoveOverItselfWithAButtonHeldToo)
{
    window->show({Frame2});
    const auto moveTo = [&](QPoint place) { QTest::mouseMove(screen, form.Frame2->mapTo(&view, place)); };
    const QPoint edge = form.Frame2->rect().bottomLeft() + QPoint(2, -20);
    moveTo(edge);
    events.clear();
    QTest::mousePress(screen, Qt::LeftButton, {}, form.Frame2->mapTo(&view, edge));
    moveTo(edge + QPoint(0, 1));
    moveTo(edge + QPoint(0, 2));
    moveTo(form.Image1->geometry().center()); // is not over the frame itself
    moveTo({-50, 0});                         // nor is this
    EXPECT_EQ(noted(), "hover Frame20\nhover Frame20\n");
}

TEST_F(QtWindowTest, PanelLiesInTheFarthestCornerWhereItCoversNeitherPenNorToolbox)
{
    window->show({panel, sup, bat, Text11});
    struct Case {
        QSize window;
        QPoint pen;
        bool toolbox = false;
        Qt::Alignment corner;
        bool helpBelow = false;
    };
    const Case cases[] = {{{1, 1}, {100, 100}, false, Qt::AlignBottom | Qt::AlignRight},
                          {{1, 1}, {6000, 100}, false, Qt::AlignBottom | Qt::AlignLeft},
                          {{1, 1}, {100, 6000}, false, Qt::AlignTop | Qt::AlignRight},
                          {{1, 1}, {6000, 6000}, false, Qt::AlignTop | Qt::AlignLeft},
                          {{784, 552}, {106, 100}, true, Qt::AlignBottom | Qt::AlignLeft},
                          {{784, 552}, {50, 500}, true, Qt::AlignTop | Qt::AlignLeft},
                          {{784, 552}, {106, 100}, true, Qt::AlignBottom | Qt::AlignLeft, true},
                          {{1000, 700}, {106, 100}, true, Qt::AlignBottom | Qt::AlignRight},
                          {{1000, 700}, {106, 600}, false, Qt::AlignTop | Qt::AlignRight, true}};
    QDialog help(&view);
    for (const auto& [size, pen, toolbox, corner, helpBelow] : cases) {
        SCOPED_TRACE(std::to_string(pen.x()) + ' ' + std::to_string(pen.y()));
        view.resize(size);
        help.setGeometry(QRect(form.Canvas->mapToGlobal(QPoint(0, size.height() - 300)), QSize(1000, 300)));
        help.setVisible(helpBelow);
        window->setVisible(Frame2, toolbox);
        window->placeAwayFrom(panel, {static_cast<float>(15 * pen.x()), static_cast<float>(15 * pen.y())}, Frame2);
        QCoreApplication::processEvents();
        const QRect canvas = form.Canvas->geometry();
        const QRect panel = form.panel->geometry();
        EXPECT_EQ(panel, QStyle::alignedRect(Qt::LeftToRight, corner, panel.size(), canvas));
        EXPECT_TRUE(canvas.contains(panel));
    }
}

TEST_F(QtWindowTest, PanelsButtonsHaveNoGapsBetweenThemWhicheverShow)
{
    window->show({panel, sup, bat, Text11});
    const QRect field = form.Text11->geometry();
    for (const auto& [cancel, hidden] : {std::pair{form.Command7, Command8}, {form.Command8, Command7}}) {
        window->show({Command3, Command7, Command8});
        window->hide({hidden});
        QCoreApplication::processEvents();
        const QRect place({cancel->mapTo(form.panel, QPoint()), cancel->size()});
        EXPECT_EQ(place.right(), field.right());
        EXPECT_LT(place.left() - form.Command3->geometry().right(), 12);
        EXPECT_EQ(form.Text11->geometry(), field);
    }
}

TEST_F(QtWindowTest, ToolboxKeepsToTheRightUntilItIsDroppedThenWhereItIsButWithinReach)
{
    window->show({Frame2});
    const auto& toolbox = *form.Frame2;
    const auto place = [&] { return QPoint(form.Canvas->width(), 0) - toolbox.geometry().topRight(); };
    const QPoint atStart = place();
    for (const int width : {1000, 1200, 700}) {
        resize(width, 700);
        EXPECT_EQ(place(), atStart) << width;
    }
    const auto drop = [&](QPoint at) {
        window->setLeft(Frame2, at.x() * twipsPerPixel);
        window->setTop(Frame2, at.y() * twipsPerPixel);
    };
    resize(1000, 700);
    const QPoint beyondTheEdge(900, 20);
    drop(beyondTheEdge);
    resize(1050, 750);
    EXPECT_EQ(toolbox.pos(), beyondTheEdge);
    window->setVisible(Frame2, false);
    resize(600, 700); // nobody sees it there
    resize(1000, 700);
    window->setVisible(Frame2, true);
    EXPECT_EQ(toolbox.pos(), beyondTheEdge);
    for (const bool shown : {true, false}) {
        resize(1000, 700);
        drop(beyondTheEdge);
        window->setVisible(Frame2, shown);
        resize(600, 700);
        window->setVisible(Frame2, true);
        EXPECT_TRUE(form.Canvas->rect().contains(toolbox.geometry()));
    }
}

TEST_F(QtWindowTest, TabGoesThroughPanelAndToolboxAsTheyLookWhoseButtonsLeaveArrowsAndLettersToTheCanvas)
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
    EXPECT_EQ(view.focusWidget(), form.Image7);
    window->focus(Canvas); // not by Tab
    EXPECT_FALSE(canvasIsFramed());
    form.Image7->setFocus();
    QTest::keyClick(form.Image7, Qt::Key_Space);
    EXPECT_EQ(noted(), "click Image70\n");

    form.Canvas->setFocus(Qt::TabFocusReason);
    QTest::mouseClick(form.Canvas, Qt::LeftButton);
    EXPECT_FALSE(canvasIsFramed());
}

TEST_F(QtWindowTest, GivesTheKeyboardStraightToTheCanvasWhenAControlGoesAway)
{
    window->show({Frame2, panel, sup, Text11, Command3});
    for (const auto& [focus, goes] :
         {std::pair<QWidget*, void (*)(Window&)>{form.Text11, [](Window& main) { main.disable({Text11}); }},
          {form.Command3, [](Window& main) { main.hide({panel}); }},
          {form.Image7, [](Window& main) { main.hide({Frame2}); }}}) {
        focus->setFocus();
        const QSignalSpy moves(qApp, &QApplication::focusChanged);
        goes(*window);
        EXPECT_EQ(moves.size(), 1);
        EXPECT_EQ(view.focusWidget(), form.Canvas);
        EXPECT_FALSE(canvasIsFramed());
    }
}

TEST_F(QtWindowTest, ToolButtonsArePressedByTheProgramAloneAndShowColoursOnEveryScreen)
{
    window->addToolButton("Line", "", Look::unchecked);
    window->addToolButton("Fore", "", Look::plain);
    auto& bar = *view.findChild<QToolBar*>();
    auto& button = *bar.widgetForAction(bar.actions().front());
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

TEST_F(QtWindowTest, ShowsTheWholeNameOfADrawing)
{
    window->setCaption("plan [*] b");
    EXPECT_EQ(screen->title(), "plan [*] b");
}

} // namespace schemlet
