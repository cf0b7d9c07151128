#ifndef MAPPING_H
#define MAPPING_H

#include <QByteArray>

/// One row of a value table: a code of one side and the value of the other.
struct ByteMapping
{
    quint8 from;
    quint8 to;
};

/// The value of \a from, \a otherwise when the table has no such code.
template <int Rows>
quint8 mapByte(const ByteMapping (&table)[Rows], unsigned int from, quint8 otherwise = 0)
{
    for (int i = 0; i < Rows; ++i) {
        if (table[i].from == from) {
            return table[i].to;
        }
    }
    return otherwise;
}

/// Every byte of \a codes mapped.
template <int Rows>
QByteArray mapBytes(const ByteMapping (&table)[Rows], QByteArray codes, quint8 otherwise = 0)
{
    for (int i = 0; i < codes.size(); ++i) {
        codes[i] = char(mapByte(table, quint8(codes.at(i)), otherwise));
    }
    return codes;
}

/// Distance levels of boxes that count to four (1 nearest) as radar levels of the unit; any other level is no
/// obstacle.
const ByteMapping FourRadarLevels[] = {{1, 1}, {2, 2}, {3, 4}, {4, 6}};

#endif // MAPPING_H
