#ifndef BOXLOG_H
#define BOXLOG_H

#include "textlogreader.h"

/// Reads what `decoderbox --log` writes: "  12.345 unit>box 2e8101017c ready". What a box says of itself becomes a
/// state.
class BoxLogReader : public TextLogReader
{
public:
    using TextLogReader::TextLogReader;

    static bool readLine(const QByteArray &line, LineRecord *record);

protected:
    Outcome take(const QByteArray &line, LineRecord *record) override;
};

#endif // BOXLOG_H
