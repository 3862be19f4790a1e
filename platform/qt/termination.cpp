#include "platform/qt/termination.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace schemlet {

namespace {

int wakeUp = -1;

/// A signal handler may call few functions, so it only wakes the main loop.
void noteSignal(int /*signal*/)
{
    const std::uint64_t one = 1;
    (void)!write(wakeUp, &one, sizeof one);
}

} // namespace

void endOnSignals()
{
    wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (wakeUp < 0) {
        return; // the signals then end the program at once, as they do by default
    }
    auto* const notifier = new QSocketNotifier(wakeUp, QSocketNotifier::Read, QCoreApplication::instance());
    // Not quit(), which first asks every window to close.
    QObject::connect(notifier, &QSocketNotifier::activated, [] { QCoreApplication::exit(); });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(signal, noteSignal);
    }
}

} // namespace schemlet
