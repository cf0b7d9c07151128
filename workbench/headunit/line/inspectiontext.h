#ifndef INSPECTIONTEXT_H
#define INSPECTIONTEXT_H

#include "inspection.h"

/// The rows of an inspection in words, for a terminal, for the clipboard, and for scripts.
namespace InspectionText {

/// "0.061377"
QString seconds(qint64 microseconds);
/// "0x21", "BAD 0x21", "NO PACKAGE", "LINE", "CALL", "KEY": what the row is about.
QString subject(const InspectionRow &row);
/// What came: the data bytes of a package, [xx] where one changed, {xx} where a bit changed that nobody understands;
/// of noise all bytes, of a State and of a key its words.
QString bytes(const InspectionRow &row);
/// "1.6 ms"; empty when it was not acknowledged.
QString acknowledgement(const InspectionRow &row);

/// All of it, with a line for each call below; every line has its end.
QString plain(const InspectionRow &row);
/// One JSON object, without an end of line.
QByteArray json(const InspectionRow &row);

/// A table of how often each command came, with an end at each line: over the time from its first to its last package.
QString rates(const Inspection &inspection);
QByteArray jsonRates(const Inspection &inspection);

} // namespace InspectionText

#endif // INSPECTIONTEXT_H
