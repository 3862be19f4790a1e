#include "platform/qt/qt_dialogs.h"

#include "platform/qt/colors.h"
#include "platform/qt/fit_screen.h"
#include "platform/qt/text.h"
#include "platform/runtime_error.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QImageReader>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTreeView>

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

/// The style's buttons and icon.
void applyStyle(QMessageBox& box, Box style)
{
    switch (style) {
    case Box::okOnly: break;
    case Box::okWarning: box.setIcon(QMessageBox::Warning); break;
    case Box::yesNoQuestion:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case Box::yesNoCancelWarning:
        box.setIcon(QMessageBox::Warning);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(box.button(QMessageBox::Cancel) != nullptr ? QMessageBox::Cancel : QMessageBox::No);
}

int answerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes: return answer::yes;
    case QMessageBox::Cancel: return answer::cancel;
    default: return answer::no;
    }
}

/// Every picture that the toolkit reads, then all files.
QStringList pictureFilters()
{
    QString patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        patterns += " *." + QString::fromLatin1(format);
    }
    return {"Pictures (" + patterns.trimmed() + ")", "All files (*)"};
}

/// The toolkit forgot these two, which are for the mouse; its number boxes do the same by keyboard.
void nameColorFields(QColorDialog& dialog)
{
    for (auto* const field : dialog.findChildren<QWidget*>()) {
        if (field->inherits("QColorPicker")) {
            field->setAccessibleName("Hue and saturation");
        } else if (field->inherits("QColorLuminancePicker")) {
            field->setAccessibleName("Brightness");
        }
    }
}

} // namespace

QWidget* QtDialogs::front() const
{
    QWidget* const active = QApplication::activeWindow();
    return active != nullptr ? active : &m_owner;
}

int QtDialogs::run(QDialog& dialog)
{
    const int result = dialog.exec();
    m_canvas.setFocus();
    return result;
}

QString QtDialogs::chooseFile(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog); // desktops' own dialogs keep a list of recent files
    resizeOnScreen(dialog, {760, 480});                 // room for all columns
    if (const auto* const files = dialog.findChild<QTreeView*>()) {
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents); // the toolkit cuts the dates off
    }
    const StrayKeys strayKeys(StrayKeys::Drop::repeats);
    // What is selected once the dialog is over may be something else, or nothing: a key may have come meanwhile.
    QString chosen;
    QObject::connect(&dialog, &QFileDialog::fileSelected, [&](const QString& file) { chosen = file; });
    run(dialog);
    // Some window managers give the keyboard to nobody when the dialog goes right after its own question.
    dialog.parentWidget()->activateWindow();
    return chosen;
}

int QtDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    QMessageBox box(front());
    box.setWindowTitle(toQString(title));
    box.setText(toQString(prompt));
    box.setTextFormat(Qt::PlainText);
    applyStyle(box, style);
    makeRoomForTitle(box);
    const StrayKeys strayKeys(StrayKeys::Drop::repeatsAndArrows);
    return answerOf(style == Box::okWarning ? box.exec() : run(box));
}

std::string QtDialogs::inputBox(std::string_view prompt, std::string_view title, std::string_view preset)
{
    QInputDialog box(front());
    box.setWindowTitle(toQString(title));
    box.setLabelText(toQString(prompt));
    box.setTextValue(toQString(preset));
    const StrayKeys strayKeys(StrayKeys::Drop::repeats);
    // A pasted line end is nothing that anybody typed.
    return run(box) == QDialog::Accepted ? box.textValue().remove('\n').remove('\r').toStdString() : std::string();
}

Color QtDialogs::pickColor()
{
    if (m_colorDialog == nullptr) {
        m_colorDialog = new QColorDialog(&m_owner);
        m_colorDialog->setOption(QColorDialog::DontUseNativeDialog); // desktops' own dialogs keep what was picked
        nameColorFields(*m_colorDialog);
    }
    m_colorDialog->setCurrentColor(toQColor(m_color));
    const StrayKeys strayKeys(StrayKeys::Drop::repeats);
    if (run(*m_colorDialog) == QDialog::Accepted) {
        m_color = toColor(m_colorDialog->selectedColor());
    }
    return m_color;
}

std::string QtDialogs::openFile()
{
    QFileDialog dialog(front(), "Open");
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(pictureFilters());
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    return chooseFile(dialog).toStdString();
}

std::string QtDialogs::saveFile(std::string_view extension, std::string_view filter)
{
    const QStringList descriptionAndPattern = toQString(filter).split('|');
    QFileDialog dialog(front(), "Save");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(toQString(extension));
    dialog.setNameFilter(descriptionAndPattern.value(0) + " (" + descriptionAndPattern.value(1) + ")");
    const QString path = chooseFile(dialog);
    if (path.isEmpty()) {
        throw RuntimeError(Fault::dialogCancelled, "Nothing was chosen.");
    }
    return path.toStdString();
}
