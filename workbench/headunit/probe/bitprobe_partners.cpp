// Bits that matter only together with another.

#include "bitprobe.h"

// Bits that do nothing by themselves may do something while another is flipped. With each other bit all of them are
// flipped at once, and looked at one by one only where that makes a difference: a pair each would be thousands of
// trials.
void BitProbe::findPartners()
{
    QVector<int> idle;
    for (const Row &row : std::as_const(m_rows)) {
        for (int bit = row.low; row.effects.isEmpty() && bit <= row.high; ++bit) {
            idle << row.byte * Bits + bit;
        }
    }
    QVector<QByteArray> datas;
    for (int bit = 0; !idle.isEmpty() && bit < m_package.n() * Bits; ++bit) {
        QVector<int> others = idle;
        others.removeAll(bit);
        datas << flipped(others << bit);
    }
    const QVector<Effects> all = tryOut(Opposite, datas, Quickly);
    for (int bit = 0; bit < all.size(); ++bit) {
        if (all.at(bit) != m_flipped[Opposite].value(bit)) {
            idle = findPartnersOf(bit, idle);
        }
    }
    splitByPartner();
}

// Bits of a run without effect that have another partner, or none, are a row of their own.
void BitProbe::splitByPartner()
{
    QVector<Row> rows;
    for (const Row &row : std::as_const(m_rows)) {
        Row part = row;
        for (int bit = row.high; row.effects.isEmpty() && bit >= row.low; --bit) {
            const QString partner = m_partners.value(row.byte * Bits + bit);
            if (bit < row.high && partner != part.partner) {
                part.low = bit + 1;
                rows << part;
                part.high = bit;
            }
            part.partner = partner;
        }
        part.low = row.low;
        rows << part;
    }
    m_rows = rows;
}

// Those of \a idle that do nothing beside \a bit either.
QVector<int> BitProbe::findPartnersOf(int bit, const QVector<int> &idle)
{
    QVector<int> others = idle;
    others.removeAll(bit);
    const QVector<Effects> alone =
        tryOut(Opposite, {flipped({bit}), flipped(others + QVector<int>{bit})}, Exactly);
    if (alone.at(0) == alone.at(1)) {
        return idle;
    }
    QVector<QByteArray> datas;
    for (const int other : std::as_const(others)) {
        datas << flipped({other, bit});
    }
    const QVector<Effects> all = tryOut(Opposite, datas, Exactly);
    QVector<int> left = idle;
    for (int i = 0; i < others.size(); ++i) {
        if (all.at(i) != alone.at(0)) {
            left.removeAll(others.at(i));
            m_partners.insert(others.at(i), QString("d[%1].%2").arg(bit / Bits).arg(bit % Bits));
            for (const Effect &effect : difference(alone.at(0), all.at(i))) {
                m_moved << effect.call;
            }
        }
    }
    return left;
}
