#include "platform/qt/picture_files.h"

#include "platform/files/picture_check.h"
#include "platform/runtime_error.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <QStorageInfo>
#include <cerrno>
#include <unistd.h>

namespace schemlet {

namespace {

/// What Qt may allocate to decode a picture: some PNG files have four channels of 16 bits.
constexpr int maxMegabytes = 8 * (maxPixels >> 20);

/// No file of a picture of maxPixels is larger, unless it has megabytes of text.
constexpr int maxBytes = 8 * maxPixels + 1'000'000;

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

/// Opens only regular files, because the program would wait for a pipe or a device.
void open(QFile& file)
{
    const QFileInfo info(file);
    if (!info.exists()) {
        refuse(file.fileName(), QStringLiteral("does not exist"));
    }
    if (info.isDir()) {
        refuse(file.fileName(), QStringLiteral("is a folder"));
    }
    if (!info.isFile() || info.size() == 0) { // reading a file of /proc without a size may block, too
        refuse(file.fileName(), unreadable());
    }
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(file.fileName(), QStringLiteral("may not be read"));
    }
}

void refuseTooLarge(const QString& path, QSize size)
{
    if (!size.isEmpty() && size.width() > maxPixels / size.height()) {
        refuse(path, QStringLiteral("is too large: %1 x %2 pixels, at most %3 megapixels")
                         .arg(size.width())
                         .arg(size.height())
                         .arg(maxPixels / 1'000'000));
    }
}

QSize sizeInHeader(QFile& file)
{
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    file.seek(0);
    return size;
}

/// Reads the file instead of mapping it into memory: if a mapped file shrank or its disk failed, a signal would end the
/// program.
void refuseIncomplete(QFile& file)
{
    if (file.size() > maxBytes) {
        refuse(file.fileName(), QStringLiteral("is too large: %1 megabytes, at most %2 megabytes")
                                    .arg(file.size() / 1'000'000)
                                    .arg(maxBytes / 1'000'000));
    }
    const QByteArray bytes = file.readAll();
    switch (picture::check({bytes.constData(), static_cast<std::size_t>(bytes.size())})) {
    case picture::State::cutShort: refuse(file.fileName(), QStringLiteral("is cut short"));
    case picture::State::unreadable: refuse(file.fileName(), unreadable());
    case picture::State::whole:
    case picture::State::unknownFormat: break; // Qt decides about other formats
    }
    file.seek(0);
}

/// Converts in place where Qt can, because a second copy of a large picture takes much memory. A QPainter would not do:
/// it blends nothing beyond 32767 pixels.
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

/// Writes everything to the disk and returns whether that succeeded. A full disk may show only here.
bool isOnDisk(QSaveFile& file)
{
    return file.flush() && (fsync(file.handle()) == 0 || errno == EINVAL); // some file systems do not support fsync
}

} // namespace

QImage loadPicture(const QString& path)
{
    QFile file(path);
    open(file);
    refuseTooLarge(path, sizeInHeader(file));
    refuseIncomplete(file);

    QImageReader::setAllocationLimit(maxMegabytes);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull()) {
        refuse(path, unreadable());
    }
    refuseTooLarge(path, image.size()); // some formats have no size in the header
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
    if (info.exists() && !info.isFile()) { // the new file would replace a device
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
    if (picture.dotsPerMeterX() != dotsPerMetre ||
        picture.dotsPerMeterY() != dotsPerMetre) { // setting them makes a copy
        picture.setDotsPerMeterX(dotsPerMetre);
        picture.setDotsPerMeterY(dotsPerMetre);
    }
    if (!file.open(QIODevice::WriteOnly)) {
        refuseToSave(file.errorString().toLower());
    }
    if (!QImageWriter(&file, "bmp").write(picture) || !isOnDisk(file) || !file.commit()) {
        // Qt gives no reason why a write stopped half-way.
        const QStorageInfo disk(info.path());
        const bool full = disk.isValid() && disk.bytesAvailable() < picture.sizeInBytes();
        refuseToSave(full ? QStringLiteral("disk full") : QStringLiteral("the disk takes no more"));
    }
}

} // namespace schemlet
