#pragma once

#include "platform/dialogs.h"

class QColorDialog;
class QWidget;

/// Boxes in front of the program's windows.
class QtDialogs final : public Dialogs {
public:
    explicit QtDialogs(QWidget& owner) : m_owner(owner) {}

    int messageBox(std::string_view prompt, Box style, std::string_view title) override;
    std::string inputBox(std::string_view prompt, std::string_view title, std::string_view preset) override;
    Color pickColor() override;
    std::string openFile() override;
    std::string saveFile(std::string_view extension, std::string_view filter) override;

private:
    /// The window that the user is in: the box belongs to it and gives the keyboard back to it.
    [[nodiscard]] QWidget* front() const;

    QWidget& m_owner;
    QColorDialog* m_colorDialog = nullptr; ///< one for the whole run, made when it is first needed
    Color m_color = black;                 ///< picked last
};
