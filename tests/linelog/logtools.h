#ifndef LOGTOOLS_H
#define LOGTOOLS_H

#include "linelogformats.h"
#include "orblog.h"

#include <QBuffer>

namespace LogTools {

struct Log
{
    LineLogHeader header;
    QStringList records; ///< as lines of our own log, without their ends
    QStringList skipped;
    QString error;
    bool hasTimes = true;
};

inline Log read(const QByteArray &file, const LineLogFormats::ReadOptions &options = {},
                const QString &ending = QString())
{
    auto device = std::make_unique<QBuffer>();
    device->setData(file);
    device->open(QIODevice::ReadOnly);
    Log log;
    const auto reader = LineLogFormats::reader(std::move(device), ending, options, &log.error);
    if (reader) {
        for (LineRecord record; reader->next(&record);) {
            log.records << QString::fromUtf8(OrbLog::line(record).trimmed());
        }
        log.header = reader->header();
        log.skipped = reader->skipped().texts();
        log.hasTimes = reader->hasTimes();
        log.error = reader->error();
    }
    return log;
}

struct Written
{
    QByteArray file;
    QStringList losses;
    QStringList changes;
};

/// \a log, one of ours, in another format.
inline Written write(const QByteArray &log, LineLogFormats::Format format,
                     const LineLogFormats::WriteOptions &options = {})
{
    auto in = std::make_unique<QBuffer>();
    in->setData(log);
    in->open(QIODevice::ReadOnly);
    OrbLogReader reader(std::move(in));
    reader.prepare();
    auto out = std::make_unique<QBuffer>();
    QBuffer *const buffer = out.get();
    buffer->open(QIODevice::WriteOnly);
    const auto writer = LineLogFormats::writer(format, std::move(out), options);
    writer->begin(reader.header());
    for (LineRecord record; reader.next(&record);) {
        writer->write(record);
    }
    writer->finish();
    return {buffer->data(), writer->losses().texts(), writer->changes().texts()};
}

} // namespace LogTools

#endif // LOGTOOLS_H
