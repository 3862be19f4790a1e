#include "platform/qt/accessibility.h"
#include "platform/qt/canvas_widget.h"
#include "platform/qt/colors.h"
#include "platform/qt/fit_screen.h"
#include "platform/qt/text.h"
#include "shell/product_picture.h"
#include "tests/gui/pixels.h"
#include "tests/gui/shown.h"
#include "tests/support/stand_ins.h"
#include "ui_Form1.h"
#include "ui_Form2.h"
#include "ui_Form3.h"
#include "ui_Form4.h"
#include "ui_Form6.h"

#include <QAccessible>
#include <QApplication>
#include <QMetaProperty>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace schemlet {

// Every control is there and whole, every text can be read, and a screen reader knows every name, whatever colours the
// user gives the canvas and the desktop. Contrast is measured on the pixels.

namespace {

/// The best contrast of a text to the same place without it; 0 if the text is invisible.
double textContrast(QWidget& widget, const char* property)
{
    QWidget& window = *widget.window();
    const QRect place(widget.mapTo(&window, QPoint()), widget.size());
    const QVariant text = widget.property(property);
    const QImage with = window.grab(place).toImage();
    widget.setProperty(property, " ");
    const QImage without = window.grab(place).toImage();
    widget.setProperty(property, text);
    double best = 0;
    visit(with, [&](int x, int y) {
        if (with.pixel(x, y) != without.pixel(x, y)) {
            best = std::max(best, contrast(with.pixelColor(x, y), without.pixelColor(x, y)));
        }
    });
    return best;
}

void expectReadable(const QWidget& window)
{
    for (auto* const widget : window.findChildren<QWidget*>()) {
        for (const char* const property : {"text", "title"}) {
            const auto* const type = widget->metaObject();
            const QString text = widget->property(property).toString().trimmed();
            const bool seen = widget->isVisible() && widget->width() > 0; // a status bar panel may have no room
            // A progress bar has a text that cannot be set and is not shown.
            if (seen && !text.isEmpty() && type->property(type->indexOfProperty(property)).isWritable()) {
                EXPECT_GE(textContrast(*widget, property), 4.5) << text.toStdString();
            }
        }
    }
}

void expectWholeAndReadable(const QWidget& window, std::span<const Name> names)
{
    for (const Name name : names) {
        EXPECT_NE(window.findChild<QObject*>(toQString(name)), nullptr) << name.text();
    }
    expectReadable(window);
    for (const auto* const control : window.findChildren<QWidget*>()) {
        EXPECT_EQ(control->size(), control->size().expandedTo(control->minimumSizeHint())) << control;
        EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry())) << control;
    }
}

/// What a screen reader calls the controls of each role in a window, in their order.
std::map<QAccessible::Role, std::string> namesIn(QWidget& window)
{
    std::map<QAccessible::Role, std::string> names;
    for (std::vector open{QAccessible::queryAccessibleInterface(&window)}; !open.empty();) {
        const QAccessibleInterface& each = *open.back();
        open.pop_back();
        const std::string name = each.text(QAccessible::Name).simplified().toStdString();
        EXPECT_TRUE(!name.empty() || each.role() == QAccessible::Window || each.role() == QAccessible::Client);
        EXPECT_NE(name, "•");
        names[each.role()] += name + "; ";
        for (int i = each.childCount(); i-- > 0;) {
            open.push_back(each.child(i));
        }
    }
    return names;
}

/// The main window with everything that can be visible on the canvas.
struct FullWindow : Shown<QMainWindow, Ui::Form1> {
    FullWindow()
    {
        for (const Name name : formControls) {
            window->setVisible(name, true);
            window->setEnabled(name, true);
        }
        window->setVisible(control::Label28, false); // another prompt has the same place
        window->setText(control::Text11, "10");
        window->setText(control::sb, "Press F1 for Help");
        window->setBackColor(control::Frame2, 0xE0E0E0);
        form.Option3->setChecked(true);
        QCoreApplication::processEvents();
    }

    void colorCanvas(Color color)
    {
        using namespace control;
        form.Canvas->surface().setBackColor(color);
        for (const Name name : {Frame2, panel, sup, bat, Option2, Option3, Option4, Option5}) {
            window->setBackColor(name, color);
        }
    }

    /// The middle of an option's circle.
    [[nodiscard]] QRgb markOf(QRadioButton& option)
    {
        const QImage picture = view.grab({option.mapTo(&view, QPoint()), option.size()}).toImage();
        return picture.pixel(QPoint(8 * picture.height() / option.height(), picture.height() / 2));
    }
};

