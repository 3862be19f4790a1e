#pragma once

#include <string_view>

namespace schemlet {

/// Loads and saves the canvas as picture files, and copies it to the clipboard. Paths are UTF-8.
class Pictures {
public:
    virtual ~Pictures() = default;

    /// Wipes the canvas and puts a picture at its top left corner, one picture pixel to one canvas pixel. The canvas's
    /// image grows to hold all of it. Throws RuntimeError(Fault::invalidPicture) and then changes nothing.
    virtual void loadBackground(std::string_view path) = 0;
    /// Writes the canvas's whole image as a BMP file, for any extension of the name. Throws
    /// RuntimeError(Fault::pictureNotSaved) with the cause in a few words; the old file is then unchanged.
    virtual void saveImage(std::string_view path) = 0;
    /// Copies the part of the canvas that has ink to the clipboard, with a margin of paper. Returns false if there is
    /// no ink; then the clipboard is unchanged.
    virtual bool copyInk() = 0;
};

} // namespace schemlet
