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

/// One event of a key, with its time in milliseconds.
struct KeyEvent {
    QEvent::Type type = QEvent::None;
    int key = 0;
    quint64 time = 0;
    bool marked = false; ///< as a repeat
};

/// X11 tells of a repeat as a release and a press at the same time.
std::vector<KeyEvent> repeat(int key, quint64 time, bool marked)
{
    return {{QEvent::KeyRelease, key, time, marked}, {QEvent::KeyPress, key, time, marked}};
}

std::vector<KeyEvent> stroke(int key, quint64 time)
{
    return {{QEvent::KeyPress, key, time}, {QEvent::KeyRelease, key, time + 1}};
}

/// Once the next box is open; then clicks its default button.
void sendToBox(const std::vector<std::vector<KeyEvent>>& parts)
{
    QTimer::singleShot(0, qApp, [parts] {
        QWidget& box = *QApplication::activeModalWidget();
        for (const auto& part : parts) {
            for (const auto& [type, key, time, marked] : part) {
                const QString text = key < Qt::Key_Escape ? QString(QChar(key)) : QString();
                const auto place = static_cast<quint32>(key);
                QKeyEvent event(type, key, Qt::NoModifier, place, 0, 0, text, marked);
                event.setTimestamp(time);
                QCoreApplication::sendEvent(box.focusWidget(), &event);
            }
        }
        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
    });
}

} // namespace

TEST(QtDialogs, TakeFreshKeysAndTheirRepeatsButNoneOfKeysHeldFromBefore)
{
    QWidget window;
    QtDialogs dialogs(window, window);
    sendToBox({repeat('R', 1, false), repeat('R', 2, true), stroke('5', 3), repeat('R', 4, false)});
    EXPECT_EQ(dialogs.inputBox("?", "", "10"), "5");
    sendToBox({repeat('R', 5, true), {{QEvent::KeyRelease, 'R', 6}}, stroke('R', 7), repeat('R', 8, false)});
    EXPECT_EQ(dialogs.inputBox("?", "", "10"), "RR");
    sendToBox({{{QEvent::KeyRelease, 'R', 9}}});
    EXPECT_EQ(dialogs.inputBox("?", "", "10"), "10");

    const auto right = stroke(Qt::Key_Right, 11);
    const auto tab = stroke(Qt::Key_Tab, 12);
    const auto shift = stroke(Qt::Key_Shift, 12);
    const std::tuple<Box, std::vector<std::vector<KeyEvent>>, int> boxes[] = {
        {Box::yesNoCancelWarning, {right, right}, answer::cancel},
        {Box::yesNoCancelWarning, {repeat(Qt::Key_Right, 10, false), repeat(Qt::Key_Return, 10, false)}, answer::yes},
        {Box::walkQuestion, {right, shift, right}, answer::yes},
        {Box::walkQuestion, {right, tab}, answer::no},
        {Box::walkQuestion, {tab, stroke(Qt::Key_Left, 13)}, answer::yes},
    };
    for (const auto& [style, parts, answer] : boxes) {
        sendToBox(parts);
        EXPECT_EQ(dialogs.messageBox("?", style, ""), answer);
    }
}

TEST(QtDialogs, ProposeTheFolderUsedLastAndTakeTheFileThatWasAcceptedWhateverIsTypedBeforeTheDialogIsGone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("drawing.jpeg");
    EXPECT_TRUE(QFile(path).open(QFile::WriteOnly));
    QWidget window;
    QtDialogs dialogs(window, window);
    for (const QString typed : {"", "x"}) {
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
                edit->setText(typed);
            });
        };
        acceptAndType(path, "", "Pictures");
        EXPECT_EQ(dialogs.openFile(), path.toStdString());
        acceptAndType("new", "old.JPEG", "JPEG Files ( *.jpeg)");
        EXPECT_EQ(dialogs.saveFile("old.JPEG", "JPEG", "JPEG Files ( *.jpeg)|*.JPEG"),
                  folder.filePath("new.JPEG").toStdString());
    }
}

TEST(QtDialogs, GiveTheKeyboardToTheCanvasButLeaveItWhereAWarningCameFrom)
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
