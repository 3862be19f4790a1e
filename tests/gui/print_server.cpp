#include "tests/gui/print_server.h"

#include <QDir>
#include <cups/cups.h>
#include <gtest/gtest.h>

namespace schemlet {

namespace {

// In all of these, @ stands for the folder.
constexpr auto filesConf = R"(ServerRoot @/root
ServerBin @/bin
StateDir @/state
CacheDir @/cache
RequestRoot @/jobs
TempDir @
AccessLog stderr
ErrorLog stderr
PageLog stderr
)";

// Everybody who reaches the socket may do anything; it lies in a folder that only its owner can enter.
constexpr auto serverConf = R"(Listen @/socket
Browsing No
MaxJobs 2
WebInterface No
<Location />
Order deny,allow
</Location>
<Policy default>
<Limit All>
Order deny,allow
</Limit>
</Policy>
)";

constexpr auto printersConf = R"(<DefaultPrinter Desk_Printer>
DeviceURI folder:@/printed
State Idle
Accepting Yes
</DefaultPrinter>
)";

// Without words it is asked which devices there are. The name changes last, so that nobody sees half a file.
constexpr auto printer = R"(#!/bin/sh
[ $# -ge 5 ] || exit 0
file=${DEVICE_URI#folder:}/$1
cat ${6:+"$6"} >"$file.part" && mv "$file.part" "$file.pdf"
)";

// A colour printer that prints PDF as it is.
constexpr auto printerDescription = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*NickName: "Desk"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*CloseUI: *PageSize
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 36 571 818"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*DefaultResolution: 600dpi
)ppd";

bool isReady()
{
    cups_dest_t* const usual = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
    cupsFreeDests(1, usual);
    return usual != nullptr;
}

} // namespace

PrintServer::PrintServer()
{
    writeFiles();
    // A copy, as a security profile may confine the installed one to the folders of the system.
    const QString program = m_folder.filePath("cupsd");
    QFile::copy("/usr/sbin/cupsd", program);
    m_server.setStandardErrorFile(m_folder.filePath("log"));
    m_server.start(program,
                   {"-f", "-c", m_folder.filePath("root/cupsd.conf"), "-s", m_folder.filePath("root/cups-files.conf")});
    const QByteArray socket = QFile::encodeName(m_folder.filePath("socket"));
    qputenv("CUPS_SERVER", socket);
    cupsSetServer(socket.constData()); // where the variable has been read before
    // Who runs the tests may have a favourite printer, by these ways.
    qputenv("CUPS_SERVERROOT", QFile::encodeName(m_folder.filePath("root")));
    qputenv("HOME", QFile::encodeName(m_folder.path()));
    qunsetenv("LPDEST");
    qunsetenv("PRINTER");
    waitUntil("the print server", isReady);
}

void PrintServer::writeFiles() const
{
    const QDir folder(m_folder.path());
    for (const char* const made : {"root/ppd", "bin/backend", "printed"}) {
        folder.mkpath(made);
    }
    QFile::link("/usr/lib/cups/daemon", folder.filePath("bin/daemon"));
    for (const auto& [name, text] :
         {std::pair{"root/cups-files.conf", filesConf}, std::pair{"root/cupsd.conf", serverConf},
          std::pair{"root/printers.conf", printersConf}, std::pair{"root/ppd/Desk_Printer.ppd", printerDescription},
          std::pair{"bin/backend/folder", printer}}) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(text).replace('@', QFile::encodeName(folder.path())));
    }
    // Not for others, or the server would run it as somebody who cannot enter the folder.
    QFile::setPermissions(folder.filePath("bin/backend/folder"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void PrintServer::run(const QString& program, const QStringList& words)
{
    // These are an administrator's, in a folder that others do not search.
    EXPECT_EQ(QProcess::execute("/usr/sbin/" + program, words), 0) << program.toStdString();
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
    const QDir printed(m_folder.filePath("printed"));
    QStringList files;
    for (const QString& name : printed.entryList({"*.pdf"}, QDir::Files, QDir::Name)) {
        files << printed.filePath(name);
    }
    return files;
}

QImage printedPicture(const QString& file)
{
    EXPECT_EQ(QProcess::execute("pdfimages", {"-png", file, file}), 0);
    return QImage(file + "-000.png").convertToFormat(QImage::Format_RGB32);
}

} // namespace schemlet
