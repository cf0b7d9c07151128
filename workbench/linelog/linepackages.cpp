#include "linepackages.h"

void LinePackages::feed(const LineRecord &record)
{
    if (record.kind == LineRecord::State) {
        finish(); // no package goes on behind a lost line
        append(record, LinePiece::Skipped);
        return;
    }
    const bool isTowardsUnit = record.isTowardsUnit();
    LineFramer &framer = isTowardsUnit ? m_toUnit : m_toBox;
    LineFramer &other = isTowardsUnit ? m_toBox : m_toUnit;
    other.feed({}, record.microseconds);
    fetch(&other, isTowardsUnit ? LineRecord::ToBox : LineRecord::ToUnit);
    if (record.kind == LineRecord::Unframed) {
        framer.giveUp();
        fetch(&framer, LineRecord::ToUnit);
        append(record, LinePiece::Skipped);
        return;
    }
    const int before = int(m_items.size());
    const bool isBegun = framer.waiting() > 0;
    framer.feed(record.bytes, record.microseconds);
    fetch(&framer, record.kind);
    const bool isOne = !isBegun && m_items.size() == before + 1 &&
                       m_items.constLast().record.bytes.size() == record.bytes.size();
    if (!isOne && m_changes) {
        m_changes->add("chunks that were not one package each, cut or joined");
    }
}

void LinePackages::finish()
{
    m_toUnit.giveUp();
    fetch(&m_toUnit, LineRecord::ToUnit);
    m_toBox.giveUp();
    fetch(&m_toBox, LineRecord::ToBox);
}

bool LinePackages::next(Item *item)
{
    if (m_items.isEmpty()) {
        return false;
    }
    *item = m_items.dequeue();
    return true;
}

const FrameFormat &LinePackages::formatOf(const QVector<LineRecord> &records)
{
    const FrameFormat *best = &FrameFormat::raise();
    qint64 most = 0;
    for (const FrameFormat *format : {&FrameFormat::raise(), &FrameFormat::xinHang()}) {
        LinePackages packages(*format);
        qint64 bytes = 0;
        for (const LineRecord &record : records) {
            packages.feed(record);
            for (Item item; packages.next(&item);) {
                bytes += item.piece == LinePiece::Package ? item.record.bytes.size() : 0;
            }
        }
        if (bytes > most) {
            best = format;
            most = bytes;
        }
    }
    return *best;
}

void LinePackages::fetch(LineFramer *framer, LineRecord::Kind kind)
{
    for (LinePiece piece; framer->next(&piece);) {
        if (piece.kind != LinePiece::BadPackage) {
            append({piece.microseconds, kind, piece.bytes, QString()}, piece.kind);
        }
    }
}

void LinePackages::append(const LineRecord &record, LinePiece::Kind piece)
{
    m_items.enqueue({record, piece});
    m_last = qMax(m_last, record.microseconds);
    m_items.last().record.microseconds = m_last;
}
