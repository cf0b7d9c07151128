#ifndef DRIVEPROCESS_H
#define DRIVEPROCESS_H

#include <QString>

class OrbApplication;
class QWidget;

/// A process for drives: nothing is shown, laid out or flushed to a disk in it, since looks are most of what a drive
/// would take.
namespace DriveProcess {

/// The time of day at the start of each drive: noon of 2026-06-30, UTC, in seconds since 1970.
const int StartOfDrives = 1782820800;

/// Starts the virtual clock, and makes the application that the process has until its end.
OrbApplication *start(int *argc, char **argv);

/// Ends the program with \a what as its last word unless \a condition holds.
void expect(bool condition, const char *what);

/// Ends the program when it works for longer than \a seconds from now; 0: for as long as it likes. The processor's
/// time counts, since libFuzzer's own limit goes by the clock.
void limitWork(int seconds);

/// The unit's screen. It is never shown: windows lie on it and react, but nothing lays them out or paints them.
QWidget *screen();

/// The window or dialog in front; null for none.
QWidget *front();

} // namespace DriveProcess

#endif // DRIVEPROCESS_H
