#ifndef UNITKEY_H
#define UNITKEY_H

#include <QString>

/// A key of the unit or of the car as the desk knows it: what stands on it, and what the unit does with it.
struct UnitKey
{
    /// Codes that Qt has a name for which says something else.
    enum Code {
        ModeSwitch = 0x0100117E,
        TrackPrevious = 0x010000A7, ///< sent instead of previous and next where those mean something else
        TrackNext = 0x010000A8
    };
    enum Duty { NoDuty, Volume, Mute, Track, PlayPause, Mode, Voice, Call, HangUp, Navigation };

    int code;
    const char *name; ///< untranslated; null for a key without a duty
    const char *icon; ///< null for none
    Duty duty;
    int step = 0; ///< of volume or track

    /// The key with \a code; any code is one, though most have no duty.
    static UnitKey of(int code);

    /// In the user's language where it has a duty, else as Qt calls it ("Power Off").
    QString text() const;
    /// Resource of its picture, empty for none.
    QString picture() const;
};

#endif // UNITKEY_H
