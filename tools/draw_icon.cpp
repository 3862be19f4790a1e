// Converts an SVG picture to a square PNG picture.
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QTextStream>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4) {
        QTextStream(stderr) << "Usage: draw_icon SVG PIXELS PNG\n";
        return 2;
    }
    QImageReader drawing(words[1]);
    const int pixels = words[2].toInt();
    drawing.setScaledSize({pixels, pixels}); // drawn at that size, not scaled afterwards
    const QImage icon = drawing.read();
    if (icon.width() != pixels || !icon.save(words[3])) {
        QTextStream(stderr) << words[1] << ": " << drawing.errorString() << "\n";
        return 1;
    }
    return 0;
}
