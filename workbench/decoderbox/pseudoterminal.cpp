#include "pseudoterminal.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <poll.h>
#include <unistd.h>

namespace {

const int LookIntervalMs = 20;
const int MostUnsentBytes = 64 * 1024;

QString systemError(const char *what)
{
    return QString("%1: %2").arg(QString::fromLatin1(what), QString::fromLocal8Bit(std::strerror(errno)));
}

} // namespace

PseudoTerminal::PseudoTerminal(QObject *parent) : QObject(parent)
{
    m_lookTimer.setInterval(LookIntervalMs);
    connect(&m_lookTimer, &QTimer::timeout, this, &PseudoTerminal::lookForUnit);
}

PseudoTerminal::~PseudoTerminal()
{
    if (!m_link.isEmpty() && QFile::symLinkTarget(m_link) == devicePath()) {
        QFile::remove(m_link);
    }
}

bool PseudoTerminal::open(const QString &link, QString *error)
{
    if (!m_terminal.open(error) || (!link.isEmpty() && !makeLink(link, error))) {
        return false;
    }
    m_readNotifier.reset(new QSocketNotifier(m_terminal.farEnd(), QSocketNotifier::Read));
    m_readNotifier->setEnabled(false);
    connect(m_readNotifier.get(), &QSocketNotifier::activated, this, &PseudoTerminal::drain);
    m_writeNotifier.reset(new QSocketNotifier(m_terminal.farEnd(), QSocketNotifier::Write));
    m_writeNotifier->setEnabled(false);
    connect(m_writeNotifier.get(), &QSocketNotifier::activated, this, &PseudoTerminal::flush);
    m_lookTimer.start();
    return true;
}

bool PseudoTerminal::makeLink(const QString &link, QString *error)
{
    const QFileInfo present(link);
    if (present.exists() && !present.isSymLink()) {
        *error = QString("'%1' exists and is no link").arg(link);
        return false;
    }
    const QByteArray name = QFile::encodeName(link);
    const QByteArray beside = name + '.' + QByteArray::number(qint64(::getpid()));
    ::unlink(beside.constData());
    if (::symlink(QFile::encodeName(devicePath()).constData(), beside.constData()) != 0 ||
        ::rename(beside.constData(), name.constData()) != 0) {
        *error = systemError(("cannot make the link '" + name + "'").constData());
        ::unlink(beside.constData());
        return false;
    }
    m_link = QFileInfo(link).absoluteFilePath();
    return true;
}

// A hung-up terminal is always readable, so a notifier would spin: look gently instead.
void PseudoTerminal::lookForUnit()
{
    pollfd look = {m_terminal.farEnd(), POLLIN, 0};
    const bool looked = ::poll(&look, 1, 0) >= 0;
    // A unit that came, spoke and left between two looks has left something to read.
    if (looked && (!(look.revents & POLLHUP) || (look.revents & POLLIN))) {
        setUnitThere(true);
    }
}

void PseudoTerminal::drain()
{
    char bytes[4096];
    // One read per turn of the event loop, so that a unit that never stops sending starves nobody.
    const ssize_t count = ::read(m_terminal.farEnd(), bytes, sizeof bytes);
    if (count > 0) {
        Q_EMIT received(QByteArray(bytes, int(count)));
    } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
        setUnitThere(false);
    }
}

bool PseudoTerminal::write(const QByteArray &bytes)
{
    if (m_terminal.farEnd() >= 0 && !m_unitThere) {
        lookForUnit();
    }
    if (!m_unitThere || m_unsent.size() + bytes.size() > MostUnsentBytes) {
        return false;
    }
    m_unsent += bytes;
    flush();
    return true;
}

void PseudoTerminal::flush()
{
    while (!m_unsent.isEmpty()) {
        const ssize_t count = ::write(m_terminal.farEnd(), m_unsent.constData(), size_t(m_unsent.size()));
        if (count <= 0) {
            break;
        }
        m_unsent.remove(0, int(count));
    }
    m_writeNotifier->setEnabled(!m_unsent.isEmpty() && m_unitThere);
}

void PseudoTerminal::setUnitThere(bool there)
{
    if (m_unitThere == there) {
        return;
    }
    m_unitThere = there;
    m_unsent.clear();
    m_readNotifier->setEnabled(there);
    m_writeNotifier->setEnabled(false);
    if (there) {
        m_lookTimer.stop();
        Q_EMIT unitCame();
    } else {
        m_lookTimer.start();
        Q_EMIT unitLeft();
    }
}
