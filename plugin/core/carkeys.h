#ifndef CARKEYS_H
#define CARKEYS_H

#include <Qt>
#include <QtGlobal>

/// Key codes of the head unit. Qt's names where Qt has one; where only the number is known, the name keeps
/// it.
namespace CarKeys {

enum Key {
    NoKey = 0x01FFFFFF,
    // In key tables only: a car's single phone key, which means Call or VoiceDial (phoneKey).
    PhoneKey = 0x01FFFFFE,

    Digit1 = Qt::Key_1,
    Digit2 = Qt::Key_2,
    Digit3 = Qt::Key_3,
    Digit4 = Qt::Key_4,
    Digit5 = Qt::Key_5,
    Digit6 = Qt::Key_6,
    Enter = Qt::Key_Enter,
    Home = Qt::Key_Home,
    Left = Qt::Key_Left,
    Up = Qt::Key_Up,
    Right = Qt::Key_Right,
    Down = Qt::Key_Down,
    Back = Qt::Key_Back,
    VolumeDown = Qt::Key_VolumeDown,
    VolumeMute = Qt::Key_VolumeMute,
    VolumeUp = Qt::Key_VolumeUp,
    MediaPrevious = Qt::Key_MediaPrevious,
    MediaNext = Qt::Key_MediaNext,
    MediaTogglePlayPause = Qt::Key_MediaTogglePlayPause,
    PowerOff = Qt::Key_PowerOff,
    AudioRewind = Qt::Key_AudioRewind,
    AudioForward = Qt::Key_AudioForward,
    ModeSwitch = Qt::Key_Mode_switch,
    Call = Qt::Key_Call,
    Hangup = Qt::Key_Hangup,
    VoiceDial = Qt::Key_VoiceDial,
    Menu = Qt::Key_Menu,
    Video = Qt::Key_Video,
    Music = Qt::Key_Music,
    Bluetooth = Qt::Key_Bluetooth,
    LaunchG = Qt::Key_LaunchG,
    LaunchH = Qt::Key_LaunchH,
    Launch0 = Qt::Key_Launch0,
    Launch2 = Qt::Key_Launch2,
    Launch3 = Qt::Key_Launch3,
    Launch4 = Qt::Key_Launch4,
    Launch5 = Qt::Key_Launch5,
    Launch6 = Qt::Key_Launch6
};

// The boxes and the framework know the keys by these numbers.
static_assert(Digit1 == 0x31 && Digit6 == 0x36, "key numbers");
static_assert(Enter == 0x01000005 && Home == 0x01000010 && Back == 0x01000061, "key numbers");
static_assert(Left == 0x01000012 && Up == 0x01000013 && Right == 0x01000014 && Down == 0x01000015,
              "key numbers");
static_assert(VolumeDown == 0x01000070 && VolumeMute == 0x01000071 && VolumeUp == 0x01000072, "key numbers");
static_assert(MediaPrevious == 0x01000082 && MediaNext == 0x01000083, "key numbers");
static_assert(Launch0 == 0x010000A2 && Launch5 == 0x010000A7 && Launch6 == 0x010000A8, "key numbers");
static_assert(Launch2 == 0x010000A4 && Launch3 == 0x010000A5 && Launch4 == 0x010000A6, "key numbers");
static_assert(Menu == 0x01000055 && Video == 0x010000F3 && Music == 0x010000FD, "key numbers");
static_assert(Bluetooth == 0x010000FF && LaunchG == 0x0100010E && LaunchH == 0x0100010F, "key numbers");
static_assert(MediaTogglePlayPause == 0x01000086 && PowerOff == 0x010000B7, "key numbers");
static_assert(AudioRewind == 0x010000C5 && AudioForward == 0x01000102, "key numbers");
static_assert(ModeSwitch == 0x0100117E, "key numbers");
static_assert(Call == 0x01100004 && Hangup == 0x01100005 && VoiceDial == 0x01100008, "key numbers");

/// Phase of a key as boxes and framework count it.
enum State { Released = 0, Pressed = 1, Held = 2 };

/// One row of a car's key table: the box's code and the head unit's key.
struct Mapping
{
    quint8 code;
    unsigned int key;
};

/// A car's key table, borrowed.
struct KeyTable
{
    const Mapping *rows;
    int count;
};

template <int Rows>
KeyTable keyTable(const Mapping (&rows)[Rows])
{
    const KeyTable table = {rows, Rows};
    return table;
}

/// The key of \a code, \a otherwise when the table has no such code.
unsigned int keyFor(const KeyTable &table, quint8 code, unsigned int otherwise = NoKey);

template <int Rows>
unsigned int keyFor(const Mapping (&rows)[Rows], quint8 code, unsigned int otherwise = NoKey)
{
    return keyFor(keyTable(rows), code, otherwise);
}

/// Injects \a key in the phase that the box reports (0 released, 2 held, any other pressed).
void simulate(unsigned int key, int state, int last);

/// Injects a press and its release.
void tap(unsigned int key, int last = 0);

/// Injects \a count taps: the detents of a knob.
void turn(unsigned int key, int count);

/// True while the unit's status word says that a phone call is present.
bool isCallPresent();

/// What a car's single phone key means now: Call while a call is present, else VoiceDial.
unsigned int phoneKey();

} // namespace CarKeys

#endif // CARKEYS_H
