#include "hostilelog.h"

#include "linelogformats.h"
#include "linelogring.h"
#include "linevaluesource.h"

#include <QBuffer>
#include <QVector>

#include <cstdio>
#include <cstdlib>

namespace {

const char Pattern[] = "^(?<time>[\\d:.]+)?\\s*(?<dir>\\S)?\\s*\\[(?<hex>.*)\\]";

class AnyValues : public LineValueSource
{
public:
    Meaning meaning(const BoxPackage &package, bool) override
    {
        return {QString::number(package.command), {{"data", QString::fromLatin1(package.data)}}};
    }
};

void expect(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

struct Log
{
    LineLogHeader header;
    QVector<LineRecord> records;
};

bool readAll(const QByteArray &file, const QString &pattern, Log *log)
{
    auto device = std::make_unique<QBuffer>();
    device->setData(file);
    device->open(QIODevice::ReadOnly);
    LineLogFormats::ReadOptions options;
    options.pattern = pattern;
    QString error;
    const auto reader = LineLogFormats::reader(std::move(device), QString(), options, &error);
    expect(reader || !error.isEmpty(), "a refusal without a reason");
    if (!reader) {
        return false;
    }
    LineRecord record;
    qint64 last = 0;
    while (reader->next(&record)) {
        expect(record.microseconds >= last, "a time that runs backwards");
        expect(record.bytes.isEmpty() == (record.kind == LineRecord::State), "a record without bytes");
        expect(record.bytes.size() <= 65536, "a record without bounds");
        last = record.microseconds;
        log->records << record;
    }
    log->header = reader->header();
    return true;
}

QByteArray written(const Log &log, LineLogFormats::Format format)
{
    auto device = std::make_unique<QBuffer>();
    QBuffer *const buffer = device.get();
    buffer->open(QIODevice::WriteOnly);
    AnyValues values;
    LineLogFormats::WriteOptions options;
    options.values = &values;
    const auto writer = LineLogFormats::writer(format, std::move(device), options);
    bool ok = writer->begin(log.header);
    for (const LineRecord &record : log.records) {
        ok = ok && writer->write(record);
    }
    expect(ok && writer->finish(), "a buffer takes everything");
    return buffer->data();
}

} // namespace

int HostileLog::read(const QByteArray &file, bool withPattern)
{
    Log log;
    if (!readAll(file, withPattern ? QString(Pattern) : QString(), &log)) {
        return 0;
    }
    for (const auto format :
         {LineLogFormats::Candump, LineLogFormats::Pcapng, LineLogFormats::HexLines, LineLogFormats::Csv}) {
        const QByteArray copy = written(log, format);
        Log again;
        if (format != LineLogFormats::Csv) {
            readAll(copy, QString(), &again);
        }
    }
    Log again;
    readAll(written(log, LineLogFormats::OrbLogText), QString(), &again);
    expect(again.records == log.records, "our own format gives back something else");
    LineLogRing ring;
    for (const LineRecord &record : log.records) {
        ring.add(record);
    }
    expect(ring.memory() <= LineLogRing::MostMemory, "a ring that grows");
    return int(log.records.size());
}
