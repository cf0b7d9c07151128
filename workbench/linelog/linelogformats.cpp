#include "linelogformats.h"

#include "boxlog.h"
#include "candump.h"
#include "csvwriter.h"
#include "hexline.h"
#include "hexlines.h"
#include "orblog.h"
#include "pcapng.h"
#include "pcapngreader.h"
#include "pcapngwriter.h"

#include <QBuffer>
#include <QFile>

namespace {

const int LookedAt = 64 * 1024; // bytes from the start that tell a format
const int LookedAtLines = 200;

const struct
{
    const char *ending;
    LineLogFormats::Format format;
} Endings[] = {
    {".orblog", LineLogFormats::OrbLogText}, {".candump", LineLogFormats::Candump},
    {".can", LineLogFormats::Candump},       {".log", LineLogFormats::Candump},
    {".pcapng", LineLogFormats::Pcapng},     {".hex", LineLogFormats::HexLines},
    {".txt", LineLogFormats::HexLines},      {".csv", LineLogFormats::Csv},
};

bool isLineOf(LineLogFormats::Format format, const QByteArray &line)
{
    LineRecord record;
    TimeStamp stamp;
    Candump::Line frame;
    switch (format) {
    case LineLogFormats::OrbLogText:
        return OrbLog::read(line, &record);
    case LineLogFormats::BoxLog:
        return BoxLogReader::readLine(line, &record);
    case LineLogFormats::Candump:
        return Candump::read(line, &frame);
    case LineLogFormats::HexLines:
        return HexLine::read(line, &stamp, &record);
    default:
        return false;
    }
}

// The format that reads most of the first lines, in the order of how much it asks of a line; that of the ending when it
// reads none.
LineLogFormats::Format formatOfLines(const QByteArray &beginning)
{
    QByteArray copy = beginning;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    LineSource source(&buffer);
    const LineLogFormats::Format formats[] = {LineLogFormats::OrbLogText, LineLogFormats::BoxLog,
                                              LineLogFormats::Candump, LineLogFormats::HexLines};
    int counts[4] = {};
    QByteArray line;
    for (int i = 0; i < LookedAtLines && source.next(&line) != LineSource::End; ++i) {
        for (int format = 0; format < 4; ++format) {
            counts[format] += isLineOf(formats[format], line.trimmed()) ? 1 : 0;
        }
        line.clear();
    }
    const int *const best = std::max_element(counts, counts + 4);
    return *best > 0 ? formats[best - counts] : LineLogFormats::None;
}

bool isBinary(const QByteArray &beginning)
{
    const bool isWide = beginning.startsWith("\xFF\xFE") || beginning.startsWith("\xFE\xFF");
    return !isWide && beginning.contains('\0');
}

// None, with the reason, for what is no log.
LineLogFormats::Format formatOf(const QByteArray &beginning, LineLogFormats::Format ending, QString *error)
{
    const QByteArray magic = beginning.left(4);
    if (beginning.isEmpty()) {
        *error = "the file is empty";
    } else if (magic == "\x0A\x0D\x0D\x0A") {
        return LineLogFormats::Pcapng;
    } else if (magic == "\xD4\xC3\xB2\xA1" || magic == "\xA1\xB2\xC3\xD4" || magic == "\x4D\x3C\xB2\xA1") {
        *error = "this is an old pcap file; `editcap -F pcapng IN OUT` makes a pcapng file of it";
    } else if (isBinary(beginning)) {
        *error = "this is no log, but a binary file";
    } else if (OrbLog::version(beginning.left(beginning.indexOf('\n'))) > OrbLog::Version) {
        *error = "this log is of a later version than this program knows";
    } else if (OrbLog::version(beginning.left(beginning.indexOf('\n'))) == OrbLog::Version) {
        return LineLogFormats::OrbLogText;
    } else {
        const LineLogFormats::Format format = formatOfLines(beginning);
        if (format != LineLogFormats::None || ending == LineLogFormats::OrbLogText) {
            return format != LineLogFormats::None ? format : ending;
        }
        *error = "no line of it looks like a log of a serial line";
    }
    return LineLogFormats::None;
}

} // namespace

LineLogFormats::Format LineLogFormats::fromEnding(const QString &path)
{
    for (const auto &row : Endings) {
        if (path.endsWith(QLatin1String(row.ending), Qt::CaseInsensitive)) {
            return row.format;
        }
    }
    return None;
}

QStringList LineLogFormats::endings()
{
    QStringList endings;
    for (const auto &row : Endings) {
        endings << row.ending;
    }
    return endings;
}

QString LineLogFormats::patternComplaint(const QString &pattern)
{
    const QRegularExpression expression(pattern);
    if (!expression.isValid()) {
        return QString("the pattern is wrong: %1").arg(expression.errorString());
    }
    return pattern.isEmpty() || expression.namedCaptureGroups().contains("hex")
               ? QString()
               : QString("the pattern has no group named hex: (?<hex>...)");
}

std::unique_ptr<LineLogReader> LineLogFormats::reader(const QString &path, const ReadOptions &options,
                                                      QString *error)
{
    auto file = std::make_unique<QFile>(path);
    std::unique_ptr<LineLogReader> reader;
    if (file->open(QIODevice::ReadOnly)) {
        reader = LineLogFormats::reader(std::move(file), path, options, error);
    } else {
        *error = file->errorString();
    }
    if (!reader) {
        error->prepend(path + ": ");
    }
    return reader;
}

std::unique_ptr<LineLogReader> LineLogFormats::reader(std::unique_ptr<QIODevice> device,
                                                      const QString &ending, const ReadOptions &options,
                                                      QString *error)
{
    const QByteArray beginning = device->peek(LookedAt);
    std::unique_ptr<LineLogReader> reader;
    *error = patternComplaint(options.pattern);
    if (!error->isEmpty()) {
        return nullptr;
    }
    if (!options.pattern.isEmpty()) {
        reader = std::make_unique<PatternReader>(std::move(device), QRegularExpression(options.pattern));
    } else {
        switch (formatOf(beginning, fromEnding(ending), error)) {
        case OrbLogText:
            reader = std::make_unique<OrbLogReader>(std::move(device));
            break;
        case BoxLog:
            reader = std::make_unique<BoxLogReader>(std::move(device));
            break;
        case Candump:
            reader = std::make_unique<CandumpReader>(std::move(device), *options.frame);
            break;
        case Pcapng:
            reader = std::make_unique<PcapngReader>(std::move(device));
            break;
        case HexLines:
            reader = std::make_unique<HexLinesReader>(std::move(device));
            break;
        case Csv:
        case None:
            return nullptr;
        }
    }
    reader->prepare();
    return reader;
}

std::unique_ptr<LineLogWriter> LineLogFormats::writer(Format format, std::unique_ptr<QIODevice> device,
                                                      const WriteOptions &options)
{
    switch (format) {
    case OrbLogText:
        return std::make_unique<OrbLogWriter>(std::move(device));
    case Candump:
        return std::make_unique<CandumpWriter>(std::move(device), *options.frame);
    case Pcapng:
        return std::make_unique<PcapngWriter>(std::move(device), *options.frame);
    case HexLines:
        return std::make_unique<HexLinesWriter>(std::move(device));
    case Csv:
        return options.values ? std::make_unique<CsvWriter>(std::move(device), *options.frame, options.values)
                              : nullptr;
    case BoxLog:
    case None:
        break;
    }
    return nullptr;
}
