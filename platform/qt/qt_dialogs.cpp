#include "platform/qt/qt_dialogs.h"

#include "platform/qt/text.h"

#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>

namespace {

/// A box is as wide as its text; a longer title would be cut off in the middle.
void makeRoomForTitle(QMessageBox& box)
{
    constexpr int frameButtons = 140; // pixels, generous: window managers differ
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + frameButtons;
    auto& layout = dynamic_cast<QGridLayout&>(*box.layout());
    layout.addItem(new QSpacerItem(width, 0), layout.rowCount(), 0, 1, layout.columnCount());
}

} // namespace

int QtDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    QMessageBox box(&m_owner);
    box.setWindowTitle(toQString(title));
    box.setText(toQString(prompt));
    box.setTextFormat(Qt::PlainText);
    switch (style) {
    case Box::okOnly: box.setIcon(QMessageBox::Warning); break;
    case Box::yesNoQuestion:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
        break;
    }
    makeRoomForTitle(box);
    return box.exec() == QMessageBox::Yes ? answer::yes : answer::no;
}

std::string QtDialogs::inputBox(std::string_view prompt, std::string_view title, std::string_view preset)
{
    QInputDialog box(&m_owner);
    box.setWindowTitle(toQString(title));
    box.setLabelText(toQString(prompt));
    box.setTextValue(toQString(preset));
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}
