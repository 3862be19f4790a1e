#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

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
    EXPECT_EQ(afterEscape([&] { dialogs.pickColor(""); }), &canvas);
    EXPECT_EQ(afterEscape([&] { dialogs.openFile(); }), &canvas);
}
