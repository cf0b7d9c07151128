#ifndef LINELOGFORMATS_H
#define LINELOGFORMATS_H

#include "frameformat.h"
#include "linelogreader.h"
#include "linelogwriter.h"

#include <QStringList>

class LineValueSource;

/// Which log is of which format, and who reads and writes it.
namespace LineLogFormats {

enum Format {
    None,
    OrbLogText, ///< *.orblog
    BoxLog,     ///< what `decoderbox --log` writes; read only
    Candump,    ///< *.candump, *.can
    Pcapng,     ///< *.pcapng
    HexLines,   ///< *.hex, *.txt and anything else that has hexadecimal bytes in lines
    Csv         ///< *.csv; write only
};

/// The format that the ending of \a path names, None for another.
Format fromEnding(const QString &path);
/// All endings that name a format: ".orblog".
QStringList endings();

struct ReadOptions
{
    const FrameFormat *frame = &FrameFormat::raise(); ///< of packages, for formats that hold no whole frames
    QString
        pattern; ///< regular expression of a line, with the named groups time, dir and hex; empty for none
};

/// What is wrong with \a pattern as one of ReadOptions; empty when nothing is.
QString patternComplaint(const QString &pattern);

/// A reader for the file \a path, of the format that its content and then its ending tell. Null, with one sentence in
/// \a error, when it cannot be read, is empty, or holds nothing that looks like a log.
std::unique_ptr<LineLogReader> reader(const QString &path, const ReadOptions &options, QString *error);

/// The same for \a device, which is open for reading and becomes the reader's; \a ending is a name with an ending, or
/// empty.
std::unique_ptr<LineLogReader> reader(std::unique_ptr<QIODevice> device, const QString &ending,
                                      const ReadOptions &options, QString *error);

struct WriteOptions
{
    const FrameFormat *frame = &FrameFormat::raise(); ///< how the packages in the records look
    LineValueSource *values = nullptr;                ///< of Csv; not owned, has to outlive the writer
};

/// A writer for \a format to \a device, which is open for writing and becomes the writer's. Null for a format that is
/// read only, and for Csv without values.
std::unique_ptr<LineLogWriter> writer(Format format, std::unique_ptr<QIODevice> device,
                                      const WriteOptions &options);

} // namespace LineLogFormats

#endif // LINELOGFORMATS_H
