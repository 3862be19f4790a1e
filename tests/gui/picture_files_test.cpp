#include "platform/qt/picture_files.h"

#include "platform/runtime_error.h"
#include "tests/support/sample_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTransform>
#include <csignal>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace schemlet {

namespace {

using testing::ThrowsMessage;

/// Lets files grow only to this size, as a full disk does.
void limitFiles(rlim_t bytes)
{
    const rlimit limit{bytes, RLIM_INFINITY};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
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
        schemlet::store(path(name), bytes);
        return path(name);
    }

    void makeFolderAndPipe()
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder"));
        ASSERT_EQ(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
    }

    void expectNotSaved(const char* name, const char* cause)
    {
        const QStringList before = listing();
        EXPECT_THAT([&] { savePicture(colourful(90, 90), path(name)); }, ThrowsMessage<RuntimeError>(cause)) << name;
        EXPECT_EQ(listing(), before) << name;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(PictureFiles, LoadsWholePicturesUprightAndOnWhite)
{
    const QImage image = colourful(17, 11);
    const QImage mono = image.convertToFormat(QImage::Format_Mono);
    QImage large(8192, 4100, QImage::Format_RGBX64); // 256.25 MB; Qt's own limit is 256
    large.fill(Qt::green);
    QImage wide(40000, 2, QImage::Format_ARGB32); // wider than Qt can paint
    wide.fill(Qt::transparent);
    wide.setPixel(39999, 1, qRgba(255, 0, 0, 128));
    QImage wideOnWhite(wide.size(), QImage::Format_RGB32);
    wideOnWhite.fill(Qt::white);
    wideOnWhite.setPixel(39999, 1, qRgb(255, 127, 127));
    const QByteArray jpeg = written(image, "jpg");
    const auto lying = QByteArray::fromHex("FFE1002245786966000049492A0008000000010012010300010000000600000000000000");
    const std::pair<QByteArray, QImage> files[] = {
        {written(image, "png"), image},
        {written(large, "png"), large},
        {written(wide, "png"), wideOnWhite},
        {written(image, "bmp"), image},
        {written(mono, "bmp"), mono},
        {written(image, "ppm"), image},
        {jpeg, QImage::fromData(jpeg)},
        {written(image, "jpg", true), QImage::fromData(written(image, "jpg", true))},
        {QByteArray(jpeg).insert(2, lying), QImage::fromData(jpeg).transformed(QTransform().rotate(90))},
    };
    for (const auto& [bytes, expected] : files) {
        SCOPED_TRACE(bytes.left(4).toStdString());
        const QImage loaded = loadPicture(store("whole.txt", bytes + "behind"));
        EXPECT_EQ(loaded.format(), QImage::Format_RGB32);
        EXPECT_EQ(loaded.devicePixelRatio(), 1);
        EXPECT_TRUE(loaded == expected.convertToFormat(QImage::Format_RGB32));
        EXPECT_THROW((void)loadPicture(store("part.bmp", bytes.chopped(1))), RuntimeError);
    }
}

TEST_F(PictureFiles, NamesTheFileAndTheCause)
{
    makeFolderAndPipe();
    const QByteArray bmp = written(colourful(9, 9), "bmp");
    QFile large(store("large.bmp", bmp));
    ASSERT_TRUE(large.resize(10'000'000'000)); // a sparse file
    const auto huge =
        QByteArray::fromHex("89504E470D0A1A0A0000000D494844520000EA600000EA600800000000A5B92A9E0000000049444154");
    const std::pair<QString, std::string> cases[] = {
        {path("none.bmp"), "none.bmp does not exist"},
        {path("folder/"), "folder is a folder"},
        {path("pipe"), "pipe is no picture that Schemlet can read"},
        {"/dev/zero", "zero is no picture that Schemlet can read"},
        {store("empty.bmp", ""), "empty.bmp is no picture that Schemlet can read"},
        {store("text.png", "A circuit %1 of mine"), "text.png is no picture that Schemlet can read"},
        {store("odd.bmp", QByteArray(bmp).replace(28, 1, "5")), "odd.bmp is no picture that Schemlet can read"},
        {store("100 %2.bmp", bmp.left(99)), "100 %2.bmp is cut short"},
        {path("large.bmp"), "large.bmp is too large: 10000 megabytes, at most 537 megabytes"},
        {store("huge", huge), "huge is too large: 60000 x 60000 pixels, at most 67 megapixels"},
        {store("wide", "P6 8193 8192 255\n"), "wide is too large: 8193 x 8192 pixels, at most 67 megapixels"},
    };
    for (const auto& [path, expected] : cases) {
        EXPECT_THAT([&file = path] { (void)loadPicture(file); },
                    ThrowsMessage<RuntimeError>("Invalid picture\n\nThe file " + expected + "."));
    }
}

TEST_F(PictureFiles, SavesABmpUnderExactlyThisPath)
{
    QImage image = colourful(33, 21);
    image.setDotsPerMeterX(5000);
    store("mine.png", "");
    allow("mine.png", 0600);
    const auto permissions = QFile::permissions(path("mine.png"));
    ASSERT_TRUE(QFile::link("mine.png", path("link")) && QFile::link("link", path("chain")));
    const QStringList before = listing();
    for (const char* const name : {"mine.png", "link", "chain"}) {
        SCOPED_TRACE(name);
        store("mine.png", "not a picture");
        savePicture(image, path(name));
        const QByteArray saved = contents(path("mine.png"));
        EXPECT_TRUE(saved.startsWith("BM"));
        EXPECT_EQ(saved.mid(28, 2).toHex(), "1800");             // bits a pixel
        EXPECT_EQ(saved.mid(38, 8).toHex(), "c40e0000c40e0000"); // 3780 dots a metre
        EXPECT_TRUE(loadPicture(path("mine.png")) == image);
        EXPECT_TRUE(QFileInfo(path("link")).isSymLink() && QFileInfo(path("chain")).isSymLink());
        EXPECT_EQ(listing(), before);
        EXPECT_EQ(QFile::permissions(path("mine.png")), permissions);
    }
    savePicture(colourful(5, 5).convertToFormat(QImage::Format_Mono), path("new"));
    EXPECT_EQ(contents(path("new")).mid(28, 2).toHex(), "1800");
}

TEST_F(PictureFiles, KeepsTheOldFileIfSavingFails)
{
    makeFolderAndPipe();
    const QByteArray old = written(colourful(9, 9), "bmp");
    store("old.bmp", old);
    expectNotSaved("folder", "that is a folder");
    expectNotSaved("pipe", "that is no ordinary file");
    expectNotSaved("gone/a.bmp", "no such folder");
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    for (const rlim_t room : {0U, 1U, 54U, 16384U, 24353U}) { // of 24354 bytes
        limitFiles(room);
        expectNotSaved("old.bmp", "the disk takes no more");
        expectNotSaved("new.bmp", "the disk takes no more");
        limitFiles(RLIM_INFINITY);
    }
    for (const auto& [file, folder, cause] :
         {std::tuple{0444U, 0777U, "the file is write-protected"}, {0666U, 0555U, "permission denied"}}) {
        allow("old.bmp", file);
        allow(".", folder);
        constexpr uid_t nobody = 65534;
        const bool isRoot = setresuid(nobody, nobody, 0) == 0; // root may write anywhere
        expectNotSaved("old.bmp", cause);
        EXPECT_TRUE(!isRoot || setresuid(0, 0, 0) == 0);
    }
    allow(".", 0700);
    EXPECT_EQ(contents(path("old.bmp")), old);
}

} // namespace schemlet
