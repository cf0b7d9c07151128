#ifndef MAPPING_H
#define MAPPING_H

#include <QtGlobal>

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
        if (table[i].from == from)
            return table[i].to;
    }
    return otherwise;
}

#endif // MAPPING_H
