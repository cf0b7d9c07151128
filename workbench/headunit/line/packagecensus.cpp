#include "packagecensus.h"

namespace {

const qint64 RepetitionTime = 150000; // us

} // namespace

void PackageCensus::add(const QByteArray &bytes, qint64 microseconds)
{
    m_bytes += bytes.size();
    m_framer.feed(bytes, microseconds);
    drain();
}

void PackageCensus::finish()
{
    m_framer.giveUp();
    drain();
}

void PackageCensus::drain()
{
    for (LinePiece piece; m_framer.next(&piece);) {
        const bool isFramed = piece.kind == LinePiece::Package || piece.kind == LinePiece::Answer;
        m_framedBytes += isFramed ? piece.bytes.size() : 0;
        m_badCount += piece.kind == LinePiece::BadPackage ? 1 : 0;
        if (piece.kind != LinePiece::Package) {
            continue;
        }
        ++m_packageCount;
        m_repetitions +=
            piece.bytes == m_last.bytes && piece.microseconds - m_last.microseconds < RepetitionTime ? 1 : 0;
        m_last = piece;
        if (m_packages.size() < MostPackages && !m_seen.contains(piece.bytes)) {
            m_seen.insert(piece.bytes);
            m_packages << piece.bytes;
        }
    }
}
