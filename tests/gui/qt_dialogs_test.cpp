#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

struct Press {
    int key = 0;
    enum { fresh, repeat, markedRepeat } kind = fresh; ///< the toolkit marks some repeats
};

/// Waits for the next box, sends it these keys, and presses Enter.
void sendToBox(const std::vector<Press>& presses)
{
    QTimer::singleShot(0, qApp, [presses] {
        QWidget& box = *QApplication::activeModalWidget();
        const auto send = [&box](QEvent::Type type, const Press& press, quint64 time) {
            const QString text = press.key < Qt::Key_Escape ? QString(QChar(press.key)) : QString();
            const auto place = static_cast<quint32>(press.key);
            QKeyEvent event(type, press.key, {}, place, 0, 0, text, press.kind == Press::markedRepeat);
            event.setTimestamp(time);
            QCoreApplication::sendEvent(box.focusWidget(), &event);
        };
        for (const Press& press : presses) {
            static quint64 time = 0;
            ++time;
            if (press.kind == Press::repeat) { // X11 reports a release and a press at the same time
                send(QEvent::KeyRelease, press, time);
            }
            send(QEvent::KeyPress, press, time);
        }
        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
    });
}

} // namespace

TEST(QtDialogs, IgnoreRepeatsOfKeysThatWereAlreadyHeld)
{
    QWidget window;
    QtDialogs dialogs(window, window);
    const auto typed = [&](const std::vector<Press>& presses) {
        sendToBox(presses);
        return dialogs.inputBox("?", "", "10");
    };
    constexpr Press repeatedR{'R', Press::repeat};
    constexpr Press markedR{'R', Press::markedRepeat};
    EXPECT_EQ(typed({repeatedR, markedR, {'5'}, repeatedR}), "5");
    EXPECT_EQ(typed({markedR, {'R'}, repeatedR}), "RR");

    constexpr Press right{Qt::Key_Right};
    constexpr Press tab{Qt::Key_Tab};
    const std::tuple<Box, std::vector<Press>, int> boxes[] = {
        {Box::yesNoCancelWarning, {right, right}, answer::cancel},
        {Box::yesNoCancelWarning, {{Qt::Key_Right, Press::repeat}, {Qt::Key_Return, Press::repeat}}, answer::yes},
        {Box::walkQuestion, {right, {Qt::Key_Shift}, right}, answer::yes},
        {Box::walkQuestion, {right, tab}, answer::no},
        {Box::walkQuestion, {tab, {Qt::Key_Left}}, answer::yes},
    };
    for (const auto& [style, presses, answer] : boxes) {
        sendToBox(presses);
        EXPECT_EQ(dialogs.messageBox("?", style, ""), answer);
    }
}

TEST(QtDialogs, ProposeTheLastFolderAndReturnTheAcceptedFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("drawing.jpeg");
    EXPECT_TRUE(QFile(path).open(QFile::WriteOnly));
    QWidget window;
    QtDialogs dialogs(window, window);
    const auto acceptAndType = [&](const QString& name, const QString& proposed, const QString& type) {
        QTimer::singleShot(0, &window, [=] {
            const QWidget& dialog = *QApplication::activeModalWidget();
            const auto* const types = dialog.findChild<QComboBox*>("fileTypeCombo");
            EXPECT_EQ(types->itemText(0), type);
            EXPECT_EQ(types->accessibleName(), "Files of type");
            auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
            EXPECT_EQ(edit->text(), proposed);
            EXPECT_EQ(edit->selectedText(), proposed);
            edit->setText(name);
            QTest::keyClick(edit, Qt::Key_Return);
            edit->setText("x");
        });
    };
    acceptAndType(path, "", "Pictures");
    EXPECT_EQ(dialogs.openFile(), path.toStdString());
    acceptAndType("new", "old.JPEG", "JPEG Files ( *.jpeg)");
    EXPECT_EQ(dialogs.saveFile("old.JPEG", "JPEG", "JPEG Files ( *.jpeg)|*.JPEG"),
              folder.filePath("new.JPEG").toStdString());
}

TEST(QtDialogs, TakeTypedColoursAndMeanNoIfClosed)
{
    QWidget window;
    QtDialogs dialogs(window, window);
    QTimer::singleShot(0, &window, [] {
        QWidget& dialog = *QApplication::activeModalWidget();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(&dialog, Qt::Key_H, Qt::AltModifier); // to the colour's name
        QTest::keySequence(dialog.focusWidget(), QKeySequence::SelectAll);
        QTest::keyClicks(dialog.focusWidget(), "#ab3412");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.pickColor("", black), 0x1234ABU); // red AB, blue 12
    QTimer::singleShot(0, &window, [] { QApplication::activeModalWidget()->close(); });
    EXPECT_EQ(dialogs.messageBox("?", Box::walkQuestion, ""), answer::no);
}

TEST(QtDialogs, ReturnTheKeyboardToTheCanvasExceptAfterWarnings)
{
    QWidget window;
    QWidget canvas(&window);
    QLineEdit typed(&window);
    window.show();
    QtDialogs dialogs(window, canvas);
    const auto afterEscape = [&](auto ask) {
        typed.setFocus();
        QTimer::singleShot(0, &window, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        ask();
        return window.focusWidget();
    };
    EXPECT_EQ(afterEscape([&] { dialogs.messageBox("?", Box::yesNoQuestion, ""); }), &canvas);
    EXPECT_EQ(afterEscape([&] { dialogs.messageBox("!", Box::okWarning, ""); }), &typed);
    EXPECT_EQ(afterEscape([&] { dialogs.inputBox("?", "", ""); }), &canvas);
    EXPECT_EQ(afterEscape([&] { dialogs.pickColor("", black); }), &canvas);
    EXPECT_EQ(afterEscape([&] { dialogs.openFile(); }), &canvas);
}

} // namespace schemlet
