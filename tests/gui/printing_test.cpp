#include "platform/qt/printing.h"

#include "platform/runtime_error.h"
#include "tests/gui/pixels.h"
#include "tests/gui/print_server.h"
#include "tests/support/sample_files.h"

#include <gmock/gmock.h>

namespace schemlet {

namespace {

using testing::ThrowsMessage;

constexpr int dotsPerPoint = 2;

/// The paper as it lies in the printer's tray.
QImage page(const QString& file)
{
    const QString resolution = QString::number(72 * dotsPerPoint);
    EXPECT_EQ(QProcess::execute("pdftoppm", {"-r", resolution, "-png", file, file}), 0);
    EXPECT_FALSE(QFile::exists(file + "-2.png")); // there is one page
    return QImage(file + "-1.png");
}

} // namespace

TEST(Printing, PutsThePictureSharplyOnOnePageInItsNaturalSizeOrShrunkToFit)
{
    struct Case {
        QSize picture;
        QSize paper;
        QRect inked; ///< in points; 96 pixels are 72 of them
        double ratio = 1;
    };
    const Case cases[] = {
        {{300, 400}, {595, 842}, {182, 24, 225, 300}},
        {{640, 400}, {842, 595}, {181, 24, 480, 300}},
        {{2000, 1000}, {842, 595}, {36, 24, 770, 385}}, // the edges of the upright page, 36 and 18, now at the sides
        {{1000, 4000}, {595, 842}, {197, 24, 195, 782}},
        {{600, 800}, {595, 842}, {182, 24, 225, 300}, 2}, // from a sharp screen: as large, only finer
    };
    PrintServer server;
    for (const Case& c : cases) {
        QImage picture = colourful(c.picture.width(), c.picture.height());
        picture.setDevicePixelRatio(c.ratio);
        printPicture(picture, "drawing");
        const QString file = server.printedFiles().last();
        EXPECT_EQ(printedPicture(file), picture);
        const QImage paper = page(file);
        EXPECT_EQ(paper.size(), c.paper * dotsPerPoint);
        const QRect inked = inkedPart(paper);
        const QRect wanted(c.inked.topLeft() * dotsPerPoint, c.inked.size() * dotsPerPoint);
        EXPECT_TRUE(wanted.adjusted(-2, -2, 2, 2).contains(inked)) << c.picture.width();
        EXPECT_TRUE(inked.adjusted(-2, -2, 2, 2).contains(wanted)) << c.picture.width();
    }
}

TEST(Printing, TellsWhatKeepsAJobFromThePrinterAndWaitsForAStoppedOne)
{
    const auto print = [] { printPicture(colourful(30, 30), "drawing"); };
    PrintServer server;
    server.run("cupsreject");
    EXPECT_THAT(print, ThrowsMessage<RuntimeError>("Printer error\n\nThe printer Desk_Printer rejects jobs.\n"
                                                   "The printer settings of the system make it accept them again."));
    EXPECT_EQ(server.printedFiles().size(), 0);

    server.run("cupsaccept");
    server.run("cupsdisable");
    print();
    print();
    // Nobody could know this beforehand, and the service says why.
    EXPECT_THAT(print, ThrowsMessage<RuntimeError>(
                           testing::StartsWith("Printer error\n\nThe printer Desk_Printer did not get the job:\n")));
    EXPECT_EQ(server.waitingJobs(), 2);
    server.run("cupsenable");
    EXPECT_EQ(server.printedFiles().size(), 2);

    const auto none = ThrowsMessage<RuntimeError>(
        "Printer error\n\nNo default printer is set up, or the print service is not running.\n"
        "The printer settings of the system show which.");
    server.removeQueue();
    EXPECT_THAT(print, none);
    server.end();
    EXPECT_THAT(print, none);
}

} // namespace schemlet
