#pragma once

#include <string_view>

namespace schemlet {

/// The canvas as picture files. Paths are UTF-8.
class Pictures {
public:
    virtual ~Pictures() = default;

    /// Wipes the canvas and lays a picture at its top left corner, one picture pixel to one canvas pixel; the retained
    /// image grows to hold all of it. Throws RuntimeError(Fault::invalidPicture) and then
    /// leaves everything as it is.
    virtual void loadBackground(std::string_view path) = 0;
    /// Writes the whole retained image as a BMP file, whatever the name's extension. Throws pictureNotSaved,
    /// with the cause in few words; the file that was there before is then untouched.
    virtual void saveImage(std::string_view path) = 0;
};

} // namespace schemlet
