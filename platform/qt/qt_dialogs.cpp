#include "platform/qt/qt_dialogs.h"

#include "platform/qt/text.h"

#include <QMessageBox>

int QtDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    QMessageBox box(&m_owner);
    box.setWindowTitle(toQString(title));
    box.setText(toQString(prompt));
    box.setTextFormat(Qt::PlainText);
    switch (style) {
    case Box::yesNoQuestion:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
        break;
    }
    return box.exec() == QMessageBox::Yes ? answer::yes : answer::no;
}
