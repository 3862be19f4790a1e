#include "platform/qt/canvas_widget.h"
#include "platform/qt/colors.h"
#include "tests/gui/shown.h"
#include "tests/support/stand_ins.h"
#include "ui_Form1.h"

#include <QMenu>
#include <QMouseEvent>
#include <QToolBar>
#include <QWindow>
#include <gtest/gtest.h>

// What the main window makes of keys and mouse where that takes better timing than a person has.

namespace {

using MainWindow = Shown<QMainWindow, Ui::Form1>;

} // namespace

TEST(QtWindow, ReportsTheSecondPressOfADoubleClickUnlessTheFirstOneWasOnSomethingThatWentAway)
{
    MainWindow main;
    QTest::mouseDClick(main.form.Canvas, Qt::LeftButton, {}, {100, 200});
    EXPECT_EQ(main.events.back().x, 1500);
    EXPECT_EQ(main.events.back().y, 3000);
    EXPECT_EQ(main.noted(), "mouseDown 1\n");
    QTest::mouseRelease(main.form.Canvas, Qt::LeftButton);
    EXPECT_EQ(main.noted(), "mouseUp 1\n");

    QMouseEvent stray(QEvent::MouseButtonDblClick, QPointF(10, 10), QPointF(10, 10), Qt::LeftButton, Qt::LeftButton,
                      {});
    stray.setTimestamp(100'000'000);
    QCoreApplication::sendEvent(main.form.Canvas, &stray);
    QTest::mouseRelease(main.form.Canvas, Qt::LeftButton);
    EXPECT_EQ(main.noted(), "");
    QTest::mouseClick(main.form.Canvas, Qt::LeftButton);
    EXPECT_EQ(main.noted(), "mouseDown 1\nmouseUp 1\n");
}

TEST(QtWindow, ReportsTheReleaseThatThePopupMenuSwallowsAndNoOther)
{
    MainWindow main;
    main.window->addMenuItem(0, {"rc", "&Rightclick", "", Look::hidden});
    main.window->addMenuItem(1, {"eras", "&Eraser"});
    QTest::mousePress(main.form.Canvas, Qt::RightButton, {}, {100, 200});
    main.window->popUp("rc");
    QMenu& menu = *main.view.findChild<QMenu*>("rcMenu");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    EXPECT_EQ(main.noted(), "mouseDown 2\n");
    const QPoint outside = menu.mapFromGlobal(main.view.frameGeometry().bottomRight() + QPoint(50, 50));
    for (const auto& [button, reported] :
         {std::pair{Qt::LeftButton, ""}, {Qt::RightButton, "mouseUp 2\n"}, {Qt::RightButton, ""}}) {
        QTest::mouseRelease(&menu, button, {}, outside);
        EXPECT_EQ(main.noted(), reported);
    }
}

TEST(QtWindow, PanelFitsIntoTheSmallestWindowInTheCornerFarthestFromThePen)
{
    MainWindow main;
    main.window->show({control::panel, control::sup, control::bat, control::Text11});
    main.view.resize(1, 1);
    QCoreApplication::processEvents();
    const QRect canvas = main.form.Canvas->geometry();
    for (const auto& [x, y, corner] : {std::tuple{1500, 1500, canvas.bottomRight()},
                                       {90000, 1500, canvas.bottomLeft()},
                                       {1500, 90000, canvas.topRight()},
                                       {90000, 90000, canvas.topLeft()}}) {
        main.window->placeAwayFrom(control::panel, x, y);
        QCoreApplication::processEvents();
        EXPECT_TRUE(canvas.contains(main.form.panel->geometry()));
        EXPECT_TRUE(main.form.panel->geometry().contains(corner)) << x << ' ' << y;
    }
}

TEST(QtWindow, ToolboxStaysWithinReachWhenTheWindowShrinks)
{
    MainWindow main;
    main.window->show({control::Frame2});
    const QPoint place = main.form.Frame2->pos();
    for (const auto& [size, moves] : {std::pair{QSize(1000, 700), false}, {QSize(700, 600), true}}) {
        main.view.resize(size);
        QCoreApplication::processEvents();
        EXPECT_TRUE(main.form.Canvas->rect().contains(main.form.Frame2->geometry()));
        EXPECT_EQ(main.form.Frame2->pos() != place, moves);
    }
}

TEST(QtWindow, TabGoesThroughPanelAndToolboxAsTheyLookWhoseButtonsLeaveArrowsAndLettersToTheCanvas)
{
    MainWindow main;
    using namespace control;
    main.window->show({Frame2, panel, sup, bat, Text11, Command3, Command7, Command8});
    main.window->enable({Text11, Command3, Command7, Command8});
    main.form.Canvas->setFocus();
    for (const QString& next :
         QString("Option3 Option2 Command8 Option4 Option5 Command7 Text11 Command3 Image1 Image2 Image3 Image4 Image5 "
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
}

TEST(QtWindow, ToolButtonsArePressedByTheProgramAloneAndShowColoursOnEveryScreen)
{
    MainWindow main;
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
            const int left = static_cast<int>(4 * ratio), right = static_cast<int>(20 * ratio);
            const int y = static_cast<int>(18.5 * ratio);
            EXPECT_EQ(icon.pixelColor(left, y), color);
            EXPECT_EQ(icon.pixelColor(right, y), color);
            EXPECT_NE(icon.pixelColor(left, static_cast<int>(15.5 * ratio)), color); // its outline
        }
    }
}

TEST(QtWindow, ShowsTheWholeNameOfADrawing)
{
    MainWindow main;
    main.window->setCaption("plan [*] b");
    EXPECT_EQ(main.view.windowHandle()->title(), "plan [*] b");
}
