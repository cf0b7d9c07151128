#ifndef HEXLINE_H
#define HEXLINE_H

#include "linerecord.h"
#include "timestamp.h"

/// A line of bytes as all sorts of programs and people write it.
namespace HexLine {

/// Reads "[time] [direction] bytes [comment]": times as TimeStamp knows them; directions as "<", ">", "RX", "TX:",
/// "[read]", "box>unit" and so on; bytes as "2E 20", "2e20", "0x2E,0x20", "2Eh", "\x2E", parted by blanks, commas, colons
/// or hyphens; the columns of a hex dump. A few other words in front are passed over. Without a direction the bytes go
/// to the unit. False, with \a record and \a stamp anyhow, when there are no bytes.
bool read(const QByteArray &line, TimeStamp *stamp, LineRecord *record);

/// Takes a direction, with brackets and signs around it. False, with the cursor where it was, when there is none.
bool takeDirection(LogText::Cursor *cursor, LineRecord::Kind *kind);

/// Takes bytes as far as they go; none when there are none.
QByteArray takeBytes(LogText::Cursor *cursor);

} // namespace HexLine

#endif // HEXLINE_H
