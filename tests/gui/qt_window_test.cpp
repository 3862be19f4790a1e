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
#include <QStyle>
#include <QToolBar>
#include <QWindow>
#include <gtest/gtest.h>

namespace schemlet {

// What the main window makes of keys and mouse where that takes better timing than a person has.

namespace {

using ShownMain = Shown<QMainWindow, Ui::Form1>;

QMenu& addPopup(ShownMain& main)
{
    main.window->addMenuItem(0, {"rc", "&Rightclick", "", Look::hidden});
    main.window->addMenuItem(1, {"eras", "&Eraser"});
    return *main.view.findChild<QMenu*>("rcMenu");
}

} // namespace

TEST(QtWindow, TellsTheCanvasOfEveryButtonThatComesUpWhereverThatIs)
{
    ShownMain main;
    QWindow* const window = main.view.windowHandle();
    const QPoint place = main.form.Canvas->mapTo(&main.view, QPoint(100, 200));
    QTest::mouseMove(window, place);
    main.events.clear();
    QTest::mouseDClick(window, Qt::LeftButton, {}, place);
    EXPECT_EQ(main.events.back().place.x, 1500);
    EXPECT_EQ(main.events.back().place.y, 3000);
    EXPECT_EQ(main.noted(), "mouseDown 1\nmouseUp 1\nmouseDown 1\nmouseUp 1\n");

    QMenu& menu = addPopup(main);
    QTest::mousePress(window, Qt::LeftButton, {}, place);
    QTest::mousePress(window, Qt::RightButton, {}, place);
    main.window->popUp("rc", {1500, 3000});
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    EXPECT_EQ(main.noted(), "mouseDown 1\nmouseDown 2\nhover 0\n"); // the menu lies under the mouse
    QTest::mouseRelease(menu.windowHandle(), Qt::RightButton, {}, {20, 20});
    menu.close();
    QTest::mouseRelease(window, Qt::LeftButton, {}, place);
    EXPECT_EQ(main.noted(), "mouseUp 2\nclick eras0\nmouseUp 1\n");

    QTest::mousePress(window, Qt::LeftButton, {}, place);
    QDialog box(&main.view);
    box.open();
    QTest::mouseRelease(window, Qt::LeftButton, {}, place);
    EXPECT_EQ(main.noted(), "mouseDown 1\n");
    box.close();
    EXPECT_EQ(main.noted(), "mouseUp 1\n");

    const QPoint before = QCursor::pos();
    QCursor::setPos(main.form.Canvas->mapToGlobal(QPoint(100, 200)));
    QFocusEvent keyboardIsBack(QEvent::FocusIn, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(main.form.Canvas, &keyboardIsBack);
    main.events.clear();
    QCoreApplication::processEvents();
    QCursor::setPos(before);
    ASSERT_FALSE(main.events.empty());
    EXPECT_EQ(main.events.back().place.y, 3000);
    EXPECT_EQ(main.noted(), "hover Canvas0\n");
}

TEST(QtWindow, DropsADoubleClickWhoseFirstPressWasOnSomethingThatWentAwayButAMenu)
{
    ShownMain main;
    main.window->show({control::Frame2});
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
    addPopup(main);
    for (const auto& [below, dropped, done] :
         {std::tuple<QWidget*, const char*, const char*>{main.form.Canvas, "mouseMove 0\n", "mouseDown 1\nmouseUp 1\n"},
          {main.form.Image7, "hover Image70\n", "click Image70\n"}}) {
        QPushButton answer;
        send(answer, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        doubleClick(*below);
        EXPECT_EQ(main.noted(), dropped);

        main.window->popUp("rc", {1500, 3000});
        send(*below, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        doubleClick(*below);
        EXPECT_NE(main.noted().find(done), std::string::npos);
    }
}

TEST(QtWindow, OpensThePopupMenuAtAPlaceOrTheCanvasesEdgeWhenAKeyAsksForIt)
{
    ShownMain main;
    main.window->addMenuItem(0, {"file", "&File"});
    main.window->addMenuItem(1, {"new", "&New"});
    QMenu& menu = addPopup(main);
    for (const auto& [x, y, place] :
         {std::tuple{1500, 3000, QPoint(100, 200)}, {-9000, 3000, {0, 200}}, {1500, -15, {100, 0}}}) {
        main.window->popUp("rc", {static_cast<float>(x), static_cast<float>(y)});
        EXPECT_EQ(main.form.Canvas->mapFromGlobal(menu.pos()), place);
        menu.close();
    }
    main.view.activateWindow(); // without a window manager a menu does not give the keyboard back
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main.view));
    main.window->show({control::Frame2, control::panel, control::sup, control::Text11});
    for (QWidget* const focus :
         std::initializer_list<QWidget*>{main.form.Canvas, main.form.Image1, main.form.Option2}) {
        focus->setFocus();
        QTest::keyClick(main.view.windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
        EXPECT_EQ(main.noted(), "click rc0\n");
    }
    main.form.Text11->setFocus();
    QTest::keyClick(main.view.windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr); // the text's own
    QApplication::activePopupWidget()->close();
    QTest::keyClick(main.view.windowHandle(), Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "fileMenu");
    EXPECT_NE(dynamic_cast<QMenu&>(*QApplication::activePopupWidget()).activeAction(), nullptr);
    QTest::keyClick(main.view.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), main.form.Text11);
    EXPECT_EQ(main.noted(), "");
}

TEST(QtWindow, ToolboxCountsEveryMoveOverItselfWithAButtonHeldToo)
{
    ShownMain main;
    main.window->show({control::Frame2});
    QWindow* const window = main.view.windowHandle();
    const auto moveTo = [&](QPoint place) { QTest::mouseMove(window, main.form.Frame2->mapTo(&main.view, place)); };
    const QPoint edge = main.form.Frame2->rect().bottomLeft() + QPoint(2, -20);
    moveTo(edge);
    main.events.clear();
    QTest::mousePress(window, Qt::LeftButton, {}, main.form.Frame2->mapTo(&main.view, edge));
    moveTo(edge + QPoint(0, 1));
    moveTo(edge + QPoint(0, 2));
    moveTo(main.form.Image1->geometry().center()); // is not over the frame itself
    moveTo({-50, 0});                              // nor is this
    EXPECT_EQ(main.noted(), "hover Frame20\nhover Frame20\n");
}

TEST(QtWindow, PanelLiesInTheFarthestCornerWhereItCoversNeitherPenNorToolbox)
{
    ShownMain main;
    main.window->show({control::panel, control::sup, control::bat, control::Text11});
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
    QDialog help(&main.view);
    for (const auto& [size, pen, toolbox, corner, helpBelow] : cases) {
        SCOPED_TRACE(std::to_string(pen.x()) + ' ' + std::to_string(pen.y()));
        main.view.resize(size);
        help.setGeometry(QRect(main.form.Canvas->mapToGlobal(QPoint(0, size.height() - 300)), QSize(1000, 300)));
        help.setVisible(helpBelow);
        main.window->setVisible(control::Frame2, toolbox);
        main.window->placeAwayFrom(control::panel, {static_cast<float>(15 * pen.x()), static_cast<float>(15 * pen.y())},
                                   control::Frame2);
        QCoreApplication::processEvents();
        const QRect canvas = main.form.Canvas->geometry();
        const QRect panel = main.form.panel->geometry();
        EXPECT_EQ(panel, QStyle::alignedRect(Qt::LeftToRight, corner, panel.size(), canvas));
        EXPECT_TRUE(canvas.contains(panel));
    }
}

TEST(QtWindow, PanelsButtonsHaveNoGapsBetweenThemWhicheverShow)
{
    ShownMain main;
    using namespace control;
    main.window->show({panel, sup, bat, Text11});
    const QRect field = main.form.Text11->geometry();
    for (const auto& [cancel, hidden] : {std::pair{main.form.Command7, Command8}, {main.form.Command8, Command7}}) {
        main.window->show({Command3, Command7, Command8});
        main.window->hide({hidden});
        QCoreApplication::processEvents();
        const QRect place({cancel->mapTo(main.form.panel, QPoint()), cancel->size()});
        EXPECT_EQ(place.right(), field.right());
        EXPECT_LT(place.left() - main.form.Command3->geometry().right(), 12);
        EXPECT_EQ(main.form.Text11->geometry(), field);
    }
}

TEST(QtWindow, ToolboxKeepsToTheRightUntilItIsDroppedThenWhereItIsButWithinReach)
{
    ShownMain main;
    main.window->show({control::Frame2});
    const auto& toolbox = *main.form.Frame2;
    const auto place = [&] { return QPoint(main.form.Canvas->width(), 0) - toolbox.geometry().topRight(); };
    const auto resize = [&](int width, int height) {
        main.view.resize(width, height);
        QCoreApplication::processEvents();
    };
    const QPoint atStart = place();
    for (const int width : {1000, 1200, 700}) {
        resize(width, 700);
        EXPECT_EQ(place(), atStart) << width;
    }
    const auto drop = [&](QPoint at) {
        main.window->setLeft(control::Frame2, at.x() * twipsPerPixel);
        main.window->setTop(control::Frame2, at.y() * twipsPerPixel);
    };
    resize(1000, 700);
    const QPoint beyondTheEdge(900, 20);
    drop(beyondTheEdge);
    resize(1050, 750);
    EXPECT_EQ(toolbox.pos(), beyondTheEdge);
    main.window->setVisible(control::Frame2, false);
    for (const int width : {600, 1000}) { // nobody sees it there
        resize(width, 700);
    }
    main.window->setVisible(control::Frame2, true);
    EXPECT_EQ(toolbox.pos(), beyondTheEdge);
    for (const bool shown : {true, false}) {
        resize(1000, 700);
        drop(beyondTheEdge);
        main.window->setVisible(control::Frame2, shown);
        resize(600, 700);
        main.window->setVisible(control::Frame2, true);
        EXPECT_TRUE(main.form.Canvas->rect().contains(toolbox.geometry()));
    }
}

TEST(QtWindow, TabGoesThroughPanelAndToolboxAsTheyLookWhoseButtonsLeaveArrowsAndLettersToTheCanvas)
{
    ShownMain main;
    using namespace control;
    main.window->show({Frame2, panel, sup, bat, Text11, Command3, Command7, Command8});
    main.window->enable({Text11, Command3, Command7, Command8});
    main.form.Canvas->setFocus();
    for (const QString& next :
         QString("Option3 Option2 Option4 Option5 Text11 Command3 Command8 Command7 Image1 Image2 Image3 Image4 Image5 "
                 "Image15 Image16 Image17 Image18 Image19 Image20 Image7 Canvas")
             .split(' ')) {
        QTest::keyClick(main.view.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(main.view.focusWidget()->objectName().toStdString(), next.toStdString());
        QTest::keyClick(main.view.focusWidget(), Qt::Key_Right);
        QTest::keyClick(main.view.focusWidget(), Qt::Key_S);
        EXPECT_EQ(main.noted(), next == "Text11" ? "" : "keyDown 39\nkeyDown 0\nkeyPress 115\n");
    }
    const auto edge = [&main] { return main.form.Canvas->grab().toImage().pixelColor(0, 300); };
    EXPECT_NE(edge(), QColor(Qt::white)); // it shows that it has the keyboard
    QTest::keyClick(main.form.Canvas, Qt::Key_Backtab);
    EXPECT_EQ(edge(), QColor(Qt::white));
    EXPECT_EQ(main.view.focusWidget(), main.form.Image7);
    main.window->focus(Canvas); // not by Tab
    EXPECT_EQ(edge(), QColor(Qt::white));
    main.form.Image7->setFocus();
    QTest::keyClick(main.form.Image7, Qt::Key_Space);
    EXPECT_EQ(main.noted(), "click Image70\n");

    main.form.Canvas->setFocus(Qt::TabFocusReason);
    QTest::mouseClick(main.form.Canvas, Qt::LeftButton);
    EXPECT_EQ(edge(), QColor(Qt::white));
}

TEST(QtWindow, GivesTheKeyboardStraightToTheCanvasWhenAControlGoesAway)
{
    ShownMain main;
    using namespace control;
    main.window->show({Frame2, panel, sup, Text11, Command3});
    for (const auto& [focus, goes] :
         {std::pair<QWidget*, void (*)(Window&)>{main.form.Text11, [](Window& window) { window.disable({Text11}); }},
          {main.form.Command3, [](Window& window) { window.hide({panel}); }},
          {main.form.Image7, [](Window& window) { window.hide({Frame2}); }}}) {
        focus->setFocus();
        QStringList visited;
        const auto watch =
            QObject::connect(qApp, &QApplication::focusChanged,
                             [&](const QWidget* /*old*/, const QWidget* now) { visited << now->objectName(); });
        goes(*main.window);
        QObject::disconnect(watch);
        EXPECT_EQ(visited.join(' ').toStdString(), "Canvas");
        EXPECT_EQ(main.form.Canvas->grab().toImage().pixelColor(0, 300), QColor(Qt::white));
    }
}

TEST(QtWindow, ToolButtonsArePressedByTheProgramAloneAndShowColoursOnEveryScreen)
{
    ShownMain main;
    main.window->addToolButton("Line", "", Look::unchecked);
    main.window->addToolButton("Fore", "", Look::plain);
    auto& bar = *main.view.findChild<QToolBar*>();
    auto& button = *bar.widgetForAction(bar.actions().front());
    for (const bool pressed : {false, true}) {
        main.window->setChecked("Line", pressed);
        QTest::mouseClick(&button, Qt::LeftButton);
        EXPECT_EQ(main.window->checked("Line"), pressed);
        EXPECT_NE(main.noted().find("click Line"), std::string::npos);
    }
    for (const QColor color : {QColor(Qt::white), QColor(255, 0, 10), QColor(Qt::black)}) {
        main.window->setSwatch("Fore", toColor(color));
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const QImage icon = bar.actions().back()->icon().pixmap({24, 24}, ratio).toImage();
            EXPECT_EQ(icon.width(), 24 * ratio);
            const int left = static_cast<int>(4 * ratio);
            const int right = static_cast<int>(20 * ratio);
            const int y = static_cast<int>(18.5 * ratio);
            EXPECT_EQ(icon.pixelColor(left, y), color);
            EXPECT_EQ(icon.pixelColor(right, y), color);
            EXPECT_NE(icon.pixelColor(left, static_cast<int>(15.5 * ratio)), color); // its outline
        }
    }
}

TEST(QtWindow, ShowsTheWholeNameOfADrawing)
{
    ShownMain main;
    main.window->setCaption("plan [*] b");
    EXPECT_EQ(main.view.windowHandle()->title(), "plan [*] b");
}

} // namespace schemlet
