#ifndef CANDUMP_H
#define CANDUMP_H

#include "linelogwriter.h"
#include "linepackages.h"
#include "textlogreader.h"
#include "timestamp.h"

/// Packages as frames of a CAN bus, as the program candump logs them: the command is the identifier, the data are the
/// package's. docs/line-log.md says what becomes of the rest.
namespace Candump {

/// One line of a log.
struct Line
{
    TimeStamp stamp;
    QByteArray interface; ///< "box"
    quint32 identifier = 0;
    QByteArray data;
    bool isRemote = false; ///< a remote request, which has no data
};

/// Reads "(1436509052.249713) box 021#0500", as `candump -l` and `-L` write, or "  box  021   [2]  05 00", with a time
/// or not, as it writes on a screen. False, with \a read anyhow, when \a line is neither.
bool read(const QByteArray &line, Line *read);

} // namespace Candump

class CandumpReader : public TextLogReader
{
public:
    /// \a format makes the packages into frames again.
    CandumpReader(std::unique_ptr<QIODevice> device, const FrameFormat &format)
        : TextLogReader(std::move(device)), m_format(format)
    {}

protected:
    Outcome take(const QByteArray &line, LineRecord *record) override;

private:
    const FrameFormat &m_format;
    LogClock m_clock;
};

class CandumpWriter : public LineLogWriter
{
public:
    /// The records hold packages of \a format.
    CandumpWriter(std::unique_ptr<QIODevice> device, const FrameFormat &format)
        : LineLogWriter(std::move(device)), m_packages(format, &m_changes)
    {}

protected:
    void putHeader(const LineLogHeader &header) override;
    void putRecord(const LineRecord &record) override;
    void putEnd() override;

private:
    void putPieces();
    void putPiece(const LinePackages::Item &item);

    LinePackages m_packages;
    qint64 m_start = 0; // microseconds since 1970
};

#endif // CANDUMP_H
