#include "csvwriter.h"

#include "logtext.h"

#include <QStringList>

namespace {

// Quoted where a table's program would take it apart, or for a formula.
QByteArray cell(const QString &text)
{
    QString value = text;
    if (!value.isEmpty() && QString("=+@\t\r").contains(value.at(0))) {
        value.prepend('\'');
    }
    const bool needsQuotes = value.contains(',') || value.contains('"') || value.contains('\n');
    return (needsQuotes ? '"' + value.replace('"', "\"\"") + '"' : value).toUtf8();
}

} // namespace

void CsvWriter::putHeader(const LineLogHeader &)
{
    put("seconds,direction,command,meaning,name,value\n");
}

void CsvWriter::putRecord(const LineRecord &record)
{
    m_packages.feed(record);
    putPieces();
}

void CsvWriter::putEnd()
{
    m_packages.finish();
    putPieces();
}

void CsvWriter::putPieces()
{
    for (LinePackages::Item item; m_packages.next(&item);) {
        if (item.piece == LinePiece::Package) {
            putPackage(item.record);
        } else if (item.record.kind == LineRecord::State) {
            m_losses.add("states of the line");
        } else if (item.piece == LinePiece::Answer) {
            m_changes.add("answers to packages, which have no values");
        } else {
            m_losses.add("bytes that are no package", 0, item.record.bytes.size());
        }
    }
}

void CsvWriter::putPackage(const LineRecord &record)
{
    const BoxPackage package = m_packages.format().package(record.bytes);
    const LineValueSource::Meaning meaning = m_values->meaning(package, record.isTowardsUnit());
    if (meaning.name.isEmpty()) {
        m_losses.add("packages of unknown commands, whose values have no names");
    }
    const QByteArray head =
        LogText::seconds(record.microseconds) + (record.isTowardsUnit() ? ",box,0x" : ",unit,0x") +
        QByteArray::number(package.command, 16).rightJustified(2, '0') + ',' + cell(meaning.name) + ',';
    if (meaning.values.isEmpty()) {
        put(head + ",\n");
    }
    for (const LineValueSource::Value &value : meaning.values) {
        put(head + cell(value.name) + ',' + cell(value.value) + '\n');
    }
}
