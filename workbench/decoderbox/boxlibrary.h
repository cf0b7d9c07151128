#ifndef BOXLIBRARY_H
#define BOXLIBRARY_H

#include <QString>

class DecoderBox;
class QObject;

/// Boxes of other people: shared libraries with a C entry point
///
///     BoxSpeaker *createBoxSpeaker(SimulatedCar *car)
///
/// that returns a new speaker for \a car, the caller's from then on.
namespace BoxLibrary {

/// A box whose speaker is the library's \a path, with its own car, owned by \a parent or else by the caller. The
/// library stays in the process. Null, with one sentence in \a error, when the file is not there, does not load
/// or has no such entry point.
DecoderBox *createBox(const QString &path, QObject *parent, QString *error);

} // namespace BoxLibrary

#endif // BOXLIBRARY_H
