#ifndef LINELOGREADER_H
#define LINELOGREADER_H

#include "linelogcounts.h"
#include "linerecord.h"

#include <QIODevice>

#include <memory>

/// Reads a log of a serial line, record by record: no more of it is held than one line or block. Nothing that a file
/// says about itself is trusted; what cannot be read is left out, counted and named, and reading goes on behind it.
class LineLogReader
{
public:
    virtual ~LineLogReader() = default;
    LineLogReader(const LineLogReader &) = delete;
    LineLogReader &operator=(const LineLogReader &) = delete;

    /// The next record; false at the end, where \a record is unchanged. \a record may not be null.
    bool next(LineRecord *record);

    /// Reads up to the first record, which next() gives then, so that header() is whole.
    void prepare();

    /// What the log says about the line. It is whole once prepare() or next() was called.
    const LineLogHeader &header() const { return m_header; }

    /// What was left out or changed so far, with the numbers of the lines.
    const LineLogCounts &skipped() const { return m_skipped; }

    /// Why the end is not the end of the file: the device could not be read. Empty while all is well.
    QString error() const { return m_error; }

    /// False when the log has no times, and those of the records are a guess.
    bool hasTimes() const { return m_hasTimes; }

    /// How much of the device was read, in bytes, for a bar of progress.
    qint64 position() const { return m_device->pos() - waiting(); }
    /// Size of the device in bytes; 0 when it is not known.
    qint64 size() const { return m_device->isSequential() ? 0 : m_device->size(); }

protected:
    /// Takes \a device, which is open for reading, as its own.
    explicit LineLogReader(std::unique_ptr<QIODevice> device) : m_device(std::move(device)) {}

    /// As next(), but with times in any order, and a State's text as it stands in the file. Another format's reader
    /// implements this.
    virtual bool read(LineRecord *record) = 0;
    /// Number of the line that read() has read last, from 1.
    virtual qint64 line() const = 0;
    /// Bytes that were read from the device and not yet looked at.
    virtual qint64 waiting() const { return 0; }

    QIODevice *device() const { return m_device.get(); }
    void skip(const QString &what, qint64 count = 1) { m_skipped.add(what, line(), count); }

    LineLogHeader m_header;
    LineLogCounts m_skipped;
    QString m_error;
    bool m_hasTimes = true;

private:
    std::unique_ptr<QIODevice> m_device;
    LineRecord m_first;
    bool m_hasFirst = false;
    qint64 m_last = 0; // time of the last record, in microseconds
};

#endif // LINELOGREADER_H