/// All four sides of a frame must stand out from its inside.
void expectBordered(QWidget& frame)
{
    const QImage picture = frame.grab().toImage();
    const QRect edge = picture.rect();
    const QPoint middle = edge.center();
    for (const QPoint side : {QPoint(0, middle.y()), QPoint(edge.right(), middle.y()), QPoint(middle.x(), 0),
                              QPoint(middle.x(), edge.bottom())}) {
        EXPECT_GE(contrast(picture.pixelColor(side), picture.pixelColor(3, 3)), 4.5) << side.x() << ' ' << side.y();
    }
}

/// A desktop's font size and colours. The font is not antialiased, so each of its pixels has the text's colour.
struct Desktop {
    int points;
    QRgb ground, text;
};

void use(const Desktop& desktop)
{
    QPalette palette = QApplication::palette();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        palette.setColor(role, desktop.ground);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, desktop.text);
    }
    QApplication::setPalette(palette);
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::NoAntialias);
    font.setPointSize(desktop.points);
    QApplication::setFont(font);
}

constexpr Desktop desktops[] = {{9, 0xFF2B2B2B, 0xFFF0F0F0},
                                {11, 0xFFEFEFEF, 0xFF000000},
                                {15, 0xFFFFFFFF, 0xFF000000},
                                {24, 0xFF000000, 0xFFFFFF00}};

} // namespace

TEST(Windows, AreWholeAndReadableOnEveryDesktopAndGrowWithItsFont)
{
    for (const Desktop& desktop : desktops) {
        SCOPED_TRACE(desktop.points);
        use(desktop);
        FullWindow main;
        expectReadable(main.view);
        main.window->hideWindow();
        main.window->addMenuItem(0, {"file", "  &File  "});
        main.window->addMenuItem(0, {"ec", " &Electrical Components "});
        main.view.resize(1, 1);
        main.window->showWindow();
        EXPECT_GE(main.view.width(), main.form.menuBar->sizeHint().width());
        const Shown<QDialog, Ui::Form2> help;
        help.window->setHeight(form2::collapsedHeight);
        EXPECT_LT(help.form.hints->geometry().bottom(), help.view.height());
        EXPECT_GE(help.form.Frame2->mapTo(&help.view, QPoint()).y(), help.view.height());
        help.window->setHeight(form2::openHeight);
        expectWholeAndReadable(help.view, helpControls);
        EXPECT_EQ(help.view.height(), 337);
        EXPECT_LE(help.view.width(), help.view.screen()->availableSize().width());
        for (const QWidget* const one :
             std::initializer_list<QWidget*>{help.form.Check1, help.form.Label23, help.form.Label9, help.form.Frame2}) {
            EXPECT_EQ(one->fontInfo().pixelSize(), help.form.Label5->fontInfo().pixelSize());
            EXPECT_GE(one->fontInfo().pixelSize(), 12);
        }
        const Shown<QDialog, Ui::Form3> about;
        expectWholeAndReadable(about.view, aboutControls);
        const Shown<QDialog, Ui::Form4> output;
        for (const Name value : form4::control::values) {
            output.window->setText(value, "0");
        }
        expectWholeAndReadable(output.view, form4::control::captions);
        const Shown<QDialog, Ui::Form6> splash;
        splash.window->setValue(form6::control::ProgressBar1, 40);
        splash.window->drawPicture(form6::control::Picture1, drawProductPicture);
        expectWholeAndReadable(splash.view, splashControls);
        const QImage picture = splash.form.Picture1->pixmap().toImage();
        EXPECT_EQ(picture.deviceIndependentSize(), splash.form.Picture1->size());
        EXPECT_TRUE(picture.rect().adjusted(2, 2, -2, -2).contains(inkedPart(picture)));
    }
}

TEST(Windows, AreReadableAndBorderedOnEveryColourOfTheCanvas)
{
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 0.001);
    EXPECT_NEAR(contrast(Qt::white, QColor(0x76, 0x76, 0x76)), 4.542, 0.001);
    EXPECT_NEAR(contrast(Qt::red, Qt::blue), 2.148, 0.001);
    std::vector<Color> colors{0x757575, 0x767676, 0x777777}; // black and white have about the same contrast on these
    for (Color i = 0; i < 64; ++i) {
        colors.push_back(85 * (i % 4) | 85 * (i / 4 % 4) << 8 | 85 * (i / 16) << 16);
    }
    for (Desktop desktop : desktops) {
        desktop.points = 9;
        use(desktop);
        FullWindow main;
        for (const Color color : colors) {
            SCOPED_TRACE(QColor(desktop.ground).name().toStdString() + " " + std::to_string(color));
            main.colorCanvas(color);
            expectReadable(main.view);
            expectBordered(*main.form.panel);
            expectBordered(*main.form.Frame2);
            const QRgb chosen = main.markOf(*main.form.Option3);
            const QRgb other = main.markOf(*main.form.Option2); // dark on a dark canvas
            EXPECT_GE(contrast(chosen, other), 3);
            EXPECT_EQ(qGray(chosen) > qGray(other),
                      main.form.Option3->palette().color(QPalette::WindowText) == QColor(Qt::white));
            const auto& field = main.form.Text11->palette();
            EXPECT_GE(contrast(field.color(QPalette::Base), field.color(QPalette::Highlight).darker(125)), 3);
        }
    }
}

