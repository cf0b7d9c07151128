#ifndef LINELOGWRITER_H
#define LINELOGWRITER_H

#include "linelogcounts.h"
#include "linerecord.h"

#include <QIODevice>

#include <memory>

/// Writes a log of a serial line, record by record. What a format has no place for is left out, counted and named.
class LineLogWriter
{
public:
    virtual ~LineLogWriter() = default;
    LineLogWriter(const LineLogWriter &) = delete;
    LineLogWriter &operator=(const LineLogWriter &) = delete;

    /// Begins the log; to be called once, before write(). False when the device takes no more; error() says why.
    bool begin(const LineLogHeader &header);
    /// Adds \a record, whose time is not before the last one's. False when the device takes no more; nothing further is
    /// written then.
    bool write(const LineRecord &record);
    /// Writes what is still held back; to be called once, last. False as for write().
    bool finish();

    /// What was left out.
    const LineLogCounts &losses() const { return m_losses; }
    /// What stands in the log in another way than it came, with nothing lost: chunks cut into packages.
    const LineLogCounts &changes() const { return m_changes; }

    /// Why the log could not be written; empty while all is well.
    QString error() const { return m_error; }

protected:
    /// Takes \a device, which is open for writing, as its own.
    explicit LineLogWriter(std::unique_ptr<QIODevice> device) : m_device(std::move(device)) {}

    /// Another format's writer implements these with put().
    virtual void putHeader(const LineLogHeader &header) = 0;
    virtual void putRecord(const LineRecord &record) = 0;
    virtual void putEnd() {}

    /// Writes \a bytes; does nothing once the device has failed.
    void put(const QByteArray &bytes);

    LineLogCounts m_losses;
    LineLogCounts m_changes;

private:
    std::unique_ptr<QIODevice> m_device;
    QString m_error;
};

#endif // LINELOGWRITER_H
