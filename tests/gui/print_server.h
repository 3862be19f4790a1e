#pragma once

#include "tests/gui/desk.h"

#include <QImage>
#include <QStringList>
#include <QTemporaryDir>

namespace schemlet {

/// A print service of our own with one queue, the default one, on A4 with margins of 18, 24, 24 and 36 points at the
/// left, top, right and bottom. It has no network port and keeps to one folder, gone with this object. CUPS_SERVER
/// shows this process and those it starts the way to it; afterwards it leads nowhere, so that no test ever reaches a
/// real printer.
class PrintServer {
public:
    PrintServer();
    ~PrintServer() { end(); }
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    /// Does something to the queue: cupsreject, cupsaccept, cupsdisable or cupsenable. A queue that rejects jobs turns
    /// them away; a disabled one keeps them until it runs again, but has room for two only.
    void run(const QString& command) { run(command, {}); }
    /// From then on there is no printer at all.
    void removeQueue() { run("lpadmin", {"-x"}); }
    /// From then on nobody answers.
    void end() { schemlet::end(m_server); }

    /// How many jobs wait to be printed.
    [[nodiscard]] int waitingJobs() const;
    /// The last two printed files, older first, once no job is waiting any more. A job another process is just about to
    /// send must be waited for.
    [[nodiscard]] QStringList printedFiles() const;

private:
    void run(const QString& command, QStringList words);

    QTemporaryDir m_folder;
    QProcess m_server;
};

/// The picture as it lies in a printed file, before any printer scales it.
[[nodiscard]] QImage printedPicture(const QString& file);

} // namespace schemlet
