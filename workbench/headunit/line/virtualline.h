#ifndef VIRTUALLINE_H
#define VIRTUALLINE_H

class TerminalPair;

/// A pseudo-terminal under the virtual clock.
namespace VirtualLine {

/// Bytes that nobody has read yet at the unit's end of \a terminal, which holds its line.
int waitingAtUnit(const TerminalPair &terminal);

/// Waits until \a count bytes wait at the unit's end, for some milliseconds at most, while the virtual clock
/// stands still: the kernel hands on what was written at the far end in real time, and a clock that jumps
/// would not wait for it. Does nothing on the real clock.
void waitUntilThere(const TerminalPair &terminal, int count);

} // namespace VirtualLine

#endif // VIRTUALLINE_H
