#ifndef QUITONSIGNALS_H
#define QUITONSIGNALS_H

class QObject;

/// From now on SIGINT, SIGTERM and SIGHUP end the application's event loop instead of the process, so that it
/// cleans up, and SIGPIPE is ignored. Once per process; the watch goes with \a parent.
void quitOnSignals(QObject *parent);

/// Whether one of them came: for code that keeps the event loop waiting.
bool isQuitAsked();

#endif // QUITONSIGNALS_H
