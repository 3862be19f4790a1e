#include "platform/qt/canvas_widget.h"
#include "platform/qt/qt_window.h"
#include "tests/support/stand_ins.h"
#include "ui_Form1.h"
#include "ui_Form2.h"
#include "ui_Form3.h"
#include "ui_Form4.h"
#include "ui_Form6.h"

#include <QMetaProperty>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

// Every text can be read, whatever colours the user gives the canvas and the desktop. Measured on the pixels.

namespace {

double luminance(QRgb color)
{
    const auto part = [](int value) { return std::pow((value / 255.0 + 0.055) / 1.055, 2.4); };
    const auto linear = [&](int value) { return value <= 10 ? value / 255.0 / 12.92 : part(value); };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// From 1, the same, to 21, black and white.
double contrast(QRgb one, QRgb other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// The contrast of a text's strokes to what is there without them; 0 if nothing of it is to be seen.
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
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                best = std::max(best, contrast(with.pixel(x, y), without.pixel(x, y)));
            }
        }
    }
    return best;
}

/// Returns how many texts there are.
int expectReadable(const QWidget& window, const std::string& where)
{
    int texts = 0;
    for (auto* const widget : window.findChildren<QWidget*>()) {
        for (const char* const property : {"text", "title"}) {
            const auto* const type = widget->metaObject();
            const QString text = widget->property(property).toString().trimmed();
            // A progress bar's text is not to be written, and not to be seen.
            if (widget->isVisible() && !text.isEmpty() &&
                type->property(type->indexOfProperty(property)).isWritable()) {
                ++texts;
                EXPECT_GE(textContrast(*widget, property), 4.5) << where << ": " << text.toStdString();
            }
        }
    }
    return texts;
}

template <typename View, typename Form> struct Shown {
    View view;
    Form form = [this] {
        Form made;
        made.setupUi(&view);
        return made;
    }();
    std::unique_ptr<QtWindow> window = std::make_unique<QtWindow>(view, [](const Event&) {});

    Shown()
    {
        window->showWindow();
        (void)QTest::qWaitForWindowExposed(&view);
    }
};

using MainWindow = Shown<QMainWindow, Ui::Form1>;

/// Everything that is ever to be seen on the canvas.
void showAll(MainWindow& main)
{
    using namespace control;
    for (const Name name : {panel, sup, bat, Label11, Label12, Label13, Label28, Label27, Option2, Option3, Option4,
                            Option5, Text11, Command3, Command7, Command8}) {
        main.window->setVisible(name, true);
        main.window->setEnabled(name, true);
    }
    main.window->setText(Text11, "10");
    main.window->setText(sb, "Press F1 for Help");
    main.window->setBackColor(Frame2, 0xE0E0E0);
    QCoreApplication::processEvents();
}

void colorCanvas(MainWindow& main, Color color)
{
    using namespace control;
    main.form.Canvas->surface().setBackColor(color);
    for (const Name name : {Frame2, sup, bat, Option2, Option3, Option4, Option5}) {
        main.window->setBackColor(name, color);
    }
}

/// A desktop's colours, until this goes. Its text has no soft edges, so that each pixel of it has the text's colour.
class Desktop {
public:
    Desktop(const QColor& ground, const QColor& text) : m_palette(QApplication::palette()), m_font(QApplication::font())
    {
        QPalette palette = m_palette;
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
            palette.setColor(role, ground);
        }
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(role, text);
        }
        QApplication::setPalette(palette);
        QFont font = m_font;
        font.setStyleStrategy(QFont::NoAntialias);
        QApplication::setFont(font);
    }
    ~Desktop()
    {
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_font);
    }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

private:
    QPalette m_palette;
    QFont m_font;
};

constexpr std::pair<QRgb, QRgb> desktops[] = {
    {0xFFEFEFEF, 0xFF000000}, {0xFF2B2B2B, 0xFFF0F0F0}, {0xFF000000, 0xFFFFFF00}, {0xFFFFFFFF, 0xFF000000}};

} // namespace

TEST(Contrast, IsMeasuredAsTheGuidelinesSay)
{
    EXPECT_NEAR(contrast(0xFF000000, 0xFFFFFFFF), 21, 0.001);
    EXPECT_NEAR(contrast(0xFF777777, 0xFFFFFFFF), 4.48, 0.005);
    EXPECT_NEAR(contrast(0xFF0000FF, 0xFFFFFFFF), 8.59, 0.005);
    EXPECT_NEAR(contrast(0xFFFF0000, 0xFFFFFFFF), 4.00, 0.005);
}

TEST(Contrast, OfEveryTextIsEnoughOnEveryDesktop)
{
    for (const auto& [ground, text] : desktops) {
        const Desktop desktop(ground, text);
        const std::string where = QColor(ground).name().toStdString();
        MainWindow main;
        showAll(main);
        EXPECT_EQ(expectReadable(main.view, where), 21);
        const Shown<QDialog, Ui::Form2> help;
        help.window->setHeight(form2::open);
        EXPECT_EQ(expectReadable(help.view, where), 44);
        const Shown<QDialog, Ui::Form3> about;
        EXPECT_EQ(expectReadable(about.view, where), 5);
        const Shown<QDialog, Ui::Form4> output;
        for (const Name value : form4::values) {
            output.window->setText(value, "0");
        }
        EXPECT_EQ(expectReadable(output.view, where), 20);
        const Shown<QDialog, Ui::Form6> splash;
        EXPECT_EQ(expectReadable(splash.view, where), 5);
    }
}

TEST(Contrast, OfEveryTextOnTheCanvasIsEnoughOnEveryColour)
{
    for (const auto& [ground, text] : {desktops[0], desktops[1]}) {
        const Desktop desktop(ground, text);
        MainWindow main;
        showAll(main);
        std::vector<Color> colors{0x757575, 0x767676, 0x777777}; // where black and white are about as good
        for (Color i = 0; i < 64; ++i) {
            colors.push_back(85 * (i % 4) | 85 * (i / 4 % 4) << 8 | 85 * (i / 16) << 16);
        }
        for (const Color color : colors) {
            colorCanvas(main, color);
            expectReadable(main.view, QColor(ground).name().toStdString() + " " + std::to_string(color));
        }
    }
}
