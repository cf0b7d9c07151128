#ifndef COMMANDAPPLICATION_H
#define COMMANDAPPLICATION_H

#include <QString>

#include <memory>

class OrbApplication;
class QCoreApplication;

/// The application object of a sub-command: made when its words are read, for none of them is Qt's. What a command does
/// before is done without one, and without anything but the files that the words name.
namespace CommandApplication {

/// For a command without a screen.
std::unique_ptr<QCoreApplication> make();

/// For one that runs the unit without a window, on the virtual clock. Null, with one sentence in \a error, when the
/// clock cannot be had.
std::unique_ptr<OrbApplication> makeUnit(QString *error);

} // namespace CommandApplication

#endif // COMMANDAPPLICATION_H
