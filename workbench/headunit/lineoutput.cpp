#include "lineoutput.h"

#include "quitonsignals.h"
#include "virtualclock.h"

#include <QElapsedTimer>

#include <cerrno>
#include <cstdio>

#include <limits.h>
#include <poll.h>
#include <unistd.h>

LineOutput::LineOutput(int descriptor, QObject *parent)
    : QObject(parent), m_descriptor(descriptor), m_notifier(descriptor, QSocketNotifier::Write)
{
    m_notifier.setEnabled(false);
    connect(&m_notifier, &QSocketNotifier::activated, this, &LineOutput::flush);
}

LineOutput::~LineOutput()
{
    QElapsedTimer clock;
    clock.start();
    while (!m_waiting.isEmpty() && clock.elapsed() < 1000) {
        if (isReady(100)) {
            writeSome();
        }
    }
}

void LineOutput::writeLine(const QByteArray &line)
{
    if (!m_isOpen) {
        return;
    }
    if (m_waiting.size() + line.size() >= Capacity) {
        if (!m_hasLostLines) {
            std::fputs("headunit: nobody reads the trace, lines are lost\n", stderr);
        }
        m_hasLostLines = true;
        return;
    }
    m_waiting += line;
    m_waiting += '\n';
    flush();
    const VirtualClock::Hold hold; // the reader is in real time
    while (m_waitsForReader && !m_waiting.isEmpty() && !isQuitAsked()) {
        if (isReady(100)) {
            writeSome();
        }
    }
}

void LineOutput::flush()
{
    while (!m_waiting.isEmpty() && isReady(0)) {
        writeSome();
    }
    m_notifier.setEnabled(!m_waiting.isEmpty());
}

bool LineOutput::isReady(int timeoutMs)
{
    pollfd entry = {m_descriptor, POLLOUT, 0};
    return ::poll(&entry, 1, timeoutMs) > 0;
}

// A pipe that poll() calls ready takes PIPE_BUF bytes without blocking.
void LineOutput::writeSome()
{
    const size_t size = size_t(qMin(m_waiting.size(), decltype(m_waiting.size())(PIPE_BUF)));
    const ssize_t written = ::write(m_descriptor, m_waiting.constData(), size);
    if (written > 0) {
        m_waiting.remove(0, int(written));
    } else if (errno != EINTR && errno != EAGAIN) {
        close();
    }
}

void LineOutput::close()
{
    m_isOpen = false;
    m_waiting.clear();
}
