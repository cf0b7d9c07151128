#ifndef PCAPNGWRITER_H
#define PCAPNGWRITER_H

#include "linelogwriter.h"
#include "linepackages.h"

/// Writes packages as packets.
class PcapngWriter : public LineLogWriter
{
public:
    /// The records hold packages of \a format.
    PcapngWriter(std::unique_ptr<QIODevice> device, const FrameFormat &format)
        : LineLogWriter(std::move(device)), m_packages(format, &m_changes)
    {}

protected:
    void putHeader(const LineLogHeader &header) override;
    void putRecord(const LineRecord &record) override;
    void putEnd() override;

private:
    void putPieces();
    void putPacket(const LineRecord &record);

    LinePackages m_packages;
    QByteArray m_states; // lines that wait for a packet
    qint64 m_start = 0;  // microseconds since 1970
};

#endif // PCAPNGWRITER_H
