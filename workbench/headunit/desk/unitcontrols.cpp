#include "unitcontrols.h"

#include "unitkey.h"

namespace {

// The unit's sources in the order of the mode key.
struct Source
{
    uint mode;
    const char *name;
};

const Source Sources[] = {{6, QT_TRANSLATE_NOOP("UnitControls", "Radio")},
                          {9, QT_TRANSLATE_NOOP("UnitControls", "USB music")},
                          {3, QT_TRANSLATE_NOOP("UnitControls", "Bluetooth")},
                          {4, QT_TRANSLATE_NOOP("UnitControls", "Navigation")}};

} // namespace

UnitControls::UnitControls(QObject *parent) : QObject(parent) {}

const QVector<uint> &UnitControls::modes()
{
    static const QVector<uint> result = [] {
        QVector<uint> numbers;
        for (const Source &source : Sources) {
            numbers << source.mode;
        }
        return numbers;
    }();
    return result;
}

uint UnitControls::mode() const
{
    return modes().at(m_modeIndex);
}

QString UnitControls::modeName(uint mode)
{
    const int index = modes().indexOf(mode);
    return index < 0 ? QString() : tr(Sources[index].name);
}

void UnitControls::setMode(uint mode)
{
    const int index = modes().indexOf(mode);
    if (index < 0 || index == m_modeIndex) {
        return;
    }
    const uint before = this->mode();
    m_modeIndex = index;
    Q_EMIT modeChanged(mode, before);
    Q_EMIT changed();
}

QString UnitControls::callText() const
{
    return m_call == InCall ? tr("In a call") : m_call == Listening ? tr("Listening …") : QString();
}

QString UnitControls::effect() const
{
    switch (UnitKey::of(m_lastKey.code).duty) {
    case UnitKey::Volume:
    case UnitKey::Mute:
        return m_isMuted ? tr("Muted") : tr("Volume %1").arg(m_volume);
    case UnitKey::Track:
        return tr("Track %1").arg(m_track);
    case UnitKey::PlayPause:
        return m_isPlaying ? tr("Plays") : tr("Pauses");
    case UnitKey::Mode:
        return modeName(mode());
    case UnitKey::Voice:
    case UnitKey::Call:
    case UnitKey::HangUp:
        return m_call == NoCall ? tr("No call") : callText();
    case UnitKey::Navigation:
        return tr("For the window in front");
    case UnitKey::NoDuty:
        break;
    }
    return tr("No effect on the desk");
}

void UnitControls::setCall(CallState call)
{
    const bool wasInCall = m_call == InCall;
    m_call = call;
    if (wasInCall != (call == InCall)) {
        Q_EMIT callChanged(call == InCall);
    }
}

void UnitControls::key(int code, bool isPress, bool isRepeat)
{
    note(code, isPress, isRepeat);
    if (isPress && (!isRepeat || UnitKey::of(code).duty == UnitKey::Volume)) {
        act(code);
    }
    Q_EMIT changed();
}

void UnitControls::note(int code, bool isPress, bool isRepeat)
{
    if (isPress && (!isRepeat || code != m_lastKey.code)) {
        m_lastKey = {code, m_lastKey.number + 1, 0, true};
    } else if (code == m_lastKey.code) {
        m_lastKey.repeats += isRepeat;
        m_lastKey.isDown = isPress;
    }
}

void UnitControls::act(int code)
{
    const UnitKey key = UnitKey::of(code);
    switch (key.duty) {
    case UnitKey::Volume:
        m_volume = qBound(0, m_volume + key.step, int(Loudest));
        m_isMuted = false;
        break;
    case UnitKey::Mute:
        m_isMuted = !m_isMuted;
        break;
    case UnitKey::Track:
        m_track = (m_track - 1 + key.step + LastTrack) % LastTrack + 1;
        m_isPlaying = true;
        break;
    case UnitKey::PlayPause:
        m_isPlaying = !m_isPlaying;
        break;
    case UnitKey::Mode:
        setMode(modes().at((m_modeIndex + 1) % modes().size()));
        break;
    case UnitKey::Voice: // has no meaning while one talks
        setCall(m_call == NoCall ? Listening : m_call == Listening ? NoCall : InCall);
        break;
    case UnitKey::Call:
        setCall(InCall);
        break;
    case UnitKey::HangUp:
        setCall(NoCall);
        break;
    case UnitKey::Navigation:
        Q_EMIT navigation(code);
        break;
    case UnitKey::NoDuty:
        break;
    }
}
