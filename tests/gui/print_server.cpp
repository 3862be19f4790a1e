#include "tests/gui/print_server.h"

#include "tests/support/sample_files.h"

#include <QDir>
#include <QTest>
#include <cups/cups.h>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr auto queue = "Desk_Printer";

} // namespace

PrintServer::PrintServer()
{
    const QDir folder(m_folder.path());
    folder.mkdir("ppd");
    for (const char* const name : {"cups-files.conf", "cupsd.conf", "printers.conf", "ppd/Desk_Printer.ppd"}) {
        QByteArray text = contents(QFINDTESTDATA("print_server/") + name);
        store(folder.filePath(name), text.replace('@', QFile::encodeName(folder.path())));
    }
    // A copy, as a security profile may confine the installed one to the folders of the system.
    const QString program = folder.filePath("cupsd");
    QFile::copy("/usr/sbin/cupsd", program);
    m_server.setStandardErrorFile(folder.filePath("log"));
    m_server.start(program, {"-f", "-c", folder.filePath("cupsd.conf"), "-s", folder.filePath("cups-files.conf")});
    const QByteArray socket = QFile::encodeName(folder.filePath("socket"));
    qputenv("CUPS_SERVER", socket);
    cupsSetServer(socket.constData()); // where the variable has been read before
    // Who runs the tests may have a favourite printer, by these ways.
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

void PrintServer::run(const QString& command, QStringList words)
{
    // These are an administrator's, in a folder that others do not search.
    EXPECT_EQ(QProcess::execute("/usr/sbin/" + command, words << queue), 0) << command.toStdString();
}

int PrintServer::waitingJobs() const
{
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs(&jobs, queue, 0, CUPS_WHICHJOBS_ACTIVE);
    cupsFreeJobs(count, jobs);
    return count;
}

QStringList PrintServer::printedFiles() const
{
    waitUntil("a job's end", [this] { return waitingJobs() == 0; });
    const QDir jobs(m_folder.filePath("jobs"));
    QStringList printed;
    for (const QString& name : jobs.entryList({"d*-001"}, QDir::Files, QDir::Name)) {
        printed << jobs.filePath(name);
    }
    return printed;
}

QImage printedPicture(const QString& file)
{
    EXPECT_EQ(QProcess::execute("pdfimages", {"-png", file, file}), 0);
    return QImage(file + "-000.png").convertToFormat(QImage::Format_RGB32);
}

} // namespace schemlet
