#include "linereplayer.h"

#include "serialtap.h"
#include "virtualline.h"

#include <QFile>

#include <unistd.h>

namespace {

const qint64 AnswerPatience = 1000000; // us for which a package waits for the answer to the one before
const int AnswerLookInterval = 1;      // ms
const qint64 BackBefore = 25000;       // us for which the device is there before the unit's next try finds it
const qint64 Punctual = 500;           // us before which a chunk may leave: timers know milliseconds only

} // namespace

LineReplayer::LineReplayer(const ReplayOptions &options, const FrameFormat *format, QObject *parent)
    : QObject(parent), m_options(options), m_log(options, format)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &LineReplayer::work);
    if (format) {
        m_framer.reset(new LineFramer(*format));
        m_answers.reset(new LineFramer(*format));
    }
}

bool LineReplayer::open(QString *error)
{
    m_link = m_folder.filePath("log");
    return m_log.open(error) && openTerminal(error);
}

bool LineReplayer::openTerminal(QString *error)
{
    m_terminal.reset(new TerminalPair);
    if (!m_terminal->open(error)) {
        m_terminal.reset();
        return false;
    }
    if (!m_terminal->holdLine() || !QFile::link(m_terminal->devicePath(), m_link)) {
        *error = QString("cannot open %1").arg(m_terminal->devicePath());
        m_terminal.reset();
        return false;
    }
    m_readNotifier.reset(new QSocketNotifier(m_terminal->farEnd(), QSocketNotifier::Read));
    connect(m_readNotifier.get(), &QSocketNotifier::activated, this, &LineReplayer::takeAnswers);
    m_writeNotifier.reset(new QSocketNotifier(m_terminal->farEnd(), QSocketNotifier::Write));
    m_writeNotifier->setEnabled(false);
    connect(m_writeNotifier.get(), &QSocketNotifier::activated, this, &LineReplayer::flush);
    return true;
}

void LineReplayer::hangUp()
{
    QFile::remove(m_link);
    m_readNotifier.reset();
    m_writeNotifier.reset();
    m_terminal.reset();
    m_unsent.clear();
    m_unanswered = 0;
}

void LineReplayer::comeBack()
{
    if (!m_terminal && !openTerminal(&m_problem)) {
        finish();
    }
}

void LineReplayer::changeLine(const LineRecord &change)
{
    if (change.text.startsWith("lost")) {
        hangUp();
    } else {
        comeBack();
    }
}

void LineReplayer::setState(State state)
{
    m_state = state;
    Q_EMIT stateChanged();
}

void LineReplayer::start()
{
    if (m_state == Waiting) {
        setState(Playing);
        m_origin = SerialTap::now() - qint64(double(m_options.from) / m_options.speed);
        m_timer.start(0);
    }
}

void LineReplayer::pause()
{
    if (m_state == Playing) {
        setState(Paused);
        m_pausedAt = SerialTap::now();
        m_timer.stop();
    }
}

void LineReplayer::play()
{
    if (m_state == Paused) {
        setState(Playing);
        m_origin += SerialTap::now() - m_pausedAt;
        m_timer.start(0);
    }
}

void LineReplayer::step()
{
    while (m_state == Paused && !fetch()) {
    }
    if (m_state == Paused && m_unsent.isEmpty()) {
        m_origin -=
            qMax<qint64>(m_origin + qint64(double(m_next.microseconds) / m_options.speed) - m_pausedAt, 0);
        playNext();
    }
}

void LineReplayer::finish()
{
    if (m_state != Finished) {
        setState(Finished);
        m_timer.stop();
        if (m_framer) {
            m_framer->giveUp();
            drainFramer();
        }
        Q_EMIT finished();
    }
}

// Plays what is due. Called again by the timer, or when the line takes bytes again.
void LineReplayer::work()
{
    while (m_state == Playing && m_unsent.isEmpty()) {
        if (!fetch()) {
            m_timer.start(0); // unless it is the end
            break;
        }
        const qint64 due = dueIn();
        if (due > Punctual || !mayPlay()) {
            m_timer.start(due > Punctual ? int((due + Punctual) / 1000) : AnswerLookInterval);
            break;
        }
        playNext();
        if (m_options.isFast) {
            m_timer.start(0); // what it brings about comes in between
            break;
        }
    }
    if (m_state != Playing) {
        m_timer.stop();
    }
}

