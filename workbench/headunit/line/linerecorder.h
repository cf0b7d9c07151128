#ifndef LINERECORDER_H
#define LINERECORDER_H

#include "lineframer.h"
#include "linelogring.h"
#include "linelogwriter.h"
#include "serialtap.h"

#include <QObject>
#include <QTimer>

#include <deque>
#include <memory>

/// Writes down what passes over the unit's serial line: always into a ring in memory, and into a file when
/// one is asked for. It hears the line at the serial tap; where that is not wired it stays empty.
///
/// Records come in the order in which things happened, though up to half a second later: until then a chunk
/// may be the beginning of a package, or bytes that are none. Time 0 is the first thing that became of the
/// line, mostly its opening.
class LineRecorder : public QObject, private SerialTapObserver
{
    Q_OBJECT

public:
    /// Listens from now on; one that is there before the plug-in is loaded hears the line being opened.
    explicit LineRecorder(QObject *parent = nullptr);
    ~LineRecorder() override;

    /// The unit's decoder is of CAN-bus type \a type: it says how packages look and stands in the log's header.
    /// Without a type, or with one whose packages nobody knows, no byte counts as unframed. To be set before
    /// anything is heard.
    void setType(int type);

    /// Writes everything from now on to \a path as well, "-" for standard output; a file of that name is
    /// replaced. False, with one sentence in \a error, when it cannot be opened.
    bool startFile(const QString &path, QString *error);
    /// Writes what is still held back and closes the file; without one nothing happens.
    void stopFile();
    bool isWritingFile() const { return m_file != nullptr; }

    /// Writes the last minute to \a path: whole or, with one sentence in \a error, not at all.
    bool save(const QString &path, QString *error);
    /// Has the last minute saved to \a path by itself, once, when the first bad package comes.
    void saveAtBadPackage(const QString &path) { m_savePath = path; }

    const LineLogRing &ring() const { return m_ring; }

Q_SIGNALS:
    /// The next record of the log.
    void recorded(const LineRecord &record);
    void lineOpened();
    /// A frame with a wrong checksum has come.
    void badPackageCame();
    /// The file takes no more (a full disk): it is closed, once, and the recorder goes on without it. \a
    /// problem is one sentence.
    void fileFailed(const QString &problem);

private:
    void opened(const QString &port, const PortSettings &settings, qint64 at) override;
    void openFailed(const QString &port, int systemError, qint64 at) override;
    void received(const QByteArray &bytes, qint64 at) override;
    void sent(const QByteArray &bytes, qint64 at) override;
    void closed(bool isLost, qint64 at) override;

    qint64 sinceStart(qint64 at);
    void addState(const QString &text, qint64 at);
    void add(const LineRecord &record);
    void drainFramer();
    void decide(int count, LineRecord::Kind kind);
    void passOnDecided();
    void emitPart();
    void keep(const LineRecord &record);
    void writeHeader();
    void failFile();
    void noteBadPackage();

    LineLogHeader m_header;
    qint64 m_start = -1; // of the log, on the tap's clock; -1 before anything was heard
    bool m_wasOpen = false;
    QString m_openFailure; // the last one that stands in the log

    std::unique_ptr<LineFramer> m_framer;
    std::deque<LineRecord> m_pending; // in order; a chunk in front is not decided upon, what follows waits
    LineRecord m_part;                // of the chunk in front what is decided upon; no bytes for none
    QTimer m_patience;
    QTimer m_silence;

    LineLogRing m_ring;
    QString m_savePath;
    QString m_filePath;
    std::unique_ptr<LineLogWriter> m_file;
    bool m_hasFileBegun = false;
};

#endif // LINERECORDER_H
