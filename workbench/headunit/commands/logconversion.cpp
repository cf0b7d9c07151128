#include "logconversion.h"

#include "boxcatalog.h"
#include "linepackages.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QSaveFile>

namespace {

const int MostAhead = 1000;            // records from which the frame is told
const int MostBytesAhead = 256 * 1024; // of them

QJsonArray toJson(const LineLogCounts &counts)
{
    QJsonArray list;
    for (const LineLogCounts::Entry &entry : counts.entries()) {
        QJsonArray lines;
        for (const qint64 line : entry.lines) {
            lines << double(line);
        }
        list << QJsonObject{{"what", entry.what}, {"count", double(entry.count)}, {"lines", lines}};
    }
    return list;
}

QString typeText(int type)
{
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (row.type == type) {
            return QString("%1 %2").arg(type).arg(row.className);
        }
    }
    return QString();
}

// The number of "7 CanBus_Raise_Honda", 0 for none.
int typeOf(const LineLogHeader &header)
{
    for (const QString &word : header.type.split(' ')) {
        if (const int type = BoxCatalog::typeFromText(word)) {
            return type;
        }
    }
    return 0;
}

} // namespace

LogConversion::Result LogConversion::run(const Options &options)
{
    m_options = options;
    const LineLogFormats::Format format = LineLogFormats::fromEnding(options.out);
    if (format == LineLogFormats::None) {
        m_error = QString("%1: OUT ends in one of %2").arg(options.out, LineLogFormats::endings().join(' '));
        return WrongUsage;
    }
    if (QFileInfo(options.in).canonicalFilePath() == QFileInfo(options.out).canonicalFilePath() &&
        QFileInfo::exists(options.in)) {
        m_error = QString("%1 would become itself").arg(options.in);
        return WrongUsage;
    }
    m_error = LineLogFormats::patternComplaint(options.pattern);
    if (!m_error.isEmpty()) {
        return WrongUsage;
    }
    LineLogFormats::ReadOptions reading;
    reading.pattern = options.pattern;
    reading.frame = options.frame ? options.frame : reading.frame;
    m_type = options.type;
    QString error;
    if (!options.frame && m_type != 0) {
        const auto values = PackageValues::create(m_type, &error);
        reading.frame = values ? &values->format() : reading.frame;
    }
    m_reader = LineLogFormats::reader(options.in, reading, &m_error);
    if (!m_reader) {
        return FoundSomething;
    }
    m_type = m_type != 0 ? m_type : typeOf(m_reader->header());
    m_values = PackageValues::create(m_type, &error);
    if (format == LineLogFormats::Csv && !m_values) {
        m_error = m_type != 0 ? error : "values have names only for a type: --can-bus-type says which";
        return WrongUsage;
    }
    lookAhead();
    return write(format) ? Fine : FoundSomething;
}

// How packages look: as told, as those of the type do, or as most of the first ones do.
void LogConversion::lookAhead()
{
    m_frame = m_options.frame;
    if (!m_frame && m_values) {
        m_frame = &m_values->format();
    }
    int bytes = 0;
    for (LineRecord record;
         !m_frame && m_beginning.size() < MostAhead && bytes < MostBytesAhead && m_reader->next(&record);) {
        m_beginning << record;
        bytes += int(record.bytes.size());
    }
    if (!m_frame) {
        m_frame = &LinePackages::formatOf(m_beginning);
    }
}

bool LogConversion::write(LineLogFormats::Format format)
{
    auto device = std::make_unique<QSaveFile>(m_options.out);
    QSaveFile *const file = device.get();
    if (!file->open(QIODevice::WriteOnly)) {
        m_error = QString("%1: %2").arg(m_options.out, file->errorString());
        return false;
    }
    m_writer = LineLogFormats::writer(format, std::move(device), {m_frame, m_values.get()});
    LineLogHeader header = m_reader->header();
    if (header.type.isEmpty() && m_options.type != 0) {
        header.type = typeText(m_options.type);
    }
    bool ok = m_writer->begin(header);
    for (const LineRecord &record : qAsConst(m_beginning)) {
        ok = ok && m_writer->write(record);
    }
    m_records = m_beginning.size();
    for (LineRecord record; ok && m_reader->next(&record); ++m_records) {
        ok = m_writer->write(record);
    }
    ok = m_writer->finish() && ok;
    if (!ok || !file->commit()) {
        m_error = QString("%1: %2").arg(m_options.out, ok ? file->errorString() : m_writer->error());
    } else if (!m_reader->error().isEmpty()) {
        m_error = QString("%1: %2").arg(m_options.in, m_reader->error());
    } else if (m_records == 0) {
        m_error = QString("%1 holds no record").arg(m_options.in);
    }
    return m_error.isEmpty() && m_reader->skipped().isEmpty() && m_writer->losses().isEmpty();
}

QStringList LogConversion::texts() const
{
    QStringList texts;
    if (!m_writer) {
        return texts;
    }
    texts << QString("%1 records").arg(m_records);
    if (!m_reader->hasTimes()) {
        texts << "the log has no times: records are 50 ms apart";
    }
    for (const QString &text : m_reader->skipped().texts()) {
        texts << "not read: " + text;
    }
    for (const QString &text : m_writer->losses().texts()) {
        texts << "lost: " + text;
    }
    for (const QString &text : m_writer->changes().texts()) {
        texts << "changed: " + text;
    }
    return texts;
}

QJsonObject LogConversion::json() const
{
    QJsonObject object{{"in", m_options.in}, {"out", m_options.out}};
    if (!m_error.isEmpty()) {
        object.insert("error", m_error);
    }
    if (m_writer) {
        object.insert("records", double(m_records));
        object.insert("frame", m_frame->name);
        object.insert("type", m_type);
        object.insert("has-times", m_reader->hasTimes());
        object.insert("not-read", toJson(m_reader->skipped()));
        object.insert("lost", toJson(m_writer->losses()));
        object.insert("changed", toJson(m_writer->changes()));
    }
    return object;
}