TEST(Windows, TellAScreenReaderTheNameOfEveryControlButNoDecoration)
{
    using enum QAccessible::Role;
    installAccessibility();
    FullWindow main;
    Shown<QDialog, Ui::Form2> help;
    Shown<QDialog, Ui::Form4> output;
    const std::tuple<QWidget&, QAccessible::Role, const char*> cases[] = {
        {main.view, Canvas, "Canvas; "},
        {main.view, Grouping, "ToolBox; Supply and battery; Supply; Battery; "},
        {main.view, RadioButton, "Voltage; Current; Positive; Negative; "},
        {main.view, EditableText, "Value; "},
        {main.view, StatusBar, "Status bar; "},
        {main.view, Graphic, ""},
        {help.view, Dialog, "Help; "},
        {help.view, CheckBox, "View Shortcut Keys; "},
        {output.view, EditableText,
         "Total Resistance ( in ohm ); Total Inductance ( in henry ); Total Capacitance ( in farad ); "
         "Resonance Frequency; Quality Factor is; Inductive Reactance; Capacitive Reactance; "
         "Supplied Voltage ( in volts ); Supplied Current ( in ampere ); "},
    };
    for (const auto& [window, role, expected] : cases) {
        EXPECT_EQ(namesIn(window)[role], expected);
    }
}

TEST(Windows, StatusBarHidesTheLeastImportantPanelsAndCutsNoText)
{
    constexpr auto none = "no direction, press an arrow key";
    constexpr auto counted = "Counted but not drawn: no direction";
    struct Case {
        int points, width; // the desktop's font, the window
        const char *heading, *notice, *off;
        int shown; // the number of visible panels
    };
    for (const Case& c : {Case{9, 784, "→ Right", "", "", 7}, Case{9, 784, none, counted, "", 4},
                          Case{9, 460, none, counted, "off the canvas", 2}, Case{9, 1024, none, counted, "", 7},
                          Case{15, 1024, none, "An AND gate needs the pen heading right", "", 3},
                          Case{15, 1024, "→ Right", "", "", 6}}) {
        SCOPED_TRACE(std::to_string(c.points) + " pt, " + std::to_string(c.width) + " px, " + c.notice);
        use({c.points, 0xFFEFEFEF, 0xFF000000});
        FullWindow main;
        main.view.resize(1280, 600);
        main.view.resize(c.width, 600);
        for (const auto& [part, text] :
             {std::pair{control::sbNotice, c.notice}, {control::sbHeading, c.heading}, {control::sbOffCanvas, c.off}}) {
            main.window->setText(part, text);
            main.window->setVisible(part, *text != 0);
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(main.view.width(), c.width);
        int shown = 0;
        for (const auto* const label : main.form.statusBar->findChildren<QLabel*>()) {
            if (label->isVisible() && label->width() > 0) {
                ++shown;
                EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
            }
        }
        EXPECT_EQ(shown, c.shown);
    }
}

TEST(Windows, StayOnTheScreenWhenTheyGrow)
{
    Shown<QDialog, Ui::Form2> help;
    const QRect screen = help.view.screen()->availableGeometry();
    help.window->setHeight(form2::collapsedHeight);
    help.view.move(0, screen.bottom() + 1 - help.view.frameGeometry().height());
    const QPoint before = help.view.pos();
    help.window->setHeight(form2::collapsedHeight);
    EXPECT_EQ(help.view.pos(), before);
    help.window->setHeight(form2::openHeight);
    EXPECT_EQ(help.view.frameGeometry().bottom(), screen.bottom());
}

TEST(Windows, HelpOpensBesideTheMainWindowOrAtTheBottomOfItsCanvas)
{
    struct Case {
        QSize screen;
        QRect window;
        QPoint place;
    };
    for (const auto& [screen, window, place] : {Case{{1280, 1024}, {0, 0, 1004, 724}, {0, 724}},
                                                {{1280, 1024}, {0, 300, 1004, 724}, {0, 62}},
                                                {{1920, 1080}, {0, 180, 1004, 724}, {1004, 180}},
                                                {{1920, 1080}, {916, 356, 1004, 724}, {128, 356}},
                                                {{1366, 768}, {300, 20, 1004, 724}, {300, 482}},
                                                {{800, 600}, {4, 40, 784, 560}, {4, 338}}}) {
        const QRect canvas = window.adjusted(2, 90, -2, -24);
        const QPoint found = placeBeside({788, 238}, window, canvas, QRect({0, 0}, screen));
        EXPECT_EQ(found, place) << found.x() << ' ' << found.y() << " on " << screen.width() << 'x' << screen.height();
    }
}

} // namespace schemlet
