#pragma once

#include <QImage>
#include <QString>

namespace schemlet {

/// What a canvas may become by loading a picture: 8192 x 8192 pixels, or what a camera of 64 megapixels takes, which is
/// a little more than 64 million. A picture this large takes 256 MB while it is open.
inline constexpr int mostPixels = 64 << 20;

/// The picture in any file that Qt reads, whatever the file is called: in Format_RGB32, upright, on white where it is
/// transparent, one pixel of the picture to one of the screen. What cannot be shown whole is refused: throws
/// RuntimeError(Fault::invalidPicture) whose text names the file and the cause.
[[nodiscard]] QImage loadPicture(const QString& path);

/// Writes a BMP of 24 bits and 96 dpi under exactly this path, in place of what was there. Throws
/// RuntimeError(Fault::pictureNotSaved); then the old file is as it was, and nothing is left beside it.
void savePicture(const QImage& image, const QString& path);

} // namespace schemlet
