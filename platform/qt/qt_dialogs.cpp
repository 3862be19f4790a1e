#include "platform/qt/qt_dialogs.h"

#include "platform/qt/text.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>

namespace {

/// A box is as wide as its text; a longer title would be cut off in the middle.
void makeRoomForTitle(QMessageBox& box)
{
    constexpr int frameButtons = 140; // pixels, generous: window managers differ
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + frameButtons;
    if (auto* const layout = qobject_cast<QGridLayout*>(box.layout())) {
        layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
    }
}

bool isArrow(const QKeyEvent& key)
{
    return key.key() >= Qt::Key_Left && key.key() <= Qt::Key_Down;
}

/// Keys that are not meant for a box that has just opened are dropped until the first one that is: the repeats of a key
/// held from before, and, where a question comes up in the middle of a walk, the walk's arrow keys, which would move
/// the focus from Yes to No. (Repeats alone would not do for those: X11 does not always tell them from fresh presses.)
class StrayKeys final : public QObject {
public:
    enum class Drop { repeats, repeatsAndArrows };

    explicit StrayKeys(Drop drop) : m_drop(drop) { QCoreApplication::instance()->installEventFilter(this); }

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (m_dropping && (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)) {
            const auto& key = dynamic_cast<const QKeyEvent&>(*event);
            m_dropping = key.isAutoRepeat() || (m_drop == Drop::repeatsAndArrows && isArrow(key));
            return m_dropping;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Drop m_drop;
    bool m_dropping = true;
};

} // namespace

QWidget* QtDialogs::front() const
{
    QWidget* const active = QApplication::activeWindow();
    return active != nullptr ? active : &m_owner;
}

int QtDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    QMessageBox box(front());
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
    const StrayKeys strayKeys(StrayKeys::Drop::repeatsAndArrows);
    return box.exec() == QMessageBox::Yes ? answer::yes : answer::no;
}

std::string QtDialogs::inputBox(std::string_view prompt, std::string_view title, std::string_view preset)
{
    QInputDialog box(front());
    box.setWindowTitle(toQString(title));
    box.setLabelText(toQString(prompt));
    box.setTextValue(toQString(preset));
    const StrayKeys strayKeys(StrayKeys::Drop::repeats);
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}
