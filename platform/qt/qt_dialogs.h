#pragma once

#include "platform/dialogs.h"
#include "platform/qt/held_keys.h"

#include <QString>

class QColorDialog;
class QDialog;
class QFileDialog;
class QWidget;

namespace schemlet {

/// Dialogs in front of the program's windows. Every dialog except a warning returns the focus to the canvas, so that
/// the user can go on drawing. A warning returns it to where it was, because a wrong text may be there.
class QtDialogs final : public Dialogs {
public:
    QtDialogs(QWidget& owner, QWidget& canvas) : m_owner(owner), m_canvas(canvas) {}

    int messageBox(std::string_view prompt, Box style, std::string_view title) override;
    std::optional<std::string> inputBox(std::string_view prompt, std::string_view title,
                                        std::string_view preset) override;
    std::optional<Color> pickColor(std::string_view title, Color initial) override;
    std::optional<std::string> openFile() override;
    std::optional<std::string> saveFile(std::string_view name, std::string_view extension,
                                        std::string_view filter) override;

private:
    /// The active window. A dialog belongs to it and returns the focus to it.
    [[nodiscard]] QWidget* front() const;
    /// None if the user cancels.
    std::optional<std::string> chooseFile(QFileDialog& dialog);

    /// Shows a dialog until the user closes it, and returns the focus to its parent.
    static int run(QDialog& dialog);
    /// The same, but gives the focus to the canvas.
    int runThenFocusCanvas(QDialog& dialog);

    QWidget& m_owner;
    QWidget& m_canvas;
    HeldKeys m_heldKeys;
    QString m_folder;                      ///< of the file chosen last
    QColorDialog* m_colorDialog = nullptr; ///< made when it is first needed, and kept
};

} // namespace schemlet
