#include "ptybox.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <unistd.h>

PtyBox::PtyBox()
{
    QString error;
    if (!m_terminal.open(&error) || !m_terminal.holdLine() || !QFile::link(m_terminal.devicePath(), path())) {
        qFatal("no serial line: %s", qPrintable(error));
    }
}

bool PtyBox::waitUntil(const std::function<bool()> &condition, int timeout)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > timeout) {
            return false;
        }
        QTest::qWait(1);
    }
    return true;
}

bool PtyBox::send(const QByteArray &bytes)
{
    qsizetype sent = 0;
    return waitUntil(
        [&] {
            const ssize_t count =
                write(m_terminal.farEnd(), bytes.constData() + sent, size_t(bytes.size() - sent));
            sent += count > 0 ? count : 0;
            return sent == bytes.size();
        },
        5000);
}

QByteArray PtyBox::received()
{
    char buffer[4096];
    for (ssize_t count; (count = read(m_terminal.farEnd(), buffer, sizeof buffer)) > 0;) {
        m_received.append(buffer, int(count));
    }
    return m_received;
}

QByteArray PtyBox::take()
{
    received();
    return std::exchange(m_received, QByteArray());
}

bool PtyBox::waitForBytes(int count, int timeout)
{
    return waitUntil([&] { return received().size() >= count; }, timeout);
}

QByteArray PtyBox::takeUntilQuiet(int quiet)
{
    qsizetype before = -1;
    while (received().size() != before) {
        before = m_received.size();
        QTest::qWait(quiet);
    }
    return take();
}
