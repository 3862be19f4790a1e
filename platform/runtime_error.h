#pragma once

#include <stdexcept>
#include <string>

namespace schemlet {

/// What can go wrong while a command runs, through no fault of the program. The command ends where the error is thrown,
/// what it had done stays done, and a message box tells the user.
enum class Fault { typeMismatch, invalidArgument, overflow, invalidPicture, pictureNotSaved, printerError };

struct RuntimeError : std::runtime_error {
    /// The user reads the text: plain words, with a hint what to do where that helps.
    RuntimeError(Fault what, const std::string& text) : std::runtime_error(text), fault(what) {}

    Fault fault;
};

} // namespace schemlet
