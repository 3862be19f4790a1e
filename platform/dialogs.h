#pragma once

#include <string>
#include <string_view>

/// Buttons and icon of a message box, in the numbering of the classic message box call: 4 is Yes and No, 32 the
/// question mark.
enum class Box { okOnly = 0, yesNoQuestion = 36 };

/// What a message box answers, in the same numbering.
namespace answer {
inline constexpr int yes = 6;
inline constexpr int no = 7;
} // namespace answer

/// Boxes that wait for the user; each call returns once its box is closed.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Esc or closing a box with Yes and No counts as No.
    virtual int messageBox(std::string_view prompt, Box style, std::string_view title) = 0;

    /// Asks for one line of text, with the preset selected so that typing replaces it. Empty on Cancel.
    virtual std::string inputBox(std::string_view prompt, std::string_view title, std::string_view preset) = 0;
};
