#ifndef PACKAGECENSUS_H
#define PACKAGECENSUS_H

#include "lineframer.h"

#include <QSet>
#include <QVector>

/// The packages in what a box has said, seen through one frame.
class PackageCensus
{
public:
    /// Different packages that are kept; of a log with more the first ones.
    static constexpr int MostPackages = 400;

    explicit PackageCensus(const FrameFormat &format) : m_framer(format) {}

    /// Takes \a bytes that came at \a microseconds, which is not before the last ones.
    void add(const QByteArray &bytes, qint64 microseconds);
    /// Nothing more comes.
    void finish();

    const FrameFormat &format() const { return m_framer.format(); }
    /// The different packages, in the order in which they first came.
    const QVector<QByteArray> &packages() const { return m_packages; }
    qint64 packageCount() const { return m_packageCount; }
    qint64 badCount() const { return m_badCount; }
    /// Packages that came twice within 150 ms: a box says again what nobody has acknowledged.
    qint64 repetitions() const { return m_repetitions; }
    qint64 byteCount() const { return m_bytes; }
    /// Part of all bytes that belongs to packages and answers, 0 to 1; 0 of none.
    double framed() const { return m_bytes == 0 ? 0 : double(m_framedBytes) / double(m_bytes); }

private:
    void drain();

    LineFramer m_framer;
    QVector<QByteArray> m_packages;
    QSet<QByteArray> m_seen;
    qint64 m_packageCount = 0;
    qint64 m_badCount = 0;
    qint64 m_repetitions = 0;
    LinePiece m_last; // package
    qint64 m_bytes = 0;
    qint64 m_framedBytes = 0;
};

#endif // PACKAGECENSUS_H
