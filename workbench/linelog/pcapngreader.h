#ifndef PCAPNGREADER_H
#define PCAPNGREADER_H

#include "linelogreader.h"
#include "timestamp.h"

#include <QQueue>

/// Reads packets of any link type for users; other packets are left out and counted.
class PcapngReader : public LineLogReader
{
public:
    explicit PcapngReader(std::unique_ptr<QIODevice> device) : LineLogReader(std::move(device)) {}

protected:
    bool read(LineRecord *record) override;
    qint64 line() const override { return m_block; }

private:
    struct Interface
    {
        quint16 linkType;
        qint64 perSecond; // ticks of its clock
        qint64 offset;    // seconds that are added
    };
    enum Outcome { Took, Ended, Broken };

    struct Option
    {
        quint16 code;
        QByteArray value;
    };

    Outcome readBlock();
    bool readExactly(int size, QByteArray *bytes);
    bool discard(qint64 size);
    Outcome cut();
    void take(quint32 type, const QByteArray &body);
    void takeSection(const QByteArray &body);
    void takeInterface(const QByteArray &body);
    void takePacket(const QByteArray &body);
    void takeComment(const Option &option);
    static TimeStamp stamp(const Interface &interface, quint64 ticks);
    QVector<Option> options(const QByteArray &body, int at) const;
    quint16 u16(const QByteArray &bytes, int at) const;
    quint32 u32(const QByteArray &bytes, int at) const;
    quint64 u64(const QByteArray &bytes, int at) const;

    qint64 m_block = 0;
    bool m_isBigEndian = false;
    QVector<Interface> m_interfaces;
    LogClock m_clock;
    QQueue<LineRecord> m_records;
};

#endif // PCAPNGREADER_H
