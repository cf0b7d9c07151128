#include "keyredefadapter_hud.h"

#include "carkeys.h"
#include "ctrlkeys.h"
#include "unitlink.h"

#include "orbapplication.h"
#include "orbcommons.h"
#include "orbevent.h"
#include "orbqtcompat.h"

namespace {

const quint64 LongPress = 1499; // ms that a key is held longer than for its long action

// What a key taps; NoKey: nothing.
struct HudKey
{
    unsigned int code;
    quint64 ctrlValue; // on the analogue key line
    unsigned int pressKey;
    unsigned int callKey; // in place of pressKey while a call is present
    unsigned int longKey;
    unsigned int releaseKey; // unless the long action came
};

const unsigned int None = CarKeys::NoKey;

// QUIRK hud-right-twice: the fifth key goes right when it is pressed and again when it is released.
const HudKey HudKeys[] = {
    {0x2F00001, 0xFF02BC, CarKeys::MediaPrevious, CarKeys::Call, None, None},
    {0x2000002, 0xFF0258, CarKeys::MediaNext, CarKeys::Hangup, None, None},
    {0x2F00003, 0xFF00C8, None, None, CarKeys::Up, CarKeys::Left},
    {0x2F00004, 0xFF0064, None, None, CarKeys::VoiceDial, CarKeys::Enter},
    {0x2F00005, 0xFF01F4, CarKeys::Right, CarKeys::Right, None, CarKeys::Right},
    {0x2F00006, 0xFF012C, CarKeys::Home, CarKeys::Home, None, None},
    {0x2F00007, 0xFF0190, CarKeys::Back, CarKeys::Back, None, None},
};
const HudKey UnknownKey = {0, 0, None, None, None, None};

// Of the registration event.
enum Registration { UnitSource = 400, KeySubject = 1, KeySetParam = 20497, KeySetParam2 = 21 };

// The framework keeps the address: the list lives as long as the process.
CtrlKeyList registeredKeys;

quint64 pressTime = 0;
bool longFired = false; // one for both keys with a long action

const HudKey &keyOf(unsigned int code)
{
    for (const HudKey &key : HudKeys) {
        if (key.code == code) {
            return key;
        }
    }
    return UnknownKey;
}

void tapKey(unsigned int key)
{
    if (key != None) {
        CarKeys::tap(key);
    }
}

} // namespace

KeyRedefAdapter_HUD::KeyRedefAdapter_HUD()
{
    for (const HudKey &key : HudKeys) {
        const CtrlKeyPair pair = {key.code, key.ctrlValue};
        registeredKeys.append(pair);
    }
    OrbEvent *const registration = new OrbEvent(UnitSource, KeySubject, UnitLink::NotifyEvent);
    registration->setParams(KeySetParam, KeySetParam2);
    registration->setVariantParam(QVariant::fromValue<void *>(&registeredKeys));
    QCoreApplication::postEvent(OrbApplication::instance(), registration);
}

void KeyRedefAdapter_HUD::onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat)
{
    const HudKey &key = keyOf(keyCode);
    if (!isPress) {
        if (!longFired) {
            tapKey(key.releaseKey);
        }
        longFired = false;
        return;
    }
    const quint64 now = GetTickCountMs();
    if (!isAutoRepeat) {
        pressTime = now;
    }
    if (key.longKey != None && !longFired && now - pressTime > LongPress) {
        longFired = true;
        tapKey(key.longKey);
    }
    tapKey(isCallState() ? key.callKey : key.pressKey);
}
