#include "platform/qt/printing.h"

#include "canvas/controls.h"
#include "platform/qt/canvas_widget.h"
#include "platform/runtime_error.h"
#include "tests/gui/desk.h"
#include "tests/gui/pixels.h"
#include "tests/gui/shown.h"
#include "tests/support/sample_files.h"
#include "ui_Form1.h"
#include "ui_Form4.h"

#include <QDir>
#include <QTemporaryDir>
#include <cups/cups.h>
#include <gmock/gmock.h>

namespace schemlet {

namespace {

using testing::ThrowsMessage;

constexpr int dotsPerPoint = 2;
constexpr auto queue = "Desk_Printer";

/// A print service for the tests. It has one queue, the default one, on A4 with margins of 18, 24, 24 and 36 points
/// (left, top, right, bottom). It has no network port and writes to one folder only. CUPS_SERVER stays set after it has
/// ended, so that no test ever reaches a real printer.
class PrintServer {
public:
    PrintServer();

    /// Calls one of the commands that change a queue.
    static void run(const char* command)
    {
        // These commands are for administrators: the search path may lack their folder.
        EXPECT_EQ(QProcess::execute(QString("/usr/sbin/") + command, {queue}), 0) << command;
    }

    /// Waits until no job is left. Returns the printed files; the last one is the newest.
    [[nodiscard]] QStringList printedFiles() const
    {
        waitUntil("a job's end", [] {
            cups_job_t* jobs = nullptr;
            const int count = cupsGetJobs(&jobs, queue, 0, CUPS_WHICHJOBS_ACTIVE);
            cupsFreeJobs(count, jobs);
            return count == 0;
        });
        QStringList printed;
        for (const QFileInfo& file :
             QDir(m_folder.filePath("jobs")).entryInfoList({"d*-001"}, QDir::Files, QDir::Name)) {
            printed << file.filePath();
        }
        return printed;
    }

private:
    QTemporaryDir m_folder;
    Process m_server;
};

PrintServer::PrintServer()
{
    const QDir folder(m_folder.path());
    folder.mkdir("ppd");
    for (const char* const name : {"cups-files.conf", "cupsd.conf", "printers.conf", "ppd/Desk_Printer.ppd"}) {
        QByteArray text = contents(QString(SCHEMLET_PRINT_SERVER_SETTINGS "/") + name);
        store(folder.filePath(name), text.replace('@', QFile::encodeName(folder.path())));
    }
    // A copy, because a security profile may confine the installed program to the system's folders.
    const QString program = folder.filePath("cupsd");
    QFile::copy("/usr/sbin/cupsd", program);
    m_server.setStandardErrorFile(folder.filePath("log"));
    m_server.start(program, {"-f", "-c", folder.filePath("cupsd.conf"), "-s", folder.filePath("cups-files.conf")});
    const QByteArray socket = QFile::encodeName(folder.filePath("socket"));
    qputenv("CUPS_SERVER", socket);
    cupsSetServer(socket.constData()); // if the variable has been read before
    // The user's own settings may name another printer.
    qputenv("CUPS_SERVERROOT", QFile::encodeName(folder.path()));
    qputenv("HOME", QFile::encodeName(folder.path()));
    qunsetenv("LPDEST");
    qunsetenv("PRINTER");
    waitUntil("the print server", [] {
        cups_dest_t* const usual = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
        cupsFreeDests(1, usual);
        return usual != nullptr;
    });
}

/// The picture in a printed file, before any printer scales it.
QImage printedPicture(const QString& file)
{
    EXPECT_EQ(QProcess::execute("pdfimages", {"-png", file, file}), 0);
    return QImage(file + "-000.png").convertToFormat(QImage::Format_RGB32);
}

/// The page as it looks on paper.
QImage page(const QString& file)
{
    const QString resolution = QString::number(72 * dotsPerPoint);
    EXPECT_EQ(QProcess::execute("pdftoppm", {"-r", resolution, "-png", file, file}), 0);
    EXPECT_FALSE(QFile::exists(file + "-2.png")); // there is only one page
    return QImage(file + "-1.png");
}

} // namespace

TEST(Printing, PrintsSharplyOnOnePageInNaturalSizeOrShrunkToFit)
{
    struct Case {
        QSize picture;
        QSize paper;
        QRect inked; ///< in points; 72 points are 96 pixels
        double ratio = 1;
    };
    const Case cases[] = {
        {{300, 400}, {595, 842}, {182, 24, 225, 300}},
        {{640, 400}, {842, 595}, {181, 24, 480, 300}},
        {{2000, 1000}, {842, 595}, {36, 24, 770, 385}}, // the margins turn with the page
        {{1000, 4000}, {595, 842}, {197, 24, 195, 782}},
        {{600, 800}, {595, 842}, {182, 24, 225, 300}, 2}, // a sharp screen: the same size, but finer
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

TEST(Printing, OmitsFocusMarkerAndOutline)
{
    PrintServer server;
    const auto printed = [&server](auto& shown) {
        shown.window->printForm();
        return printedPicture(server.printedFiles().last());
    };
    Shown<QDialog, Ui::Form4> output;
    const QImage page = printed(output);
    EXPECT_LT(differing(page, output.view.grab().toImage()), 1000); // only the focus ring differs
    QWidget* const first = output.view.focusWidget();
    QTest::keyClick(&output.view, Qt::Key_Tab);
    EXPECT_NE(output.view.focusWidget(), first);
    EXPECT_EQ(printed(output), page);

    Shown<QMainWindow, Ui::Form1> main;
    const auto canvas = [&] { return main.view.centralWidget()->grab(main.form.Canvas->geometry()).toImage(); };
    main.form.Canvas->surface().line({300, 3000}, {900, 3000});
    main.window->show({control::Label27});
    main.window->hide({control::Picture1, control::Shape1});
    const QImage drawing = printed(main);
    EXPECT_EQ(differing(drawing, canvas()), 0);
    main.window->setLeft(control::Shape1, 4500);
    main.window->show({control::Picture1, control::Shape1});
    EXPECT_GT(differing(drawing, canvas()), 100);
    EXPECT_EQ(printed(main), drawing);
    EXPECT_TRUE(main.form.Picture1->isOn() && main.form.Shape1->isOn());
}

TEST(Printing, SaysWhyAJobDoesNotReachThePrinter)
{
    const auto print = [] { printPicture(colourful(30, 30), "drawing"); };
    {
        const PrintServer server;
        PrintServer::run("cupsdisable");
        print(); // waits in the queue, which has room for one job
        // Only the service knows this, and its answer says why.
        EXPECT_THAT(print, ThrowsMessage<RuntimeError>(testing::StartsWith(
                               "Printer error\n\nThe printer Desk_Printer did not get the job:\n")));
        PrintServer::run("cupsenable");
        EXPECT_EQ(server.printedFiles().size(), 1);
        PrintServer::run("cupsreject");
        EXPECT_THAT(print,
                    ThrowsMessage<RuntimeError>("Printer error\n\nThe printer Desk_Printer rejects jobs.\n"
                                                "The printer settings of the system make it accept them again."));
    }
    EXPECT_THAT(print, ThrowsMessage<RuntimeError>(
                           "Printer error\n\nNo default printer is set up, or the print service is not running.\n"
                           "The printer settings of the system show which."));
}

} // namespace schemlet
