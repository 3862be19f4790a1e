#pragma once

#include <stdexcept>
#include <string>

namespace schemlet {

/// What can go wrong while a command runs through no fault of the program. Each is told to the user in one message
/// box; the command ends where it was thrown, and what it had done stays done.
enum class Fault { typeMismatch, invalidArgument, overflow, invalidPicture, pictureNotSaved, printerError };

struct RuntimeError : std::runtime_error {
    /// The text is the user's: plain words, with a hint what to do where that helps.
    RuntimeError(Fault what, const std::string& text) : std::runtime_error(text), fault(what) {}

    Fault fault;
};

} // namespace schemlet
