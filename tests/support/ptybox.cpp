#include "ptybox.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <cstdlib>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

PtyBox::PtyBox() : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0) {
        return;
    }
    m_path = QFile::decodeName(ptsname(m_master));
    m_slave = open(ptsname(m_master), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios line;
    tcgetattr(m_slave, &line);
    cfmakeraw(&line);
    tcsetattr(m_slave, TCSANOW, &line);
}

PtyBox::~PtyBox()
{
    if (m_slave >= 0) {
        close(m_slave);
    }
    if (m_master >= 0) {
        close(m_master);
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
            const ssize_t count = write(m_master, bytes.constData() + sent, size_t(bytes.size() - sent));
            sent += count > 0 ? count : 0;
            return sent == bytes.size();
        },
        5000);
}

QByteArray PtyBox::received()
{
    char buffer[4096];
    for (ssize_t count; (count = read(m_master, buffer, sizeof buffer)) > 0;) {
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
