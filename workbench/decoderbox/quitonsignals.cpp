#include "quitonsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

int signalPipe[2] = {-1, -1};
volatile std::sig_atomic_t isAsked = 0;

void onSignal(int)
{
    isAsked = 1;
    const char byte = 0;
    const ssize_t ignored = ::write(signalPipe[1], &byte, 1);
    (void)ignored;
}

} // namespace

void quitOnSignals(QObject *parent)
{
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    QSocketNotifier *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, parent);
    QObject::connect(notifier, &QSocketNotifier::activated, parent, [] { QCoreApplication::quit(); });
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        std::signal(number, onSignal);
    }
    std::signal(SIGPIPE, SIG_IGN);
}

bool isQuitAsked()
{
    return isAsked != 0;
}
