#include "platform/qt/picture_files.h"

#include "platform/picture_check.h"
#include "platform/runtime_error.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <cerrno>
#include <unistd.h>

namespace {

/// No picture of mostPixels is larger, save for some with 16 bits a channel.
constexpr qint64 mostBytes = 4 * mostPixels + 1'000'000;

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
    if (!info.isFile()) {
        refuse(file.fileName(), unreadable());
    }
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(file.fileName(), QStringLiteral("may not be read"));
    }
}

void refuseTooLarge(const QString& path, qint64 width, qint64 height)
{
    if (width > 0 && height > 0 && width > mostPixels / height) {
        refuse(path, QStringLiteral("is too large: %1 x %2 pixels, at most %3 megapixels")
                         .arg(width)
                         .arg(height)
                         .arg(mostPixels / 1'000'000));
    }
}

/// Refuses what is known to be incomplete. The file is read, not mapped into memory: should it shrink or its disk fail
/// meanwhile, that would end the program.
void refuseIncomplete(QFile& file)
{
    const QByteArray bytes = file.read(mostBytes);
    const picture::Finding finding = picture::check({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    refuseTooLarge(file.fileName(), finding.width, finding.height);
    if (finding.state == picture::State::unreadable) {
        refuse(file.fileName(), unreadable());
    }
    if (finding.state != picture::State::complete && !file.atEnd()) {
        refuse(file.fileName(), QStringLiteral("is too large: %1 megabytes, at most %2 megabytes")
                                    .arg(file.size() / 1'000'000)
                                    .arg(mostBytes / 1'000'000));
    }
    if (finding.state == picture::State::cutShort) {
        refuse(file.fileName(), QStringLiteral("is cut short"));
    }
    file.seek(0);
}

/// In place where Qt can: two copies of a large picture are a lot of memory.
void putOnWhite(QImage& image)
{
    if (image.hasAlphaChannel()) {
        image.convertTo(QImage::Format_ARGB32);
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.fillRect(image.rect(), Qt::white);
        painter.end();
        image.reinterpretAsFormat(QImage::Format_RGB32);
    } else {
        image.convertTo(QImage::Format_RGB32);
    }
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

    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    refuseTooLarge(path, reader.size().width(), reader.size().height());
    QImage image = reader.read();
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
    const auto fail = [&](const QString& cause) {
        throw RuntimeError(
            Fault::pictureNotSaved,
            QStringLiteral("Picture not saved\n\nThe file %1 %2.").arg(nameOf(path), cause).toStdString());
    };
    const QFileInfo info(path);
    if (info.isDir()) {
        fail(QStringLiteral("is a folder"));
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly)) {
        fail(QStringLiteral("could not be written: ") + file.errorString());
    }
    QImage picture = image.convertToFormat(QImage::Format_RGB32);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    if (!QImageWriter(&file, "bmp").write(picture) || !isOnDisk(file) || !file.commit()) {
        fail(QStringLiteral("could not be written: ") + file.errorString());
    }
}
