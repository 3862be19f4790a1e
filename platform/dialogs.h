#pragma once

#include "platform/surface.h"

#include <optional>
#include <string>
#include <string_view>

namespace schemlet {

/// Buttons and icon of a message box.
enum class Box {
    okOnly,
    okWarning,
    yesNoQuestion,
    walkQuestion, ///< like yesNoQuestion, but arrow keys do nothing until another key is pressed
    yesNoCancelWarning
};

/// The answers of a message box. The numbers matter, because callers store them.
namespace answer {
inline constexpr int cancel = 2;
inline constexpr int yes = 6;
inline constexpr int no = 7;
} // namespace answer

/// Modal dialogs: each call returns when the user has closed its dialog. Texts and paths are UTF-8.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Shows a message and returns a code of namespace answer. Esc or the close button counts as Cancel if there is
    /// that button, otherwise as No. OK counts as No.
    virtual int messageBox(std::string_view prompt, Box style, std::string_view title) = 0;

    /// Asks for one line of text, with the preset selected so that typing replaces it. None on Cancel.
    virtual std::optional<std::string> inputBox(std::string_view prompt, std::string_view title,
                                                std::string_view preset) = 0;

    /// Lets the user pick a colour; the initial one is selected. None on Cancel.
    virtual std::optional<Color> pickColor(std::string_view title, Color initial) = 0;

    /// Asks for a picture file to open and returns its path, none on Cancel.
    virtual std::optional<std::string> openFile() = 0;
    /// Asks for a file to write and returns its path, none on Cancel. The dialog proposes this name, which may be
    /// empty, in the folder used last. It adds the extension to a name without one. The filter is a description of
    /// the files, a | and their pattern.
    virtual std::optional<std::string> saveFile(std::string_view name, std::string_view extension,
                                                std::string_view filter) = 0;
};

} // namespace schemlet
