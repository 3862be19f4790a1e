#include "platform/qt/picture_files.h"

#include "platform/picture_check.h"
#include "platform/runtime_error.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <QStorageInfo>
#include <cerrno>
#include <unistd.h>

namespace {

/// No picture of mostPixels is larger, save for some with 16 bits a channel.
constexpr int mostBytes = 4 * mostPixels + 1'000'000;

/// What decoding may take for a moment: an 8-bit picture of mostPixels beside the canvas made of it.
constexpr int mostMemory = 5 * mostPixels;

constexpr int dotsPerMetre = 3780; // 96 dpi

QString nameOf(const QString& path)
{
    return QFileInfo(QDir::cleanPath(path)).fileName();
}

[[noreturn]] void refuse(const QString& path, const QString& cause)
{
    throw RuntimeError(Fault::invalidPicture,
                       QStringLiteral("Invalid picture\n\nThe file %1 %2.").arg(nameOf(path), cause).toStdString());
}

[[noreturn]] void refuseToSave(const QString& cause)
{
    throw RuntimeError(Fault::pictureNotSaved, cause.toStdString());
}

const QString& unreadable()
{
    static const QString cause = QStringLiteral("is no picture that Schemlet can read");
    return cause;
}

/// Opens regular files alone: a pipe or a device would keep the program waiting.
void open(QFile& file)
{
    const QFileInfo info(file);
    if (!info.exists()) {
        refuse(file.fileName(), QStringLiteral("does not exist"));
    }
    if (info.isDir()) {
        refuse(file.fileName(), QStringLiteral("is a folder"));
    }
    if (!info.isFile() || info.size() == 0) { // files of /proc that have no size may keep it waiting as well
        refuse(file.fileName(), unreadable());
    }
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(file.fileName(), QStringLiteral("may not be read"));
    }
}

void refuseTooLarge(const QString& path, qint64 width, qint64 height, int most = mostPixels)
{
    if (width > 0 && height > 0 && width > most / height) {
        refuse(path, QStringLiteral("is too large: %1 x %2 pixels, at most %3 megapixels%4")
                         .arg(width)
                         .arg(height)
                         .arg(most / 1'000'000)
                         .arg(most < mostPixels ? QStringLiteral(" of this kind") : QString()));
    }
}

