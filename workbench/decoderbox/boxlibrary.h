#ifndef BOXLIBRARY_H
#define BOXLIBRARY_H

#include <QString>

class BoxSpeaker;
class SimulatedCar;

/// Somebody else's box: a shared library with a C entry point `createBoxSpeaker`, which gets the car and
/// returns a new speaker for it, the caller's from then on.
using CreateBoxSpeakerFunction = BoxSpeaker *(*)(SimulatedCar *);

/// Loads boxes from shared libraries.
namespace BoxLibrary {

/// The entry point of the library \a path, which stays in the process. Null, with one sentence in \a error,
/// when the file is not there, does not load or has no such entry point.
CreateBoxSpeakerFunction load(const QString &path, QString *error);

} // namespace BoxLibrary

#endif // BOXLIBRARY_H
