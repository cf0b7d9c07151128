#ifndef PROBESTART_H
#define PROBESTART_H

#include "probeunit.h"

class BoxSpeaker;

/// What comes before a probe.
namespace ProbeStart {

/// Starts the virtual clock, and lets nothing be said or drawn; before the application object. False, with one
/// sentence in \a error, when the clock does not start.
bool prepare(QString *error);

/// What the box of \a speaker says at start, but for \a command: some decoders want to know their box.
ProbeUnit::Packages greeting(const BoxSpeaker &speaker, int command = -1);

/// How many reports of the box have \a command: those of more than one are told apart by the first data byte.
int reportsOf(const BoxSpeaker &speaker, quint8 command);

} // namespace ProbeStart

#endif // PROBESTART_H
