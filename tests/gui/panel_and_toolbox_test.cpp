#include "canvas/controls.h"
#include "tests/gui/shown.h"
#include "ui_Form1.h"

#include <QDialog>
#include <QStyle>
#include <gtest/gtest.h>

namespace schemlet {

// The controls that lie over the canvas.

namespace {

using namespace control;

struct PanelAndToolbox : testing::Test, Shown<QMainWindow, Ui::Form1> {
    void resize(int width, int height)
    {
        view.resize(width, height);
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(PanelAndToolbox, ToolboxReportsMovesOverItselfEvenIfAButtonIsHeld)
{
    window->show({Frame2});
    const auto moveTo = [&](QPoint place) { QTest::mouseMove(view.windowHandle(), form.Frame2->mapTo(&view, place)); };
    const QPoint edge = form.Frame2->rect().bottomLeft() + QPoint(2, -20);
    moveTo(edge);
    events.clear();
    QTest::mousePress(view.windowHandle(), Qt::LeftButton, {}, form.Frame2->mapTo(&view, edge));
    moveTo(edge + QPoint(0, 1));
    moveTo(edge + QPoint(0, 2));
    moveTo(form.Image1->geometry().center()); // over a button, not the frame itself
    moveTo({-50, 0});                         // outside the frame
    EXPECT_EQ(noted(), "hover Frame20\nhover Frame20\n");
}

TEST_F(PanelAndToolbox, MouseReachesTheCanvasOnlyThroughTheLabelOfEraseMode)
{
    window->show({Frame2, Label27, panel, bat});
    QCoreApplication::processEvents();
    const auto noteOfClick = [&](const QWidget& control) {
        events.clear();
        QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, control.mapTo(&view, control.rect().center()));
        return noted();
    };
    EXPECT_EQ(noteOfClick(*form.Label27), "mouseMove 0\nmouseDown 1\nmouseUp 1\n");
    EXPECT_EQ(noteOfClick(*form.Label1), "hover Label10\nclick Label10\n");
    EXPECT_EQ(noteOfClick(*form.Image1), "hover Image10\nclick Image10\n");
    EXPECT_EQ(noteOfClick(*form.Option4), "hover 0\nclick Option40\n");
    // Only the left button clicks a label, and only if it is released over the label.
    const QPoint label = form.Label1->mapTo(&view, form.Label1->rect().center());
    QTest::mouseClick(view.windowHandle(), Qt::RightButton, {}, label);
    QTest::mousePress(view.windowHandle(), Qt::LeftButton, {}, label);
    QTest::mouseRelease(view.windowHandle(), Qt::LeftButton, {}, label + QPoint(0, 60));
    EXPECT_EQ(noted().find("click"), std::string::npos);
    EXPECT_EQ(window->value(Option4), 1);
    window->setValue(Option4, 0);
    EXPECT_EQ(window->value(Option4), 0);
}

TEST_F(PanelAndToolbox, PanelTakesTheFarthestFreeCorner)
{
    window->show({panel, sup, bat, Text11});
    const std::tuple<QSize, QPoint, bool, bool, Qt::Alignment> cases[] = {
        // window, pen, toolbox, help below
        {{1, 1}, {100, 100}, false, false, Qt::AlignBottom | Qt::AlignRight},
        {{1, 1}, {6000, 100}, false, false, Qt::AlignBottom | Qt::AlignLeft},
        {{1, 1}, {100, 6000}, false, false, Qt::AlignTop | Qt::AlignRight},
        {{1, 1}, {6000, 6000}, false, false, Qt::AlignTop | Qt::AlignLeft},
        {{784, 552}, {106, 100}, true, false, Qt::AlignBottom | Qt::AlignLeft},
        {{784, 552}, {50, 500}, true, false, Qt::AlignTop | Qt::AlignLeft},
        {{784, 552}, {106, 100}, true, true, Qt::AlignBottom | Qt::AlignLeft},
        {{1000, 700}, {106, 100}, true, false, Qt::AlignBottom | Qt::AlignRight},
        {{1000, 700}, {106, 600}, false, true, Qt::AlignTop | Qt::AlignRight},
    };
    QDialog help(&view);
    for (const auto& [size, pen, toolbox, helpBelow, corner] : cases) {
        SCOPED_TRACE(std::to_string(pen.x()) + ' ' + std::to_string(pen.y()));
        view.resize(size);
        help.setGeometry(QRect(form.Canvas->mapToGlobal(QPoint(0, size.height() - 300)), QSize(1000, 300)));
        help.setVisible(helpBelow);
        window->setVisible(Frame2, toolbox);
        window->placeAwayFrom(panel, {static_cast<float>(15 * pen.x()), static_cast<float>(15 * pen.y())}, Frame2);
        QCoreApplication::processEvents();
        const QRect canvas = form.Canvas->geometry();
        const QRect place = form.panel->geometry();
        EXPECT_EQ(place, QStyle::alignedRect(Qt::LeftToRight, corner, place.size(), canvas));
        EXPECT_TRUE(canvas.contains(place));
    }
}

TEST_F(PanelAndToolbox, PanelsVisibleButtonsHaveNoGaps)
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

TEST_F(PanelAndToolbox, ToolboxStaysAtTheRightUntilItIsMovedAndNeverLeavesTheCanvas)
{
    window->show({Frame2});
    const auto& toolbox = *form.Frame2;
    const auto place = [&] { return QPoint(form.Canvas->width(), 0) - toolbox.geometry().topRight(); };
    const QPoint atStart = place();
    for (const int width : {1000, 1200, 700}) {
        resize(width, 700);
        EXPECT_EQ(place(), atStart) << width;
    }
    const QPoint dropped(900, 20);
    for (const auto& [hidden, widths, stays] : {std::tuple<bool, QList<int>, bool>{false, {1050}, true},
                                                {true, {600, 1000}, true}, // hidden while the window is too narrow
                                                {false, {600}, false},
                                                {true, {600}, false}}) {
        resize(1000, 700);
        window->setLeft(Frame2, dropped.x() * twipsPerPixel);
        window->setTop(Frame2, dropped.y() * twipsPerPixel);
        window->setVisible(Frame2, !hidden);
        for (const int width : widths) {
            resize(width, 700);
        }
        window->setVisible(Frame2, true);
        EXPECT_EQ(toolbox.pos() == dropped, stays);
        EXPECT_TRUE(stays || form.Canvas->rect().contains(toolbox.geometry()));
    }
}

} // namespace schemlet
