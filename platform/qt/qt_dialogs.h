#pragma once

#include "platform/dialogs.h"
#include "platform/qt/held_keys.h"

#include <QString>

class QColorDialog;
class QDialog;
class QFileDialog;
class QWidget;

namespace schemlet {

/// Boxes in front of the program's windows. Every dialog except a warning returns the focus to the canvas, so that the
/// drawing goes on. A warning returns it to where it was: the text that is wrong may be there.
class QtDialogs final : public Dialogs {
public:
    QtDialogs(QWidget& owner, QWidget& canvas) : m_owner(owner), m_canvas(canvas) {}

    int messageBox(std::string_view prompt, Box style, std::string_view title) override;
    std::optional<std::string> inputBox(std::string_view prompt, std::string_view title,
                                        std::string_view preset) override;
    std::optional<Color> pickColor(std::string_view title, Color first) override;
    std::optional<std::string> openFile() override;
    std::optional<std::string> saveFile(std::string_view name, std::string_view extension,
                                        std::string_view filter) override;

private:
    /// The window that the user is in: the box belongs to it and gives the keyboard back to it.
    [[nodiscard]] QWidget* front() const;
    /// None if the user cancels.
    std::optional<std::string> chooseFile(QFileDialog& dialog);

    /// Shows it until the user closes it; then its parent has the keyboard, as it had it before.
    static int runAside(QDialog& dialog);
    /// The same, but the canvas has it then.
    int run(QDialog& dialog);

    QWidget& m_owner;
    QWidget& m_canvas;
    HeldKeys m_heldKeys;
    QString m_folder;                      ///< that the last chosen file is in
    QColorDialog* m_colorDialog = nullptr; ///< one for the whole run, made when it is first needed
};

} // namespace schemlet
