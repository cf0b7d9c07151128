#include "linelogcounts.h"

#include <QStringList>

namespace {

const int MostPlaces = 8;

QString places(const LineLogCounts::Entry &entry)
{
    QStringList numbers;
    for (const qint64 line : entry.lines) {
        numbers << QString::number(line);
    }
    if (entry.count > entry.lines.size()) {
        numbers << "...";
    }
    return QString(entry.count == 1 ? " (line %1)" : " (lines %1)").arg(numbers.join(", "));
}

} // namespace

void LineLogCounts::add(const QString &what, qint64 line, qint64 count)
{
    if (count <= 0) {
        return;
    }
    int at = 0;
    while (at < m_entries.size() && m_entries.at(at).what != what) {
        ++at;
    }
    if (at == m_entries.size()) {
        m_entries.append({what, 0, {}});
    }
    Entry &entry = m_entries[at];
    entry.count += count;
    if (line > 0 && entry.lines.size() < MostPlaces) {
        entry.lines << line;
    }
}

qint64 LineLogCounts::total() const
{
    qint64 sum = 0;
    for (const Entry &entry : m_entries) {
        sum += entry.count;
    }
    return sum;
}

qint64 LineLogCounts::of(const QString &what) const
{
    for (const Entry &entry : m_entries) {
        if (entry.what == what) {
            return entry.count;
        }
    }
    return 0;
}

QStringList LineLogCounts::texts() const
{
    QStringList texts;
    for (const Entry &entry : m_entries) {
        texts << QString("%1 %2").arg(entry.count).arg(entry.what) +
                     (entry.lines.isEmpty() ? QString() : places(entry));
    }
    return texts;
}
