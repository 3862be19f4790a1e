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

/// A signal handler may do very little; the main loop does the rest.
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
        return; // then they end the program the hard way, as they do by default
    }
    auto* const notifier = new QSocketNotifier(wakeUp, QSocketNotifier::Read, QCoreApplication::instance());
    // Not quit(): that asks every window first.
    QObject::connect(notifier, &QSocketNotifier::activated, [] { QCoreApplication::exit(); });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(signal, noteSignal);
    }
}

} // namespace schemlet
