#ifndef MAPPING_H
#define MAPPING_H

#include <QtGlobal>

/// One row of a value table: a code of one side and the value of the other.
struct ByteMapping
{
    quint8 from;
    quint8 to;
};

/// A value table, borrowed, and the value of a code that it does not have.
struct ByteTable
{
    const ByteMapping *rows;
    int count;
    quint8 otherwise;
};

template <int Rows>
ByteTable byteTable(const ByteMapping (&rows)[Rows], quint8 otherwise = 0)
{
    const ByteTable table = {rows, Rows, otherwise};
    return table;
}

inline quint8 mapByte(const ByteTable &table, unsigned int from)
{
    for (int i = 0; i < table.count; ++i) {
        if (table.rows[i].from == from) {
            return table.rows[i].to;
        }
    }
    return table.otherwise;
}

/// The value of \a from, \a otherwise when the table has no such code.
template <int Rows>
quint8 mapByte(const ByteMapping (&rows)[Rows], unsigned int from, quint8 otherwise = 0)
{
    return mapByte(byteTable(rows, otherwise), from);
}

#endif // MAPPING_H
