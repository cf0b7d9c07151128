#ifndef BOXKEYBOARD_H
#define BOXKEYBOARD_H

#include "boxspeaker.h"

#include <QStringList>
#include <QTimer>

/// The keys, knobs and touch screen of a car, as its box reports them. A held key is reported every 200 ms.
class BoxKeyboard : public QObject
{
    Q_OBJECT

public:
    /// \a speaker outlives the keyboard.
    explicit BoxKeyboard(BoxSpeaker *speaker, QObject *parent = nullptr);

    /// Keys by their names in the speaker's keys(). False when there is no such key, or it is a knob. A key that is
    /// pressed already is not pressed again; one that is not pressed is released all the same, as a bouncing contact
    /// does.
    bool press(const QString &name);
    bool release(const QString &name);
    /// Turns the knob \a name by \a count clicks, 0 to 255. False when there is no such knob.
    bool turn(const QString &name, int count);
    /// A touch on the car's screen; false when the box has none.
    bool touch(BoxSpeaker::Touch touch, int x, int y);
    /// Lets go of all keys, without a word.
    void letGo();

Q_SIGNALS:
    /// To be sent to the unit.
    void packageDue(const BoxPackage &package, const QString &meaning);

private:
    void report(const BoxKey &key, BoxSpeaker::KeyState state);
    void repeatHeld();

    BoxSpeaker *m_speaker;
    QStringList m_held;
    QTimer m_heldTimer;
};

#endif // BOXKEYBOARD_H
