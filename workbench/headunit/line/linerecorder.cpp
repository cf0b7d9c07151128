#include "linerecorder.h"

#include "boxcatalog.h"
#include "orblog.h"

#include <QFile>

#include <cstring>

#include <qextserialport.h>
#include <unistd.h>

namespace {

const int SilenceTime = 5000; // ms without a byte from the box

QString settingsText(const PortSettings &settings)
{
    return QString("%1 %2%3%4")
        .arg(settings.BaudRate)
        .arg(settings.DataBits)
        .arg(QChar("NOES"[settings.Parity]))
        .arg(settings.StopBits == STOP_1 ? 1 : 2);
}

} // namespace

LineRecorder::LineRecorder(QObject *parent) : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(int(LineFramer::UnitPatience / 1000));
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_framer->giveUp();
        drainFramer();
    });
    m_silence.setSingleShot(true);
    m_silence.setInterval(SilenceTime);
    connect(&m_silence, &QTimer::timeout, this, [this] { addState("silent", SerialTap::now()); });
    SerialTap::add(this);
}

LineRecorder::~LineRecorder()
{
    stopFile();
}

void LineRecorder::setType(int type)
{
    const FrameFormat *format = BoxCatalog::frameOf(type);
    m_framer.reset(format ? new LineFramer(*format) : nullptr);
    m_header.type =
        type == 0 ? QString() : QString("%1 %2").arg(type).arg(BoxCatalog::className(type)).trimmed();
}

bool LineRecorder::startFile(const QString &path, QString *error)
{
    stopFile();
    std::unique_ptr<QFile> file(new QFile(path));
    const QFile::OpenMode mode = QFile::WriteOnly | QFile::Truncate | QFile::Unbuffered;
    if (!(path == "-" ? file->open(STDOUT_FILENO, mode) : file->open(mode))) {
        *error = QString("%1: %2").arg(path, file->errorString());
        return false;
    }
    m_filePath = path;
    m_file.reset(new OrbLogWriter(std::move(file)));
    m_hasFileBegun = false;
    if (m_start >= 0) {
        writeHeader();
    }
    return true;
}

void LineRecorder::stopFile()
{
    if (!m_file) {
        return;
    }
    if (m_framer) {
        m_framer->giveUp();
        drainFramer();
    }
    if (m_file) {
        writeHeader(); // of a line of which nothing was heard
        m_file->finish();
        m_file.reset();
    }
}

bool LineRecorder::save(const QString &path, QString *error)
{
    LineLogRing ring = m_ring;
    ring.setHeader(m_header);
    if (!m_part.bytes.isEmpty()) {
        ring.add(m_part);
    }
    for (const LineRecord &record : m_pending) {
        ring.add(record);
    }
    return ring.save(path, error);
}

// ------------------------------------------------------------------------------------ from the tap

void LineRecorder::opened(const QString &port, const PortSettings &settings, qint64 at)
{
    m_header.port = port;
    m_header.settings = settingsText(settings);
    addState(m_wasOpen ? "back" : "opened", at);
    m_wasOpen = true;
    m_openFailure.clear();
    Q_EMIT lineOpened();
}

void LineRecorder::openFailed(const QString &port, int systemError, qint64 at)
{
    m_header.port = port;
    const QString failure = QString::fromLocal8Bit(std::strerror(systemError));
    if (failure != m_openFailure) { // the unit tries once a second
        m_openFailure = failure;
        addState("does not open: " + failure, at);
    }
}

void LineRecorder::received(const QByteArray &bytes, qint64 at)
{
    LineRecord record;
    record.microseconds = sinceStart(at);
    record.bytes = bytes;
    m_silence.start();
    add(record);
    if (!m_framer) {
        decide(int(bytes.size()), LineRecord::ToUnit);
        return;
    }
    m_framer->feed(bytes, record.microseconds);
    drainFramer();
}

void LineRecorder::sent(const QByteArray &bytes, qint64 at)
{
    LineRecord record;
    record.microseconds = sinceStart(at);
    record.kind = LineRecord::ToBox;
    record.bytes = bytes;
    add(record);
}

void LineRecorder::closed(bool isLost, qint64 at)
{
    m_silence.stop();
    if (m_framer) {
        m_framer->giveUp(); // what the line brings when it is back is no continuation
        drainFramer();
    }
    addState(isLost ? "lost" : "closed", at);
}

// ------------------------------------------------------------------------------------ putting in order

qint64 LineRecorder::sinceStart(qint64 at)
{
    if (m_start < 0) {
        m_start = at;
        m_header.start = QDateTime::currentDateTimeUtc();
        m_ring.setHeader(m_header);
        writeHeader();
    }
    return qMax<qint64>(at - m_start, 0);
}

void LineRecorder::addState(const QString &text, qint64 at)
{
    LineRecord record;
    record.microseconds = sinceStart(at);
    record.kind = LineRecord::State;
    record.text = text;
    add(record);
}

void LineRecorder::add(const LineRecord &record)
{
    m_pending.push_back(record);
    passOnDecided();
}

void LineRecorder::drainFramer()
{
    bool isBad = false;
    for (LinePiece piece; m_framer->next(&piece);) {
        if (piece.kind == LinePiece::BadPackage) {
            isBad = true; // its bytes come again
        } else {
            decide(int(piece.bytes.size()),
                   piece.kind == LinePiece::Skipped ? LineRecord::Unframed : LineRecord::ToUnit);
        }
    }
    if (m_framer->waiting() > 0) {
        m_patience.start();
    } else {
        m_patience.stop();
    }
    if (isBad) {
        noteBadPackage();
    }
}

// The oldest \a count bytes that nothing was known about are of \a kind.
void LineRecorder::decide(int count, LineRecord::Kind kind)
{
    while (count > 0 && !m_pending.empty()) {
        LineRecord &chunk = m_pending.front();
        const QByteArray bytes = chunk.bytes.left(count);
        if (!m_part.bytes.isEmpty() && m_part.kind != kind) {
            emitPart();
        }
        m_part.microseconds = chunk.microseconds;
        m_part.kind = kind;
        m_part.bytes += bytes;
        count -= int(bytes.size());
        chunk.bytes.remove(0, int(bytes.size()));
        if (chunk.bytes.isEmpty()) {
            emitPart();
            m_pending.pop_front();
            passOnDecided();
        }
    }
}

void LineRecorder::passOnDecided()
{
    while (!m_pending.empty() && !m_pending.front().isTowardsUnit()) {
        keep(m_pending.front());
        m_pending.pop_front();
    }
}

void LineRecorder::emitPart()
{
    keep(m_part);
    m_part.bytes.clear();
}

// ------------------------------------------------------------------------------------ ring and file

void LineRecorder::keep(const LineRecord &record)
{
    m_ring.add(record);
    if (m_file && !m_file->write(record)) {
        failFile();
    }
    Q_EMIT recorded(record);
}

void LineRecorder::writeHeader()
{
    if (m_file && !m_hasFileBegun) {
        m_hasFileBegun = true;
        if (!m_file->begin(m_header)) {
            failFile();
        }
    }
}

void LineRecorder::failFile()
{
    const QString problem =
        QString("%1: %2; recording stops, the unit goes on").arg(m_filePath, m_file->error());
    m_file.reset();
    Q_EMIT fileFailed(problem);
}

void LineRecorder::noteBadPackage()
{
    QString error;
    if (!m_savePath.isEmpty()) {
        if (!save(std::exchange(m_savePath, QString()), &error)) {
            Q_EMIT fileFailed(error);
        }
    }
    Q_EMIT badPackageCame();
}
