#pragma once

#include <stdexcept>
#include <string>

namespace schemlet {

/// What can go wrong while a command runs, through no fault of the program. The error ends the command without undoing
/// what it has done so far, and a message box tells the user.
enum class Fault { typeMismatch, invalidArgument, overflow, invalidPicture, pictureNotSaved, printerError };

struct RuntimeError : std::runtime_error {
    /// The text is for the user: plain words and, if that helps, a hint what to do.
    RuntimeError(Fault what, const std::string& text) : std::runtime_error(text), fault(what) {}

    Fault fault;
};

} // namespace schemlet
