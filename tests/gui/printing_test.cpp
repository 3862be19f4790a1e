#include "platform/qt/printing.h"

#include "platform/runtime_error.h"
#include "tests/gui/pixels.h"
#include "tests/gui/print_server.h"
#include "tests/support/sample_files.h"

#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr int dotsPerPoint = 2;

/// The paper as it lies in the printer's tray.
QImage page(const QString& file)
{
    const QString resolution = QString::number(72 * dotsPerPoint);
    EXPECT_EQ(QProcess::execute("pdftoppm", {"-r", resolution, "-png", file, file}), 0);
    EXPECT_FALSE(QFile::exists(file + "-2.png")); // there is one page
    return QImage(file + "-1.png");
}

/// What the user reads; nothing if all went well.
std::string errorOfPrinting()
{
    try {
        printPicture(colourful(30, 30), "drawing");
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
        const QRect off(inkedPart(paper).topLeft() - c.inked.topLeft() * dotsPerPoint,
                        inkedPart(paper).size() - c.inked.size() * dotsPerPoint);
        EXPECT_TRUE(QRect(-2, -2, 5, 5).contains(off.topLeft())) << off.x() << ' ' << off.y();
        EXPECT_TRUE(QRect(-2, -2, 5, 5).contains({off.width(), off.height()})) << off.width() << ' ' << off.height();
    }
}

TEST(Printing, TellsWhatKeepsAJobFromThePrinterAndWaitsForAStoppedOne)
{
    PrintServer server;
    server.run("cupsreject");
    EXPECT_EQ(errorOfPrinting(), "Printer error\n\nThe printer Desk_Printer rejects jobs.\n"
                                 "The printer settings of the system make it accept them again.");
    EXPECT_EQ(server.printedFiles().size(), 0);

    server.run("cupsaccept");
    server.run("cupsdisable");
    EXPECT_EQ(errorOfPrinting(), "");
    EXPECT_EQ(errorOfPrinting(), "");
    // Nobody could know this beforehand.
    const std::string full = "Printer error\n\nThe printer Desk_Printer did not get the job:\n";
    EXPECT_EQ(errorOfPrinting().substr(0, full.size()), full); // the rest comes from the service
    EXPECT_EQ(server.waitingJobs(), 2);
    server.run("cupsenable");
    EXPECT_EQ(server.printedFiles().size(), 2);

    const std::string none = "Printer error\n\nNo default printer is set up, or the print service is not running.\n"
                             "The printer settings of the system show which.";
    server.removeQueue();
    EXPECT_EQ(errorOfPrinting(), none);
    server.end();
    EXPECT_EQ(errorOfPrinting(), none);
}

} // namespace schemlet
