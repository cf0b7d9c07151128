#ifndef KEYREADER_H
#define KEYREADER_H

#include "boxspeaker.h"

#include <QMap>
#include <QSet>

/// What a package says about a key of the car.
struct KeyNews
{
    enum Phase {
        Released, ///< without a code: whatever key of the command is down
        Pressed,
        Held,
        Tapped, ///< pressed and released, which the box says in one
        Turned  ///< a knob
    };

    quint8 command = 0;
    int code = -1; ///< as the box counts keys; -1 of a release that names none
    BoxKey::Source group = BoxKey::Wheel;
    QString name; ///< empty for a key that the virtual box does not know
    Phase phase = Pressed;
    int clicks = 0;       ///< of a knob
    bool hasState = true; ///< the box tells phases; else the code again means that the key is held
};

/// Reads packages about keys, also about keys that nobody knows yet: where code and state stand in a command's package
/// it learns from the packages with which the virtual box reports the keys that it has.
class KeyReader
{
public:
    /// Knows no command.
    KeyReader() = default;
    /// Knows the commands with which \a speaker reports keys; it is not kept.
    explicit KeyReader(const BoxSpeaker &speaker);

    /// \a command reports keys as well: the code in data byte 0, the state in byte 1.
    void addCommand(quint8 command);

    /// False, with \a news anyhow, when \a package, which comes from the box, is not about a key.
    bool read(const BoxPackage &package, KeyNews *news) const;

private:
    struct Layout
    {
        int codeAt = 0;
        int stateAt = 1; // -1: no package has one
        QSet<int> releaseCodes;
        QSet<int> taps; // codes of keys of which no release is told
        QMap<int, BoxKey> keys;
    };

    void learn(const BoxSpeaker &speaker, const BoxKey &key);

    QMap<quint8, Layout> m_layouts;
};

#endif // KEYREADER_H
