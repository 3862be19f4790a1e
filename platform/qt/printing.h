#pragma once

class QImage;
class QString;

namespace schemlet {

/// Prints a picture at the top of one page on the default printer, upright or on its side as fits the picture's shape.
/// It has its size on an unscaled screen, 96 pixels an inch, or less where the page is smaller. Returns once the job is
/// with the print service; what keeps it from there is a RuntimeError of Fault::printerError.
void printPicture(const QImage& picture, const QString& title);

} // namespace schemlet
