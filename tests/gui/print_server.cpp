#include "tests/gui/print_server.h"

#include <QDir>
#include <cups/cups.h>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

constexpr auto queue = "Desk_Printer";

// In these, @ stands for the folder. Everybody who reaches the socket may do anything, but only the folder's owner can
// enter it. What was printed is what the service keeps of each job.
constexpr std::pair<const char*, const char*> files[] = {
    {"cups-files.conf", R"(ServerRoot @
StateDir @
CacheDir @
RequestRoot @/jobs
TempDir @
AccessLog stderr
ErrorLog stderr
PageLog stderr
)"},
    {"cupsd.conf", R"(Listen @/socket
Browsing No
MaxJobs 2
PreserveJobFiles Yes
<Location />
Order deny,allow
</Location>
<Policy default>
<Limit All>
Order deny,allow
</Limit>
</Policy>
)"},
    {"printers.conf", R"(<DefaultPrinter Desk_Printer>
DeviceURI file:///dev/null
State Idle
Accepting Yes
</DefaultPrinter>
)"},
    // A colour printer that prints PDF as it is.
    {"ppd/Desk_Printer.ppd", R"(*PPD-Adobe: "4.3"
*ColorDevice: True
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*CloseUI: *PageSize
*ImageableArea A4/A4: "18 36 571 818"
*PaperDimension A4/A4: "595 842"
*DefaultResolution: 600dpi
)"},
};

} // namespace

PrintServer::PrintServer()
{
    const QDir folder(m_folder.path());
    folder.mkdir("ppd");
    for (const auto& [name, text] : files) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(text).replace('@', QFile::encodeName(folder.path())));
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
