#include "platform/qt/qt_window.h"

#include "platform/qt/accessibility.h"
#include "platform/qt/canvas_widget.h"
#include "tests/support/stand_ins.h"
#include "ui_Form1.h"

#include <QAccessible>
#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// The main window on the toolkit, with a note of every event in place of the program behind it.
struct MainWindow {
    QMainWindow view;
    Ui::Form1 form{};
    std::vector<Event> events;
    std::unique_ptr<QtWindow> window;

    MainWindow()
    {
        form.setupUi(&view);
        window = std::make_unique<QtWindow>(view, [this](const Event& event) { events.push_back(event); });
        view.show();
        view.activateWindow();
        (void)QTest::qWaitForWindowActive(&view);
        events.clear();
    }

    [[nodiscard]] std::string noted() const
    {
        constexpr const char* kinds[] = {"keyDown", "keyPress", "mouseDown", "mouseMove",
                                         "mouseUp", "click",    "tick",      "close"};
        std::string text;
        for (const Event& event : events) {
            text += std::string(kinds[static_cast<int>(event.kind)]) + " " + std::string(event.name) +
                    std::to_string(event.code) + "\n";
        }
        return text;
    }
};

} // namespace

TEST(QtWindow, HasEveryControlThatTheProgramNames)
{
    const MainWindow main;
    for (const Name name : formControls) {
        EXPECT_NE(main.view.findChild<QObject*>(QString::fromLatin1(name.data())), nullptr) << name;
    }
}

TEST(QtWindow, ReportsKeysAsDownAndTypedButNoLetterWithCtrlOrAltAndNoModifierAlone)
{
    struct Case {
        Qt::Key key = {};
        Qt::KeyboardModifiers held;
        const char* text = "";
        const char* reported = "";
    };
    const Case cases[] = {
        {Qt::Key_E, Qt::NoModifier, "e", "keyDown 0\nkeyPress 101\n"},
        {Qt::Key_Left, Qt::ShiftModifier | Qt::KeypadModifier, "", "keyDown 37\n"},
        {Qt::Key_Percent, Qt::ShiftModifier, "%", "keyDown 0\nkeyPress 37\n"}, // the toolkit's code is our left arrow's
        {Qt::Key_E, Qt::ControlModifier | Qt::AltModifier, "e", "keyDown 0\n"},
        {Qt::Key_J, Qt::AltModifier, "j", "keyDown 0\n"},
        {Qt::Key_Shift, Qt::NoModifier, "", ""},
        {Qt::Key_Control, Qt::NoModifier, "", ""},
        {Qt::Key_Alt, Qt::NoModifier, "", ""},
        {Qt::Key_AltGr, Qt::NoModifier, "", ""},
        {Qt::Key_Meta, Qt::NoModifier, "", ""},
        {Qt::Key_Super_L, Qt::NoModifier, "", ""},
    };
    MainWindow main;
    for (const Case& c : cases) {
        main.events.clear();
        QKeyEvent event(QEvent::KeyPress, c.key, c.held, c.text);
        QCoreApplication::sendEvent(main.form.Canvas, &event);
        EXPECT_EQ(main.noted(), c.reported) << c.key;
    }
}

TEST(QtWindow, ReportsTheSecondPressOfADoubleClickLikeAnyOther)
{
    MainWindow main;
    QTest::mouseDClick(main.form.Canvas, Qt::LeftButton, {}, {100, 200});
    EXPECT_EQ(main.noted(), "mouseDown 1\n");
    EXPECT_EQ(main.events.back().x, 1500);
    EXPECT_EQ(main.events.back().y, 3000);
    QTest::mouseRelease(main.form.Canvas, Qt::LeftButton); // else the toolkit takes it for held in later tests
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
    main.events.clear();
    const QPoint outside = menu.mapFromGlobal(main.view.frameGeometry().bottomRight() + QPoint(50, 50));
    QTest::mouseRelease(&menu, Qt::LeftButton, {}, outside);
    EXPECT_EQ(main.noted(), "");
    QTest::mouseRelease(&menu, Qt::RightButton, {}, outside);
    EXPECT_EQ(main.noted(), "mouseUp 2\n");
    QTest::mouseRelease(&menu, Qt::RightButton, {}, outside);
    EXPECT_EQ(main.noted(), "mouseUp 2\n");
}

TEST(QtWindow, LeavesTheMarkOfACheckItemToItsCommand)
{
    MainWindow main;
    main.window->addMenuItem(0, {"ae", "Enable"});
    main.window->addMenuItem(1, {"jj", "Automatic Jumper", "", Look::unchecked});
    main.view.findChild<QAction*>("jj")->trigger();
    EXPECT_EQ(main.noted(), "click jj0\n");
    EXPECT_FALSE(main.window->checked("jj"));
    main.window->setChecked("jj", true);
    EXPECT_TRUE(main.window->checked("jj"));
}

TEST(QtWindow, KnowsWhatItWasToldToShow)
{
    const MainWindow main;
    for (const Name name : {control::Picture1, control::Label27, control::Shape1}) {
        main.window->setVisible(name, false);
        EXPECT_FALSE(main.window->visible(name)) << name;
        main.window->setVisible(name, true);
        EXPECT_TRUE(main.window->visible(name)) << name;
    }
}