// False when there is no next chunk, or not yet.
bool LineReplayer::fetch()
{
    if (m_hasNext) {
        return true;
    }
    switch (m_log.next(&m_next)) {
    case ReplayLog::Chunk:
        m_hasNext = true;
        break;
    case ReplayLog::LineChange:
        m_hasNext = true;
        if (m_next.text.startsWith("back")) {
            m_next.microseconds -= qint64(double(BackBefore) * m_options.speed);
        }
        break;
    case ReplayLog::StartOver:
        comeBack();
        m_origin = SerialTap::now() - qint64(double(m_options.from) / m_options.speed);
        break;
    case ReplayLog::Later:
        break;
    case ReplayLog::End:
        finish();
        break;
    }
    return m_hasNext;
}

// Microseconds until the next chunk is due; 0 when it is.
qint64 LineReplayer::dueIn() const
{
    if (m_options.isFast) {
        return 0;
    }
    const qint64 due = m_origin + qint64(double(m_next.microseconds) / m_options.speed);
    return qMax<qint64>(due - SerialTap::now(), 0);
}

bool LineReplayer::mayPlay()
{
    if (m_unanswered > 0 && SerialTap::now() - m_lastPackageAt > AnswerPatience) {
        m_unanswered = 0;
    }
    return m_unanswered == 0;
}

void LineReplayer::playNext()
{
    m_hasNext = false;
    const LineRecord record = m_next;
    m_place = record.microseconds;
    if (record.kind == LineRecord::State) {
        changeLine(record);
        Q_EMIT played(record);
        return;
    }
    send(record.bytes);
    if (m_framer) {
        m_framer->feed(record.bytes, record.microseconds);
        drainFramer();
    }
    Q_EMIT played(record);
    if (m_hasReachedCommand) {
        finish();
    }
}

void LineReplayer::send(const QByteArray &bytes)
{
    if (!m_terminal) {
        return; // lost, says the log, and so it was not heard
    }
    const int there = VirtualLine::waitingAtUnit(*m_terminal);
    m_unsent = bytes;
    flush();
    if (!m_options.isFast && m_unsent.isEmpty()) {
        VirtualLine::waitUntilThere(*m_terminal, there + int(bytes.size()));
    }
}

void LineReplayer::flush()
{
    while (!m_unsent.isEmpty()) {
        const ssize_t count = ::write(m_terminal->farEnd(), m_unsent.constData(), size_t(m_unsent.size()));
        if (count <= 0) {
            break;
        }
        m_unsent.remove(0, int(count));
    }
    m_writeNotifier->setEnabled(!m_unsent.isEmpty());
    if (m_unsent.isEmpty() && m_state == Playing && !m_timer.isActive()) {
        m_timer.start(0);
    }
}

void LineReplayer::drainFramer()
{
    for (LinePiece piece; m_framer->next(&piece);) {
        switch (piece.kind) {
        case LinePiece::Package:
            ++m_packages;
            ++m_unanswered;
            m_lastPackageAt = SerialTap::now();
            m_hasReachedCommand = m_hasReachedCommand ||
                                  m_framer->format().package(piece.bytes).command == m_options.untilCommand;
            break;
        case LinePiece::BadPackage:
            ++m_badPackages;
            break;
        case LinePiece::Skipped:
            m_skippedBytes += piece.bytes.size();
            break;
        case LinePiece::Answer:
            break;
        }
    }
    if (!m_options.waitsForAnswer || !*m_framer->format().answers) {
        m_unanswered = 0;
    }
}

void LineReplayer::takeAnswers()
{
    char bytes[4096];
    const ssize_t count = ::read(m_terminal->farEnd(), bytes, sizeof bytes);
    if (count <= 0 || !m_answers) {
        return;
    }
    m_answers->feed(QByteArray(bytes, int(count)), SerialTap::now());
    for (LinePiece piece; m_answers->next(&piece);) {
        if (piece.kind == LinePiece::Answer && m_unanswered > 0) {
            --m_unanswered;
        }
    }
}
