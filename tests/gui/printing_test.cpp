#include "platform/qt/printing.h"

#include "platform/runtime_error.h"
#include "tests/gui/pixels.h"
#include "tests/gui/print_server.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

/// Pale, with a coloured square in each corner and a hairline in between.
QImage testPicture(const QSize& size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(230, 230, 255));
    QPainter painter(&picture);
    painter.drawLine(0, size.height(), size.width(), 0);
    const int right = size.width() - 40;
    const int bottom = size.height() - 40;
    painter.fillRect(0, 0, 40, 40, Qt::red);
    painter.fillRect(right, 0, 40, 40, Qt::green);
    painter.fillRect(0, bottom, 40, 40, Qt::blue);
    painter.fillRect(right, bottom, 40, 40, Qt::black);
    return picture;
}

QString outputOf(const QString& program, const QStringList& words)
{
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

constexpr int dotsPerPoint = 2;

/// The paper as it lies in the printer's tray.
QImage page(const QString& file)
{
    outputOf("pdftoppm", {"-r", QString::number(72 * dotsPerPoint), "-png", "-singlefile", file, file});
    return QImage(file + ".png");
}

/// What the user reads; nothing if all went well.
std::string errorOfPrinting()
{
    try {
        printPicture(testPicture({300, 300}), "drawing");
        return "";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.fault, Fault::printerError);
        return error.what();
    }
}

} // namespace

TEST(Printing, PutsThePictureSharplyOnOnePageInItsNaturalSizeOrShrunkToFit)
{
    struct Case {
        QSize picture;
        QSize paper;
        QRectF inked; ///< in points; 96 pixels are 72 of them
        double ratio = 1;
    };
    const Case cases[] = {
        {{300, 400}, {595, 842}, {182, 24, 225, 300}},
        {{640, 400}, {842, 595}, {181, 24, 480, 300}},
        {{2000, 1000}, {842, 595}, {36, 24, 770, 385}}, // the edges of the upright page, 36 and 18, now at the sides
        {{1000, 4000}, {595, 842}, {196.75, 24, 195.5, 782}},
        {{600, 800}, {595, 842}, {182, 24, 225, 300}, 2}, // from a sharp screen: as large, only finer
    };
    PrintServer server;
    for (const Case& c : cases) {
        QImage picture = testPicture(c.picture);
        picture.setDevicePixelRatio(c.ratio);
        printPicture(picture, "drawing");
        const QString file = server.printedFiles().last();
        EXPECT_TRUE(outputOf("pdfinfo", {file}).contains(QRegularExpression("Pages: +1\n")));
        EXPECT_EQ(printedPicture(file), picture);

        const QImage paper = page(file);
        EXPECT_EQ(paper.size(), c.paper * dotsPerPoint);
        const QRect inked = inkedPart(paper);
        const QRectF wanted(c.inked.topLeft() * dotsPerPoint, c.inked.size() * dotsPerPoint);
        EXPECT_NEAR(inked.left(), wanted.left(), 2);
        EXPECT_NEAR(inked.top(), wanted.top(), 2);
        EXPECT_NEAR(inked.width(), wanted.width(), 2);
        EXPECT_NEAR(inked.height(), wanted.height(), 2);
        const QRect inside = inked.adjusted(6, 6, -6, -6);
        EXPECT_EQ(paper.pixelColor(inside.topLeft()), Qt::red);
        EXPECT_EQ(paper.pixelColor(inside.topRight()), Qt::green);
        EXPECT_EQ(paper.pixelColor(inside.bottomLeft()), Qt::blue);
        EXPECT_EQ(paper.pixelColor(inside.bottomRight()), Qt::black);
    }
}

TEST(Printing, TellsWhatKeepsAJobFromThePrinterAndWaitsForAStoppedOne)
{
    PrintServer server;
    server.rejectJobs();
    EXPECT_EQ(errorOfPrinting(), "Printer error\n\nThe printer Desk_Printer rejects jobs.\n"
                                 "The printer settings of the system make it accept them again.");
    EXPECT_EQ(server.printedFiles().size(), 0);

    server.acceptJobs();
    server.stopQueue();
    EXPECT_EQ(errorOfPrinting(), "");
    EXPECT_EQ(errorOfPrinting(), "");
    // Nobody could know this beforehand.
    const std::string full = "Printer error\n\nThe printer Desk_Printer did not get the job:\n";
    EXPECT_EQ(errorOfPrinting().substr(0, full.size()), full); // the rest comes from the service
    EXPECT_EQ(server.waitingJobs(), 2);
    server.startQueue();
    EXPECT_EQ(server.printedFiles().size(), 2);

    const std::string none = "Printer error\n\nNo default printer is set up, or the print service is not running.\n"
                             "The printer settings of the system show which.";
    server.removeQueue();
    EXPECT_EQ(errorOfPrinting(), none);
    server.end();
    EXPECT_EQ(errorOfPrinting(), none);
}

} // namespace schemlet
