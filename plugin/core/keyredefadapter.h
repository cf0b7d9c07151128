#ifndef KEYREDEFADAPTER_H
#define KEYREDEFADAPTER_H

#include <QObject>

/// Translates the raw keys of a head unit with a key set of its own into the framework's keys. While one is
/// configured it alone receives the unit's key events. One per process, until the process ends.
class KeyRedefAdapter : public QObject
{
    Q_OBJECT

public:
    /// The key set, as the framework's tag 0x1000c stores it. Any other number selects none.
    enum KeyRedefType : unsigned int { NoKeyRedef = 0, LianBaoLai = 1, Hud = 2 };

    /// The process's adapter once it exists, whatever \a type; else it is built for a known type. Null for an
    /// unknown one.
    static KeyRedefAdapter *getAdapterInstance(KeyRedefType type);

    // QUIRK keyredef-type: the type is never stored, so the answer is always 0; nothing depends on it.
    KeyRedefType getKeyRedefType() const { return keyRedefType; }

    /// One key of the head unit. \a isAutoRepeat: a repeat of a held key.
    virtual void onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat) = 0;

    /// Whether previous and next mean tracks in application \a appId; else they have keys of their own.
    static bool isMediaKeyApp(unsigned int appId);

    /// True while a phone call is present.
    static bool isCallState();

protected:
    KeyRedefAdapter();

private:
    static KeyRedefAdapter *createAdapter(KeyRedefType type);

    static KeyRedefAdapter *s_instance;

    KeyRedefType keyRedefType;
};

#endif // KEYREDEFADAPTER_H
