#ifndef PACKAGEVIEW_H
#define PACKAGEVIEW_H

#include <QByteArray>

/// Bounds-safe view of one package's data bytes. A byte past the package reads as 0, whatever length the
/// package claims; the byte right behind the data is the checksum and stays readable. The view borrows the
/// package and must not outlive it.
class PackageView
{
public:
    /// \a commandAt, \a dataAt: indexes of the command byte and of d(0) in \a package; \a n: number of data
    /// bytes that the package claims, cut to what it holds.
    PackageView(const QByteArray &package, int commandAt, int dataAt, int n)
        : m_bytes(reinterpret_cast<const uchar *>(package.constData()))
        , m_size(package.size())
        , m_dataAt(dataAt)
        , m_command(commandAt < m_size ? m_bytes[commandAt] : 0)
        , m_n(qBound(0, n, qMax(0, m_size - dataAt)))
    {}

    /// The \a n data bytes at \a data of a package with command \a command, as an adapter hands them on.
    PackageView(uchar command, const uchar *data, int n)
        : m_bytes(data), m_size(qMax(0, n)), m_dataAt(0), m_command(command), m_n(m_size)
    {}

    uchar command() const { return m_command; }

    /// Number of data bytes.
    int n() const { return m_n; }

    /// Data byte \a i, 0..255.
    uchar d(int i) const
    {
        const int at = m_dataAt + i;
        return i >= 0 && at < m_size ? m_bytes[at] : 0;
    }

    /// Bit \a b (7 high, 0 low) of data byte \a i.
    bool bit(int i, int b) const { return (d(i) >> b) & 1; }

    /// Bits \a high down to \a low of data byte \a i as a number.
    int bits(int i, int high, int low) const { return (d(i) >> low) & ((1 << (high - low + 1)) - 1); }

    /// 16- and 32-bit numbers that begin at data byte \a i.
    quint16 u16le(int i) const { return quint16(d(i) | d(i + 1) << 8); }
    quint16 u16be(int i) const { return quint16(d(i) << 8 | d(i + 1)); }
    qint16 s16le(int i) const { return qint16(u16le(i)); }
    quint32 u32le(int i) const { return u16le(i) | quint32(u16le(i + 2)) << 16; }
    quint32 u32be(int i) const { return quint32(u16be(i)) << 16 | u16be(i + 2); }

    /// The data bytes, of which n() may be read; valid as long as the package.
    const uchar *data() const { return m_bytes + qMin(m_dataAt, m_size); }

    /// \a count data bytes from \a i on, as far as the data reaches (the checksum does not count).
    QByteArray bytes(int i, int count) const
    {
        const int from = qBound(0, i, m_n);
        return QByteArray(reinterpret_cast<const char *>(data()) + from, qBound(0, count, m_n - from));
    }
    QByteArray bytes() const { return bytes(0, m_n); }

private:
    const uchar *m_bytes;
    int m_size;
    int m_dataAt;
    uchar m_command;
    int m_n;
};

#endif // PACKAGEVIEW_H
