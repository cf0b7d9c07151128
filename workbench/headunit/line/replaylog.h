#ifndef REPLAYLOG_H
#define REPLAYLOG_H

#include "linelogformats.h"

/// What of a log is replayed, and how.
struct ReplayOptions
{
    QString log;     ///< path of the file
    QString pattern; ///< see LineLogFormats::ReadOptions
    double speed = 1;
    bool isFast = false; ///< as fast as the unit reads; speed counts for nothing then
    bool loops = false;
    qint64 from = 0; ///< microseconds of the log; what comes before is left out
    qint64 to = -1;  ///< microseconds of the log, -1 for its end
    int untilCommand = -1;
    QString untilCall;           ///< of the plug-in, seen by whoever watches the trace; empty for none
    bool waitsForAnswer = false; ///< each package, for the unit's answer to the one before; at most a second
    bool asJson = false;
};

/// The part of a log that goes to the unit, chunk by chunk, once or over and over. No more of the log is held
/// than one record.
class ReplayLog
{
public:
    enum Result {
        Chunk,
        LineChange, ///< the logged line was lost, or came back
        Later,      ///< much had to be passed over: ask again, and let others have their turn in between
        StartOver,  ///< the log begins anew: its times count from here
        End
    };

    /// \a format: how packages look, for logs that hold packages only; null for the usual one.
    ReplayLog(const ReplayOptions &options, const FrameFormat *format);

    /// The CAN-bus type that the log of \a options says it came from: 0 when it does not say, -1 when it cannot be
    /// read, which open() tells of.
    static int typeOf(const ReplayOptions &options);

    /// False, with one sentence in \a error, when it cannot be read.
    bool open(QString *error);

    /// The next bytes for the unit, or what became of the line; \a record is unchanged unless it answers Chunk or
    /// LineChange.
    Result next(LineRecord *record);

    /// How much of the file was read, 0 to 1.
    double progress() const;

    /// What could not be read, in the first time through.
    const LineLogCounts &unread() const { return m_unread; }
    /// Why reading ended before the log did; empty while all is well.
    QString error() const { return m_error; }

private:
    Result atEnd();

    const ReplayOptions m_options;
    LineLogFormats::ReadOptions m_readOptions;
    std::unique_ptr<LineLogReader> m_reader;
    LineLogCounts m_unread;
    QString m_error;
    bool m_isFirstTime = true;
    bool m_hasChunks = false;
};

#endif // REPLAYLOG_H
