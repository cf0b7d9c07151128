#ifndef JSONTEXT_H
#define JSONTEXT_H

#include <QByteArray>
#include <QVariant>

class OrbEvent;

/// JSON for the trace, whose objects keep the order of their keys.
namespace JsonText {

/// A value: numbers, texts, bools and lists as themselves, byte arrays as lower-case hexadecimal texts,
/// anything else as null.
QByteArray fromVariant(const QVariant &value);

/// An event's record: its numbers always; bytes, string and variant where set. The address of a key-set
/// registration stands for the list of its records.
QByteArray fromEvent(const OrbEvent &event);

} // namespace JsonText

#endif // JSONTEXT_H
