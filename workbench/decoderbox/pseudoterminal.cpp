#include "pseudoterminal.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <utility>

#include <poll.h>
#include <unistd.h>

namespace {

const int LookIntervalMs = 20;
const int MostUnsentBytes = 64 * 1024;
const int MostUnheardBytes = 4096; // what a serial driver keeps of what is yet to be sent

QString systemError(const char *what)
{
    return QString("%1: %2").arg(QString::fromLatin1(what), QString::fromLocal8Bit(std::strerror(errno)));
}

} // namespace

PseudoTerminal::PseudoTerminal(QObject *parent) : QObject(parent)
{
    m_lookTimer.setInterval(LookIntervalMs);
    connect(&m_lookTimer, &QTimer::timeout, this, &PseudoTerminal::lookForUnit);
    connect(&m_in, &SlowLine::arrived, this, &PseudoTerminal::takeIn);
    connect(&m_out, &SlowLine::arrived, this, &PseudoTerminal::putOut);
}

PseudoTerminal::~PseudoTerminal()
{
    removeLink();
}

void PseudoTerminal::setBaud(int baud)
{
    m_in.setBaud(baud);
    m_out.setBaud(baud);
}

bool PseudoTerminal::open(const QString &link, QString *error)
{
    m_linkName = link;
    return replug(error);
}

bool PseudoTerminal::replug(QString *error)
{
    if (m_terminal) {
        return true;
    }
    std::unique_ptr<TerminalPair> terminal(new TerminalPair);
    if (!terminal->open(error)) {
        return false;
    }
    m_terminal = std::move(terminal);
    if (!m_linkName.isEmpty() && !makeLink(m_linkName, error)) {
        m_terminal.reset();
        return false;
    }
    m_readNotifier.reset(new QSocketNotifier(m_terminal->farEnd(), QSocketNotifier::Read));
    m_readNotifier->setEnabled(false);
    connect(m_readNotifier.get(), &QSocketNotifier::activated, this, &PseudoTerminal::drain);
    m_writeNotifier.reset(new QSocketNotifier(m_terminal->farEnd(), QSocketNotifier::Write));
    m_writeNotifier->setEnabled(false);
    connect(m_writeNotifier.get(), &QSocketNotifier::activated, this, &PseudoTerminal::flush);
    m_lookTimer.start();
    return true;
}

void PseudoTerminal::unplug()
{
    if (!m_terminal) {
        return;
    }
    m_in.clear();
    setUnitThere(false);
    m_lookTimer.stop();
    m_readNotifier.reset();
    m_writeNotifier.reset();
    removeLink();
    m_terminal.reset();
}

void PseudoTerminal::removeLink()
{
    if (!m_link.isEmpty() && m_terminal && QFile::symLinkTarget(m_link) == devicePath()) {
        QFile::remove(m_link);
    }
    m_link.clear();
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
    pollfd look = {m_terminal->farEnd(), POLLIN, 0};
    const bool looked = ::poll(&look, 1, 0) >= 0;
    // A unit that came, spoke and left between two looks has left something to read.
    if (looked && (!(look.revents & POLLHUP) || (look.revents & POLLIN))) {
        setUnitThere(true);
    }
}

void PseudoTerminal::drain()
{
    char bytes[MostUnheardBytes];
    const int room = MostUnheardBytes - m_in.size();
    if (room <= 0) {
        return;
    }
    // One read per turn of the event loop, so that a unit that never stops sending starves nobody.
    const ssize_t count = ::read(m_terminal->farEnd(), bytes, size_t(room));
    if (count > 0) {
        m_in.put(QByteArray(bytes, int(count)));
        m_readNotifier->setEnabled(m_in.size() < MostUnheardBytes);
    } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
        setUnitThere(false);
    }
}

void PseudoTerminal::takeIn(const QByteArray &bytes)
{
    if (m_readNotifier) {
        m_readNotifier->setEnabled(m_unitThere && m_in.size() < MostUnheardBytes);
    }
    Q_EMIT received(bytes);
}

bool PseudoTerminal::write(const QByteArray &bytes, int pauseMs)
{
    if (m_terminal && !m_unitThere) {
        lookForUnit();
    }
    if (!m_unitThere || m_unsent.size() + m_out.size() + bytes.size() > MostUnsentBytes) {
        return false;
    }
    m_out.put(bytes, pauseMs);
    return true;
}

void PseudoTerminal::putOut(const QByteArray &bytes)
{
    m_unsent += bytes;
    flush();
}

void PseudoTerminal::flush()
{
    while (!m_unsent.isEmpty()) {
        const ssize_t count = ::write(m_terminal->farEnd(), m_unsent.constData(), size_t(m_unsent.size()));
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
    m_out.clear();
    // What the unit had written before it left still arrives.
    const QByteArray last = m_in.takeAll();
    m_readNotifier->setEnabled(there);
    m_writeNotifier->setEnabled(false);
    if (there) {
        m_lookTimer.stop();
        Q_EMIT unitCame();
    } else {
        m_lookTimer.start();
        if (!last.isEmpty()) {
            Q_EMIT received(last);
        }
        Q_EMIT unitLeft();
    }
}