TEST(QtWindow, HidesFromTheStartWhatWasHiddenBeforeItWasShown)
{
    QMainWindow view;
    Ui::Form1 form{};
    form.setupUi(&view);
    QtWindow window(view, [](const Event&) {});
    window.hide({control::Picture1, control::Shape1, control::Label27});
    view.show();
    for (const Name name : {control::Picture1, control::Shape1, control::Label27}) {
        EXPECT_FALSE(window.visible(name)) << name;
    }
}

TEST(QtWindow, TakesBackTheChosenOptionOfAGroupWithoutReportingAClick)
{
    MainWindow main;
    main.window->setValue(control::Option4, 1);
    EXPECT_EQ(main.window->value(control::Option4), 1);
    main.window->setValue(control::Option4, 0);
    EXPECT_EQ(main.window->value(control::Option4), 0);
    EXPECT_EQ(main.noted(), "");
    main.form.Option2->setEnabled(true);
    main.form.Option2->click();
    main.form.Option4->click(); // of another group
    EXPECT_EQ(main.noted(), "click Option20\nclick Option40\n");
    EXPECT_EQ(main.window->value(control::Option2), 1);
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

TEST(QtWindow, PanelsTextIsReadableOnEveryColour)
{
    const MainWindow main;
    // Each text here has a contrast of at least 4.5 to 1; the other one has less than that on most of these grounds.
    const std::pair<Color, QColor> grounds[] = {{white, Qt::black},    {black, Qt::white},    {0x0000FF, Qt::black},
                                                {0x00FF00, Qt::black}, {0xFF0000, Qt::white}, {0x00FFFF, Qt::black},
                                                {0x800080, Qt::white}, {0x606060, Qt::white}, {0x808080, Qt::black},
                                                {0x0080FF, Qt::black}};
    for (const auto& [ground, text] : grounds) {
        main.window->setBackColor(control::sup, ground);
        EXPECT_EQ(main.form.Label12->palette().color(QPalette::WindowText), text) << ground;
    }
}

TEST(QtWindow, PassesArrowsAndLettersOnToTheCanvasWhileAButtonHasTheFocus)
{
    MainWindow main;
    main.window->show({control::panel, control::sup, control::Command3, control::Text11});
    main.form.Command3->setFocus();
    QTest::keyClick(main.form.Command3, Qt::Key_Right);
    QTest::keyClick(main.form.Command3, Qt::Key_S);
    EXPECT_EQ(main.noted(), "keyDown 39\nkeyDown 0\nkeyPress 115\n");
    main.events.clear();
    QTest::keyClick(main.form.Command3, Qt::Key_Return);
    QTest::keyClick(main.form.Command3, Qt::Key_Space);
    EXPECT_EQ(main.noted(), "click Command30\nclick Command30\n");
    main.events.clear();
    main.form.Text11->setFocus();
    QTest::keyClicks(main.form.Text11, "s");
    EXPECT_EQ(main.noted(), "");
}

TEST(QtWindow, SecondPressOfADoubleClickOnSomethingThatWentAwayReachesNothing)
{
    MainWindow main;
    QMouseEvent stray(QEvent::MouseButtonDblClick, QPointF(10, 10), QPointF(10, 10), Qt::LeftButton, Qt::LeftButton,
                      {});
    stray.setTimestamp(100'000'000);
    QCoreApplication::sendEvent(main.form.Canvas, &stray);
    QTest::mouseRelease(main.form.Canvas, Qt::LeftButton);
    EXPECT_EQ(main.noted(), "");
    QTest::mouseClick(main.form.Canvas, Qt::LeftButton);
    EXPECT_EQ(main.noted(), "mouseDown 1\nmouseUp 1\n");
}

TEST(QtWindow, TellsAssistiveProgramsWhatThingsAre)
{
    installAccessibility();
    MainWindow main;
    main.window->addMenuItem(0, {"edit", " &Edit "});
    main.window->addMenuItem(1, {"eraser", "&Eraser", "Ctrl+E"});
    main.window->setDescription(control::Canvas, "Pen at 1600, 1500 twips");
    const QAccessibleInterface& canvas = *QAccessible::queryAccessibleInterface(main.form.Canvas);
    EXPECT_EQ(canvas.role(), QAccessible::Canvas);
    EXPECT_EQ(canvas.text(QAccessible::Name), "Canvas");
    EXPECT_EQ(canvas.text(QAccessible::Description), "Pen at 1600, 1500 twips");
    EXPECT_EQ(canvas.childCount(), 1); // neither marker nor eraser
    EXPECT_EQ(canvas.child(0)->text(QAccessible::Name), "ToolBox");
    EXPECT_EQ(canvas.indexOfChild(canvas.child(0)), 0);
    EXPECT_EQ(main.view.findChild<QMenu*>("editMenu")->accessibleName(), "Edit");
}

TEST(QtWindow, TabGoesFromTheCanvasThroughPanelAndToolboxAsTheyLookAndBack)
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
    }
    QTest::keyClick(main.form.Canvas, Qt::Key_Backtab);
    EXPECT_EQ(main.view.focusWidget(), main.form.Image7);
    EXPECT_EQ(main.noted(), "");
}
