#include "keyredefadapter_lianbaolai.h"

#include "carkeys.h"

#include "orbcommons.h"
#include "orbwindowmanager.h"

namespace {

struct HoldKey
{
    unsigned int code;
    unsigned int shortKey;
    unsigned int longKey;
    quint64 longThreshold; // ms
};

const HoldKey HoldKeys[] = {
    {0x2000061, CarKeys::Back, CarKeys::Down, 1700},
    {0x2F00005, CarKeys::Enter, CarKeys::VoiceDial, 1700},
    {0x2F00010, CarKeys::Home, CarKeys::Up, 1700},
};

struct TrackKey
{
    unsigned int code;
    unsigned int callKey;  // while a call is present
    unsigned int mediaKey; // with a player in front
    unsigned int otherKey;
};

const TrackKey TrackKeys[] = {
    {0x2000013, CarKeys::Call, CarKeys::MediaPrevious, CarKeys::Launch5},
    {0x2000015, CarKeys::Hangup, CarKeys::MediaNext, CarKeys::Launch6},
};

// The key that is held, one for the whole unit.
struct HeldKey
{
    unsigned int shortKey;
    unsigned int longKey;
    quint64 pressTime;
    quint64 longThreshold;
    bool longFired;
};

HeldKey held = {CarKeys::NoKey, CarKeys::NoKey, 0, 0, false};

} // namespace

void KeyRedefAdapter_LianBaoLai::onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat)
{
    const unsigned int frontApp = OrbWindowManager::getCurWindowAppId();
    if (isPress) {
        onPress(keyCode, isAutoRepeat, frontApp);
    } else if (held.shortKey != CarKeys::NoKey) {
        onRelease();
    }
}

void KeyRedefAdapter_LianBaoLai::onPress(unsigned int keyCode, bool isAutoRepeat, unsigned int frontApp)
{
    const quint64 now = GetTickCountMs();
    if (!isAutoRepeat) {
        held.pressTime = now;
    }
    if (held.longKey != CarKeys::NoKey && now - held.pressTime >= held.longThreshold && !held.longFired) {
        held.longFired = true;
        CarKeys::tap(held.longKey);
    }
    // QUIRK lianbaolai-held-key: while a key is held every press counts as that key's, whatever its code.
    if (held.shortKey == CarKeys::NoKey) {
        beginKey(keyCode, frontApp);
    }
    // What a key with a long action means is known at its release only.
    if (held.shortKey != CarKeys::NoKey && held.longKey == CarKeys::NoKey) {
        CarKeys::simulate(held.shortKey, isAutoRepeat ? CarKeys::Held : CarKeys::Pressed, 0);
    }
}

void KeyRedefAdapter_LianBaoLai::beginKey(unsigned int keyCode, unsigned int frontApp)
{
    for (const HoldKey &key : HoldKeys) {
        if (key.code == keyCode) {
            held.shortKey = key.shortKey;
            held.longKey = key.longKey;
            held.longThreshold = key.longThreshold;
        }
    }
    for (const TrackKey &key : TrackKeys) {
        if (key.code == keyCode) {
            held.shortKey = isCallState()             ? key.callKey
                            : isMediaKeyApp(frontApp) ? key.mediaKey
                                                      : key.otherKey;
        }
    }
}

void KeyRedefAdapter_LianBaoLai::onRelease()
{
    if (!held.longFired) {
        if (held.longKey != CarKeys::NoKey) {
            CarKeys::simulate(held.shortKey, CarKeys::Pressed, 0);
        }
        CarKeys::simulate(held.shortKey, CarKeys::Released, 0);
    }
    held.shortKey = CarKeys::NoKey;
    held.longKey = CarKeys::NoKey;
    held.longFired = false;
}
