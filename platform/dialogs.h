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
    walkQuestion, ///< looks the same, but ignores the walk's arrow keys: they count only after another key
    yesNoCancelWarning
};

/// What a message box answers. The numbers count: the answer about saving becomes the pen's heading.
namespace answer {
inline constexpr int cancel = 2;
inline constexpr int yes = 6;
inline constexpr int no = 7;
} // namespace answer

/// Boxes that wait for the user; each call returns once its box is closed. Texts and paths are UTF-8.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Esc or closing the box counts as Cancel if it has that button, else as No; so does OK.
    virtual int messageBox(std::string_view prompt, Box style, std::string_view title) = 0;

    /// Asks for one line of text, with the preset selected so that typing replaces it. None on Cancel.
    virtual std::optional<std::string> inputBox(std::string_view prompt, std::string_view title,
                                                std::string_view preset) = 0;

    /// Lets the user pick a colour, from this one on. None on Cancel.
    virtual std::optional<Color> pickColor(std::string_view title, Color first) = 0;

    /// Asks for a picture file to open; its path. None on Cancel.
    virtual std::optional<std::string> openFile() = 0;
    /// Asks for a file to write; its path. Proposes a name, which may be empty, in the folder used last. A name without
    /// an extension gets this one; the filter is what the dialog says of the files, a bar, and their pattern. None
    /// on Cancel.
    virtual std::optional<std::string> saveFile(std::string_view name, std::string_view extension,
                                                std::string_view filter) = 0;
};

} // namespace schemlet
