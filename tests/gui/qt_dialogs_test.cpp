#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

TEST(QtDialogs, TakeTheFileThatWasAcceptedWhateverIsTypedBeforeTheDialogIsGone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("drawing.jpeg");
    EXPECT_TRUE(QFile(path).open(QFile::WriteOnly));
    QWidget window;
    QtDialogs dialogs(window, window);
    for (const QString typed : {"", "x"}) {
        const auto acceptAndType = [&](const QString& name) {
            QTimer::singleShot(0, &window, [name, typed] {
                auto* const edit = QApplication::activeModalWidget()->findChild<QLineEdit*>("fileNameEdit");
                edit->setText(name);
                QTest::keyClick(edit, Qt::Key_Return);
                edit->setText(typed);
            });
        };
        acceptAndType(path);
        EXPECT_EQ(dialogs.openFile(), path.toStdString());
        acceptAndType(folder.filePath("new"));
        EXPECT_EQ(dialogs.saveFile("JPEG", "JPEG Files|*.JPEG"), folder.filePath("new.JPEG").toStdString());
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
    EXPECT_EQ(afterEscape([&] { dialogs.pickColor(); }), &canvas);
    EXPECT_EQ(afterEscape([&] { dialogs.openFile(); }), &canvas);
}
