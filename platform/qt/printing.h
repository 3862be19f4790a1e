#pragma once

class QImage;
class QString;

namespace schemlet {

/// Prints a picture at the top of one page on the default printer. A picture that is wider than high is printed in
/// landscape. It has 96 pixels an inch, or more if it would not fit on the page. Returns once the print service has the
/// job. Throws RuntimeError(Fault::printerError) if the print service does not get it.
void printPicture(const QImage& picture, const QString& title);

} // namespace schemlet
