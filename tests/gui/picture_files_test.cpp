#include "platform/qt/picture_files.h"

#include "platform/runtime_error.h"
#include "tests/support/limits.h"
#include "tests/support/sample_files.h"

#include <QDir>
#include <QImageReader>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

/// The same JPEG, said to lie on the sheet in one of the eight ways.
QByteArray turned(QByteArray jpeg, int orientation)
{
    QByteArray exif = QByteArray::fromHex("FFE1002245786966000049492A00080000000100120103000100000000000000");
    exif[28] = static_cast<char>(orientation);
    return jpeg.insert(2, exif + QByteArray(4, '\0'));
}

class PictureFiles : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QStringList listing() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    void allow(const QString& name, mode_t mode) const
    {
        EXPECT_EQ(chmod(path(name).toLocal8Bit().constData(), mode), 0);
    }

    QString store(const QString& name, const QByteArray& bytes)
    {
        ::store(path(name), bytes);
        return path(name);
    }

    /// Why something is not done; empty if it is.
    static std::string refusal(Fault fault, const std::function<void()>& action)
    {
        try {
            action();
            return {};
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.fault, fault);
            return error.what();
        }
    }
    static std::string refusal(const QString& path)
    {
        return refusal(Fault::invalidPicture, [&] { EXPECT_FALSE(loadPicture(path).isNull()); });
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(PictureFiles, LoadsWholePicturesAndRefusesEveryPartOfOne)
{
    const QImage image = colourful(17, 11);
    const std::pair<QByteArray, QImage> files[] = {
        {written(image, "png"), image},
        {written(image, "bmp"), image},
        {written(image, "ppm"), image},
        {written(image, "ico"), image},
        {written(image.convertToFormat(QImage::Format_Mono), "bmp"), image.convertToFormat(QImage::Format_Mono)},
        {written(image, "jpg"), QImage::fromData(written(image, "jpg"))},
        {written(image, "jpg", true), QImage::fromData(written(image, "jpg", true))},
    };
    for (const auto& [bytes, expected] : files) {
        SCOPED_TRACE(bytes.left(4).toStdString());
        const QImage loaded = loadPicture(store("whole.txt", bytes + "behind"));
        EXPECT_EQ(loaded.format(), QImage::Format_RGB32);
        EXPECT_EQ(loaded.devicePixelRatio(), 1);
        EXPECT_TRUE(loaded == expected.convertToFormat(QImage::Format_RGB32));
        for (qsizetype length = 0; length < bytes.size(); ++length) {
            ASSERT_TRUE(
                refusal(store("part.bmp", bytes.left(length))).starts_with("Invalid picture\n\nThe file part.bmp "))
                << length;
        }
    }
}

TEST_F(PictureFiles, PutsTransparentPicturesOnWhiteHoweverWide)
{
    QImage image(40000, 2, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixel(39999, 1, qRgba(255, 0, 0, 128));
    image.setPixel(0, 1, qRgba(1, 2, 3, 255));
    const QImage loaded = loadPicture(store("wide", written(image, "png")));
    EXPECT_EQ(loaded.pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(loaded.pixel(39999, 0), qRgb(255, 255, 255));
    EXPECT_EQ(loaded.pixel(39999, 1), qRgb(255, 127, 127));
    EXPECT_EQ(loaded.pixel(0, 1), qRgb(1, 2, 3));
}

TEST_F(PictureFiles, SetsEveryPictureUpright)
{
    for (const QSize size : {QSize(37, 22), QSize(4000, 2100)}) { // the second is read in two parts
        const QByteArray jpeg = written(colourful(size.width(), size.height()), "jpg");
        for (int orientation = size.width() > 100 ? 5 : 1; orientation <= 8; ++orientation) {
            SCOPED_TRACE(orientation);
            const QString path = store("turned.jpg", turned(jpeg, orientation));
            QImageReader reader(path);
            reader.setAutoTransform(true);
            const QImage expected = reader.read();
            EXPECT_EQ(expected.size(), orientation < 5 ? size : size.transposed());
            EXPECT_TRUE(loadPicture(path) == expected);
        }
    }
}

TEST_F(PictureFiles, NamesTheFileAndTheCause)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder"));
    ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
    const QByteArray png = written(colourful(9, 9), "png");
    const QByteArray bmp = written(colourful(9, 9), "bmp");
    const QByteArray jpeg = written(colourful(9, 9), "jpg", true);
    const auto frame = static_cast<int>(jpeg.indexOf("\xFF\xC2"));
    for (const auto& [name, bytes] : {std::pair{"large.bmp", bmp}, {"large.png", QByteArray("\x89PNG")}}) {
        QFile file(store(name, bytes));
        ASSERT_TRUE(file.resize(10'000'000'000)); // most of which takes no room on the disk
    }
    const std::pair<QString, std::string> cases[] = {
        {path("none.bmp"), "none.bmp does not exist"},
        {path("folder/"), "folder is a folder"},
        {path("pipe"), "pipe is no picture that Schemlet can read"},
        {"/dev/zero", "zero is no picture that Schemlet can read"},
        {store("empty.bmp", ""), "empty.bmp is no picture that Schemlet can read"},
        {store("text.png", "A circuit %1 of mine"), "text.png is no picture that Schemlet can read"},
        {store("100 %2.bmp", bmp.left(99)), "100 %2.bmp is cut short"},
        {path("large.png"), "large.png is too large: 10000 megabytes, at most 129 megabytes"},
        {store("a", claiming(png, 16, "0000EA600000EA60")),
         "a is too large: 60000 x 60000 pixels, at most 32 megapixels"},
        {store("c", claiming(jpeg, frame + 5, "10011000")),
         "c is too large: 4096 x 4097 pixels, at most 16 megapixels of this kind"},
        {store("d", "P6 8001 4000 255\n"), "d is too large: 8001 x 4000 pixels, at most 32 megapixels"},
    };
    for (const auto& [path, expected] : cases) {
        EXPECT_EQ(refusal(path), "Invalid picture\n\nThe file " + expected + ".");
    }
    EXPECT_EQ(refusal(path("large.bmp")), "");
}

TEST_F(PictureFiles, SavesABmpUnderExactlyThisPath)
{
    QImage image = colourful(33, 21);
    image.setDotsPerMeterX(5000);
    const QByteArray old = "not a picture";
    store("mine.png", old);
    allow("mine.png", 0600);
    ASSERT_TRUE(QFile::link("mine.png", path("link")) && QFile::link("link", path("chain")));
    const QStringList before = listing();
    for (const char* const name : {"mine.png", "link", "chain"}) {
        SCOPED_TRACE(name);
        store("mine.png", old);
        savePicture(image, path(name));
        const QByteArray saved = contents(path("mine.png"));
        EXPECT_TRUE(saved.startsWith("BM"));
        EXPECT_EQ(saved.mid(28, 2).toHex(), "1800");             // bits a pixel
        EXPECT_EQ(saved.mid(38, 8).toHex(), "c40e0000c40e0000"); // 3780 dots a metre
        EXPECT_TRUE(loadPicture(path("mine.png")) == image);
        EXPECT_TRUE(QFileInfo(path("link")).isSymLink() && QFileInfo(path("chain")).isSymLink());
        EXPECT_EQ(listing(), before);
        struct stat status {};
        EXPECT_EQ(stat(path("mine.png").toLocal8Bit().constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0600U);
    }
    savePicture(colourful(5, 5).convertToFormat(QImage::Format_Mono), path("new"));
    EXPECT_EQ(contents(path("new")).mid(28, 2).toHex(), "1800");
}

TEST_F(PictureFiles, LeavesTheOldFileAloneWhereItCannotSave)
{
    const QByteArray old = written(colourful(9, 9), "bmp");
    const auto expectRefusal = [&](const char* name) {
        const QStringList before = listing();
        EXPECT_NE(refusal(Fault::pictureNotSaved, [&] { savePicture(colourful(90, 90), path(name)); }), "") << name;
        EXPECT_EQ(listing(), before) << name;
    };
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder"));
    ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
    store("old.bmp", old);
    for (const char* const name : {"folder", "pipe", "gone/a.bmp"}) {
        expectRefusal(name);
    }
    for (const rlim_t room : {0U, 1U, 54U, 16384U, 24353U}) { // of 24354 bytes
        const FullDisk full(room);
        expectRefusal("old.bmp");
        expectRefusal("new.bmp");
    }
    allow("old.bmp", 0444);
    allow(".", 0777);
    if (const OrdinaryUser user; OrdinaryUser::isOne()) { // root may write anywhere
        expectRefusal("old.bmp");
    }
    EXPECT_EQ(contents(path("old.bmp")), old);
}
