#ifndef KEYTEXT_H
#define KEYTEXT_H

#include "keytester.h"

/// Keys in words, and as rows of an adapter's key table.
namespace KeyText {

/// "wheel", "panel", "knob", "unit".
QString group(const KeyStroke &stroke);
/// The key of the framework with \a code as adapters name it: "VolumeUp"; "0x1000123" for one without a name.
QString key(quint32 code);
/// "0x20 0x01 volume_up", "0x2f00003 (line 0xff00c8)".
QString raw(const KeyStroke &stroke);
/// "VolumeUp", "Left, Enter"; "nothing" when it became none.
QString becomes(const QVector<quint32> &keys);
/// One sentence about a key that never came up.
QString alarm(const KeyStroke &stroke);
/// One line about a stroke; \a now, in microseconds, is for one that is still down.
QString plain(const KeyStroke &stroke, qint64 now);

/// The car's keys among \a strokes as key tables in C++, a table for each command and group, each key once in the order
/// in which it was first pressed. A key that became nothing is a row with NoKey, to be filled in.
QString tables(const std::deque<KeyStroke> &strokes);

} // namespace KeyText

#endif // KEYTEXT_H
