#include "unitkey.h"

#include <QCoreApplication>
#include <QKeySequence>

namespace {

const UnitKey Keys[] = {
    {Qt::Key_VolumeDown, QT_TRANSLATE_NOOP("UnitKey", "Vol −"), "volume-down", UnitKey::Volume, -1},
    {Qt::Key_VolumeUp, QT_TRANSLATE_NOOP("UnitKey", "Vol +"), "volume-up", UnitKey::Volume, 1},
    {Qt::Key_VolumeMute, QT_TRANSLATE_NOOP("UnitKey", "Mute"), "mute", UnitKey::Mute},
    {Qt::Key_MediaPrevious, QT_TRANSLATE_NOOP("UnitKey", "Previous"), "previous", UnitKey::Track, -1},
    {Qt::Key_MediaNext, QT_TRANSLATE_NOOP("UnitKey", "Next"), "next", UnitKey::Track, 1},
    {Qt::Key_AudioRewind, QT_TRANSLATE_NOOP("UnitKey", "Rewind"), "previous", UnitKey::Track, -1},
    {Qt::Key_AudioForward, QT_TRANSLATE_NOOP("UnitKey", "Forward"), "next", UnitKey::Track, 1},
    {UnitKey::TrackPrevious, QT_TRANSLATE_NOOP("UnitKey", "Previous track"), "previous", UnitKey::Track, -1},
    {UnitKey::TrackNext, QT_TRANSLATE_NOOP("UnitKey", "Next track"), "next", UnitKey::Track, 1},
    {Qt::Key_MediaPlay, QT_TRANSLATE_NOOP("UnitKey", "Play"), "play", UnitKey::PlayPause},
    {Qt::Key_MediaTogglePlayPause, QT_TRANSLATE_NOOP("UnitKey", "Play/pause"), "play", UnitKey::PlayPause},
    {UnitKey::ModeSwitch, QT_TRANSLATE_NOOP("UnitKey", "Mode"), "mode", UnitKey::Mode},
    {Qt::Key_VoiceDial, QT_TRANSLATE_NOOP("UnitKey", "Voice"), "voice", UnitKey::Voice},
    {Qt::Key_Call, QT_TRANSLATE_NOOP("UnitKey", "Call"), "call", UnitKey::Call},
    {Qt::Key_Hangup, QT_TRANSLATE_NOOP("UnitKey", "Hang up"), "hangup", UnitKey::HangUp},
    {Qt::Key_Home, QT_TRANSLATE_NOOP("UnitKey", "Home"), "home", UnitKey::Navigation},
    {Qt::Key_Back, QT_TRANSLATE_NOOP("UnitKey", "Back"), "back", UnitKey::Navigation},
    {Qt::Key_Enter, QT_TRANSLATE_NOOP("UnitKey", "Enter"), nullptr, UnitKey::Navigation},
    {Qt::Key_Left, QT_TRANSLATE_NOOP("UnitKey", "Left"), nullptr, UnitKey::Navigation},
    {Qt::Key_Right, QT_TRANSLATE_NOOP("UnitKey", "Right"), nullptr, UnitKey::Navigation},
    {Qt::Key_Up, QT_TRANSLATE_NOOP("UnitKey", "Up"), nullptr, UnitKey::Navigation},
    {Qt::Key_Down, QT_TRANSLATE_NOOP("UnitKey", "Down"), nullptr, UnitKey::Navigation},
};

} // namespace

UnitKey UnitKey::of(int code)
{
    for (const UnitKey &key : Keys) {
        if (key.code == code) {
            return key;
        }
    }
    return {code, nullptr, nullptr, NoDuty};
}

QString UnitKey::text() const
{
    return name ? QCoreApplication::translate("UnitKey", name) : QKeySequence(code).toString();
}

QString UnitKey::picture() const
{
    return icon ? QStringLiteral(":/desk/keys/%1.png").arg(QLatin1String(icon)) : QString();
}
