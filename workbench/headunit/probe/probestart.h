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

/// The steps that open all screens of the decoder of \a type; found out in a child of this process, in which an
/// OrbApplication is there and no plug-in yet. Empty when the plug-in \a plugin does not run.
QVector<ScreenPath::Step> screenSteps(const QString &plugin, int type);

/// How many reports of the box have \a command: those of more than one are told apart by the first data byte.
int reportsOf(const BoxSpeaker &speaker, quint8 command);

} // namespace ProbeStart

#endif // PROBESTART_H