/// Refuses what is known to be incomplete. The file is read, not mapped into memory: should it shrink or its disk fail
/// meanwhile, that would end the program.
void refuseIncomplete(QFile& file)
{
    const QByteArray bytes = file.read(qMin<qint64>(file.size(), mostBytes));
    const picture::Finding finding = picture::check({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    refuseTooLarge(file.fileName(), finding.width, finding.height);
    refuseTooLarge(file.fileName(), finding.width, finding.height,
                   qMin(mostPixels, mostMemory / finding.bytesPerPixel));
    if (finding.state == picture::State::unreadable) {
        refuse(file.fileName(), unreadable());
    }
    if (finding.state != picture::State::complete && file.size() > mostBytes) {
        refuse(file.fileName(), QStringLiteral("is too large: %1 megabytes, at most %2 megabytes")
                                    .arg(file.size() / 1'000'000)
                                    .arg(mostBytes / 1'000'000));
    }
    if (finding.state == picture::State::cutShort) {
        refuse(file.fileName(), QStringLiteral("is cut short"));
    }
    file.seek(0);
}

/// In place where Qt can: two copies of a large picture are a lot of memory. Not with a QPainter, which blends nothing
/// beyond 32767 pixels.
void putOnWhite(QImage& image)
{
    if (!image.hasAlphaChannel()) {
        image.convertTo(QImage::Format_RGB32);
        return;
    }
    image.convertTo(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* const pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = pixels[x];
            const auto mixed = [alpha = qAlpha(pixel)](int channel) { return 255 - (255 - channel) * alpha / 255; };
            pixels[x] = qRgb(mixed(qRed(pixel)), mixed(qGreen(pixel)), mixed(qBlue(pixel)));
        }
    }
    image.reinterpretAsFormat(QImage::Format_RGB32);
}

/// Puts rows of a picture that lies on its side, the first of them the picture's row `top`, where they belong in the
/// upright one. By narrow columns: whole rows would touch all memory of the upright picture again and again.
void putTurned(QImage& upright, const QImage& part, int top, QImageIOHandler::Transformations turn)
{
    constexpr int columns = 16;
    const bool mirrored = turn.testFlag(QImageIOHandler::TransformationMirror);
    const bool flipped = turn.testFlag(QImageIOHandler::TransformationFlip);
    auto* const to = reinterpret_cast<QRgb*>(upright.bits());
    for (int left = 0; left < part.width(); left += columns) {
        const int right = qMin(left + columns, part.width());
        for (int y = 0; y < part.height(); ++y) {
            const auto* const from = reinterpret_cast<const QRgb*>(part.constScanLine(y));
            const int column = flipped ? top + y : upright.width() - 1 - top - y;
            for (int x = left; x < right; ++x) {
                const int row = mirrored ? part.width() - 1 - x : x;
                to[row * qsizetype{upright.width()} + column] = from[x];
            }
        }
    }
}

/// In a few parts: two whole copies of a large picture are too much memory.
QImage readTurned(QFile& file, QImageIOHandler::Transformations turn, QSize stored)
{
    QImage upright(stored.transposed(), QImage::Format_RGB32);
    const int rows = qMax(1, mostPixels / 4 / stored.width());
    for (int top = 0; top < stored.height(); top += rows) {
        file.seek(0);
        QImageReader reader(&file);
        reader.setDecideFormatFromContent(true);
        reader.setClipRect({0, top, stored.width(), qMin(rows, stored.height() - top)});
        QImage part = reader.read();
        if (part.isNull()) {
            return {};
        }
        putOnWhite(part);
        putTurned(upright, part, top, turn);
    }
    return upright;
}

QImage readUpright(QFile& file)
{
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QSize stored = reader.size();
    refuseTooLarge(file.fileName(), stored.width(), stored.height());
    const auto turn = reader.transformation();
    if (turn.testFlag(QImageIOHandler::TransformationRotate90) && !stored.isEmpty()) {
        return readTurned(file, turn, stored);
    }
    reader.setAutoTransform(true);
    return reader.read();
}

/// Everything that was sent to the file is on the disk; the last chance to hear that it is full.
bool isOnDisk(QSaveFile& file)
{
    return file.flush() && (fsync(file.handle()) == 0 || errno == EINVAL); // some file systems do not know fsync
}

} // namespace

QImage loadPicture(const QString& path)
{
    QFile file(path);
    open(file);
    refuseIncomplete(file);

    QImage image = readUpright(file);
    if (image.isNull()) {
        refuse(path, unreadable());
    }
    refuseTooLarge(path, image.width(), image.height());
    putOnWhite(image);
    image.setDevicePixelRatio(1);
    return image;
}

void savePicture(const QImage& image, const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        refuseToSave(QStringLiteral("that is a folder"));
    }
    if (info.exists() && !info.isFile()) { // a device would be replaced by a file
        refuseToSave(QStringLiteral("that is no ordinary file"));
    }
    if (info.exists() && !info.isWritable()) {
        refuseToSave(QStringLiteral("the file is write-protected"));
    }
    if (!info.dir().exists()) {
        refuseToSave(QStringLiteral("no such folder"));
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    QImage picture = image.convertToFormat(QImage::Format_RGB32);
    if (picture.dotsPerMeterX() != dotsPerMetre || picture.dotsPerMeterY() != dotsPerMetre) { // else a copy for nothing
        picture.setDotsPerMeterX(dotsPerMetre);
        picture.setDotsPerMeterY(dotsPerMetre);
    }
    if (!file.open(QIODevice::WriteOnly)) {
        refuseToSave(file.errorString().toLower());
    }
    if (!QImageWriter(&file, "bmp").write(picture) || !isOnDisk(file) || !file.commit()) {
        // Qt has no reason to give for a write that stopped half-way.
        const bool full = QStorageInfo(info.path()).bytesAvailable() < picture.sizeInBytes();
        refuseToSave(full ? QStringLiteral("disk full") : QStringLiteral("the disk takes no more"));
    }
}
