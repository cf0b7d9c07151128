#include "linelogring.h"

#include "orblog.h"

#include <QSaveFile>

namespace {

// What an array or a text takes besides its content, as the allocator rounds it.
const qint64 AllocationOverhead = 48;

qint64 memoryOf(const LineRecord &record)
{
    return qint64(sizeof record) + AllocationOverhead + record.bytes.capacity() +
           qint64(record.text.capacity()) * qint64(sizeof(QChar));
}

} // namespace

void LineLogRing::add(const LineRecord &record)
{
    LineRecord kept = record;
    kept.bytes.squeeze(); // a chunk may have been read into a large array
    m_memory += memoryOf(kept);
    m_records.push_back(kept);
    while (m_memory > MostMemory || m_records.front().microseconds < record.microseconds - Span) {
        m_memory -= memoryOf(m_records.front());
        m_records.pop_front();
        if (m_records.empty()) {
            break;
        }
    }
}

void LineLogRing::clear()
{
    m_records.clear();
    m_memory = 0;
}

bool LineLogRing::save(const QString &path, QString *error) const
{
    QSaveFile file(path);
    bool ok = file.open(QIODevice::WriteOnly) && file.write(OrbLog::lines(m_header)) >= 0;
    for (auto record = m_records.begin(); ok && record != m_records.end(); ++record) {
        ok = file.write(OrbLog::line(*record)) >= 0;
    }
    ok = ok && file.commit();
    if (!ok) {
        *error = QString("%1: %2").arg(path, file.errorString());
    }
    return ok;
}
