#pragma once

#include <QImage>
#include <QString>

namespace schemlet {

/// The most pixels of a picture that can be opened: 8192 x 8192, or a photograph of 64 megapixels. Such a picture takes
/// 256 MB while it is open.
inline constexpr int maxPixels = 64 << 20;

/// Loads a picture from any file that Qt can read, whatever its name. The image is upright, in Format_RGB32 with a
/// pixel ratio of 1, on white where the picture is transparent. Throws RuntimeError(Fault::invalidPicture) if the
/// picture cannot be shown whole; the text names the file and the cause.
[[nodiscard]] QImage loadPicture(const QString& path);

/// Writes a BMP of 24 bits and 96 dpi to exactly this path and replaces an old file there. Throws
/// RuntimeError(Fault::pictureNotSaved); then the old file is unchanged, and no other file is left behind.
void savePicture(const QImage& image, const QString& path);

} // namespace schemlet
