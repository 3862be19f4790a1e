#include "platform/qt/qt_window.h"
#include "shell/product_picture.h"
#include "tests/support/stand_ins.h"
#include "ui_Form2.h"
#include "ui_Form3.h"
#include "ui_Form4.h"
#include "ui_Form6.h"

#include <QCloseEvent>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

// The windows beside the main one, on the toolkit.

namespace {

template <typename Form> struct Shown {
    QDialog view;
    Form form = [this] {
        Form made;
        made.setupUi(&view);
        return made;
    }();
    std::vector<Event> events;
    std::unique_ptr<QtWindow> window =
        std::make_unique<QtWindow>(view, [this](const Event& event) { events.push_back(event); });

    Shown()
    {
        window->showWindow();
        (void)QTest::qWaitForWindowExposed(&view);
    }

    [[nodiscard]] int count(Event::Kind kind, Name name = {}) const
    {
        return static_cast<int>(std::ranges::count_if(
            events, [&](const Event& event) { return event.kind == kind && event.name == name; }));
    }

    void expectControls(std::span<const Name> names) const
    {
        for (const Name name : names) {
            EXPECT_NE(view.findChild<QObject*>(QString::fromLatin1(name.data())), nullptr) << name;
        }
    }

    void expectNothingCutOff() const
    {
        for (const auto* const control : view.findChildren<QWidget*>()) {
            const std::string name = control->objectName().toStdString();
            EXPECT_GE(control->width(), control->minimumSizeHint().width()) << name;
            EXPECT_GE(control->height(), control->minimumSizeHint().height()) << name;
            EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry())) << name;
        }
    }
};

} // namespace

TEST(Windows, HaveEveryControlThatTheProgramNamesAndCutNothingOff)
{
    Shown<Ui::Form2> help;
    help.window->setHeight(form2::open);
    help.expectControls(helpControls);
    help.expectNothingCutOff();
    EXPECT_EQ(help.form.Frame2->findChildren<QLabel*>().size(), 24);

    const Shown<Ui::Form3> about;
    about.expectControls(aboutControls);
    about.expectNothingCutOff();

    const Shown<Ui::Form4> output;
    output.expectControls(form4::captions);
    output.expectControls(form4::values);
    output.expectNothingCutOff();

    const Shown<Ui::Form6> splash;
    splash.expectControls(splashControls);
    splash.expectNothingCutOff();
}

TEST(Windows, HelpShowsAllHintsAndNoKeysUntilItSlidesOpen)
{
    Shown<Ui::Form2> help;
    help.window->setHeight(form2::collapsed);
    EXPECT_EQ(help.view.height(), 214);
    EXPECT_LE(help.form.hints->geometry().bottom(), 213);
    EXPECT_GE(help.form.Frame2->geometry().top(), 214);
    help.window->setHeight(3310); // no whole number of pixels
    EXPECT_EQ(help.window->height(), 3310);
    help.window->setHeight(form2::open);
    EXPECT_EQ(help.view.height(), 337);
}

TEST(Windows, CloseWhenTheProgramSaysSoAndNotBefore)
{
    Shown<Ui::Form3> about;
    about.view.close();
    EXPECT_EQ(about.count(Event::Kind::close), 1);
    QTest::keyClick(about.form.Command1, Qt::Key_Escape);
    EXPECT_EQ(about.count(Event::Kind::close), 2);
    EXPECT_EQ(about.events.back().window, form3::window);
    EXPECT_TRUE(about.view.isVisible());
    about.window->hideWindow();
    EXPECT_FALSE(about.view.isVisible());

    about.window->showWindow();
    about.window->setInterval("a timer", 1);
    about.window->unload();
    EXPECT_FALSE(about.view.isVisible());
    about.events.clear();
    QTest::qWait(20);
    EXPECT_TRUE(about.events.empty());
}

TEST(Windows, ReportClicksOfALabelThatIsAButton)
{
    Shown<Ui::Form2> help;
    const auto clicks = [&] { return help.count(Event::Kind::click, form2::control::Label23); };
    QTest::mouseClick(help.form.Label23, Qt::LeftButton);
    EXPECT_EQ(clicks(), 1);
    QTest::mouseClick(help.form.Label23, Qt::RightButton);
    QTest::mousePress(help.form.Label23, Qt::LeftButton);
    QTest::mouseRelease(help.form.Label23, Qt::LeftButton, {}, {-5, 5}); // thought better of it
    QTest::mouseClick(help.form.Label1, Qt::LeftButton);
    EXPECT_EQ(clicks(), 1);
    EXPECT_EQ(help.events.size(), 1U);
}

TEST(Windows, KeepValuesOfBoxesAndBarsAndReportNoClickForThem)
{
    const Shown<Ui::Form2> help;
    EXPECT_EQ(help.window->value(form2::control::Check1), 0);
    help.window->setValue(form2::control::Check1, 1);
    EXPECT_EQ(help.window->value(form2::control::Check1), 1);
    EXPECT_TRUE(help.events.empty());

    const Shown<Ui::Form6> splash;
    EXPECT_EQ(splash.window->value(form6::control::ProgressBar1), 0);
    splash.window->setValue(form6::control::ProgressBar1, 100);
    EXPECT_EQ(splash.window->value(form6::control::ProgressBar1), 100);
}

TEST(Windows, ShowTheProductsPictureWhole)
{
    const Shown<Ui::Form6> splash;
    splash.window->drawPicture(form6::control::Picture1, drawProductPicture);
    const QImage picture = splash.form.Picture1->pixmap().toImage();
    EXPECT_EQ(picture.deviceIndependentSize(), splash.form.Picture1->size());
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink |= picture.pixelColor(x, y) == Qt::white ? QRect() : QRect(x, y, 1, 1);
        }
    }
    EXPECT_GT(ink.width(), 380);
    EXPECT_TRUE(picture.rect().adjusted(2, 2, -2, -2).contains(ink)); // nothing runs out of the picture
}
