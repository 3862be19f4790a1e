#include "platform/qt/qt_dialogs.h"

#include "platform/qt/colors.h"
#include "platform/qt/fit_screen.h"
#include "platform/qt/text.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QImageReader>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

namespace schemlet {

namespace {

/// A message box is as wide as its text, so a longer title would be cut off.
void makeRoomForTitle(QMessageBox& box)
{
    constexpr int frameButtons = 140; // pixels, generous: window managers differ
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + frameButtons;
    if (auto* const layout = qobject_cast<QGridLayout*>(box.layout())) {
        layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
    }
}

/// Sets the buttons and the icon.
void applyStyle(QMessageBox& box, Box style)
{
    switch (style) {
    case Box::okOnly: break;
    case Box::okWarning: box.setIcon(QMessageBox::Warning); break;
    case Box::walkQuestion: HeldKeys::ignoreArrows(box); [[fallthrough]];
    case Box::yesNoQuestion:
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case Box::yesNoCancelWarning:
        box.setIcon(QMessageBox::Warning);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.button(QMessageBox::Cancel)->setText("&Cancel"); // Qt gives mnemonics only to the others
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

/// All formats that Qt reads, and all files.
QStringList pictureFilters()
{
    QString patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        patterns += " *." + QString::fromLatin1(format);
    }
    return {"Pictures (" + patterns.trimmed() + ")", "All files (*)"};
}

/// Qt does not name these two fields for screen readers. They work with the mouse only; the number boxes beside them
/// work with the keyboard.
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

/// Qt does not connect the labels of these two boxes with them, so screen readers need names.
void nameFileFields(const QFileDialog& dialog)
{
    for (const auto& [field, name] :
         {std::pair("lookInCombo", "Look in"), std::pair("fileTypeCombo", "Files of type")}) {
        if (auto* const box = dialog.findChild<QWidget*>(field)) {
            box->setAccessibleName(name);
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
    // Without a window manager no window would get the focus. The same happens with some managers after two dialogs in
    // a row.
    dialog.parentWidget()->activateWindow();
    return result;
}

int QtDialogs::runThenFocusCanvas(QDialog& dialog)
{
    const int result = run(dialog);
    m_canvas.setFocus();
    return result;
}

std::optional<std::string> QtDialogs::chooseFile(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);   // the desktop's own dialogs keep a list of recent files
    resizeOnScreen(dialog, {760, 480});                   // room for all columns
    dialog.setOption(QFileDialog::HideNameFilterDetails); // the filter's description says enough
    if (!m_folder.isEmpty()) {
        dialog.setDirectory(m_folder);
    }
    nameFileFields(dialog);
    if (const auto* const files = dialog.findChild<QTreeView*>()) {
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents); // Qt would cut the dates off
    }
    // The signal says what was chosen. The selection may have changed by the time the dialog returns, if a key came in
    // between.
    QString chosen;
    QObject::connect(&dialog, &QFileDialog::fileSelected, [&](const QString& file) { chosen = file; });
    runThenFocusCanvas(dialog);
    if (chosen.isEmpty()) {
        return {};
    }
    m_folder = QFileInfo(chosen).path();
    return chosen.toStdString();
}

int QtDialogs::messageBox(std::string_view prompt, Box style, std::string_view title)
{
    QMessageBox box(front());
    box.setWindowTitle(toQString(title));
    box.setText(toQString(prompt));
    box.setTextFormat(Qt::PlainText);
    applyStyle(box, style);
    makeRoomForTitle(box);
    return answerOf(style == Box::okWarning ? run(box) : runThenFocusCanvas(box));
}

std::optional<std::string> QtDialogs::inputBox(std::string_view prompt, std::string_view title, std::string_view preset)
{
    QInputDialog box(front());
    box.setWindowTitle(toQString(title));
    box.setLabelText(toQString(prompt));
    box.setTextValue(toQString(preset));
    if (runThenFocusCanvas(box) != QDialog::Accepted) {
        return {};
    }
    QString text = box.textValue();
    for (const char space : {'\n', '\r', '\t'}) { // pasted; the box shows blanks
        text.replace(space, ' ');
    }
    return text.toStdString();
}

std::optional<Color> QtDialogs::pickColor(std::string_view title, Color initial)
{
    if (m_colorDialog == nullptr) {
        m_colorDialog = new QColorDialog(&m_owner);
        m_colorDialog->setOption(QColorDialog::DontUseNativeDialog); // the desktop's own dialogs keep recent colours
        nameColorFields(*m_colorDialog);
    }
    m_colorDialog->setWindowTitle(toQString(title));
    m_colorDialog->setCurrentColor(toQColor(initial));
    if (runThenFocusCanvas(*m_colorDialog) != QDialog::Accepted) {
        return {};
    }
    return toColor(m_colorDialog->selectedColor());
}

std::optional<std::string> QtDialogs::openFile()
{
    QFileDialog dialog(front(), "Open");
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(pictureFilters());
    return chooseFile(dialog);
}

std::optional<std::string> QtDialogs::saveFile(std::string_view name, std::string_view extension,
                                               std::string_view filter)
{
    const QStringList descriptionAndPattern = toQString(filter).split('|');
    QFileDialog dialog(front(), "Save");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(toQString(extension));
    dialog.setNameFilter(descriptionAndPattern.value(0) + " (" + descriptionAndPattern.value(1) + ")");
    dialog.selectFile(toQString(name));
    return chooseFile(dialog);
}

} // namespace schemlet
