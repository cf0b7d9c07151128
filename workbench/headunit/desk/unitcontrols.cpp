#include "unitcontrols.h"

#include "unitkeys.h"

#include <QCoreApplication>
#include <QVector>

namespace {

// The unit's sources in the order of the mode key, with what each plays. A radio's tracks are its stations.
struct Track
{
    const char *title;
    const char *subtitle;
};

struct Source
{
    uint mode;
    const char *name;
    QVector<Track> tracks;
};

const QVector<Source> &sources()
{
    static const QVector<Source> rows = {
        {6,
         QT_TRANSLATE_NOOP("UnitControls", "Radio"),
         {{"FM 88.4 MHz", "Harbour FM"}, {"FM 93.1 MHz", "City Waves"}, {"FM 101.7 MHz", "Night Line"}}},
        {9,
         QT_TRANSLATE_NOOP("UnitControls", "USB music"),
         {{"Coast Road", "Desk Demo · 1/3"},
          {"Long Way Round", "Desk Demo · 2/3"},
          {"Rain on Glass", "Desk Demo · 3/3"}}},
        {3,
         QT_TRANSLATE_NOOP("UnitControls", "Bluetooth"),
         {{"Evening Mix", "Phone"}, {"Morning Mix", "Phone"}}},
        {4, QT_TRANSLATE_NOOP("UnitControls", "Navigation"), {}},
    };
    return rows;
}

} // namespace

UnitControls::UnitControls(QObject *parent) : QObject(parent), m_tracks(sources().size(), 0)
{
    m_listeningTimer.setSingleShot(true);
    connect(&m_listeningTimer, &QTimer::timeout, this, [this] { setCall(NoCall); });
}

const QVector<uint> &UnitControls::modes()
{
    static const QVector<uint> result = [] {
        QVector<uint> numbers;
        for (const Source &source : sources()) {
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
    return index < 0 ? QString() : QCoreApplication::translate("UnitControls", sources().at(index).name);
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

QString UnitControls::title() const
{
    const QVector<Track> &tracks = sources().at(m_modeIndex).tracks;
    return tracks.isEmpty() ? QString() : QString::fromUtf8(tracks.at(m_tracks.at(m_modeIndex)).title);
}

QString UnitControls::subtitle() const
{
    const QVector<Track> &tracks = sources().at(m_modeIndex).tracks;
    return tracks.isEmpty() ? QString() : QString::fromUtf8(tracks.at(m_tracks.at(m_modeIndex)).subtitle);
}

int UnitControls::callSeconds() const
{
    return m_call == InCall ? int(m_callClock.elapsed() / 1000) : 0;
}

void UnitControls::setVolume(int volume)
{
    m_volume = qBound(0, volume, int(Loudest));
    m_isMuted = false;
    Q_EMIT changed();
}

void UnitControls::setCall(Call call)
{
    if (call == m_call) {
        return;
    }
    const bool wasInCall = m_call == InCall;
    m_call = call;
    if (call == InCall) {
        m_callClock.start();
    }
    if (call == Listening) {
        m_listeningTimer.start(ListeningTime);
    } else {
        m_listeningTimer.stop();
    }
    if (wasInCall != (call == InCall)) {
        Q_EMIT callChanged(call == InCall);
    }
    Q_EMIT changed();
}

void UnitControls::skip(int tracks)
{
    const int count = sources().at(m_modeIndex).tracks.size();
    if (count != 0) {
        m_tracks[m_modeIndex] = (m_tracks.at(m_modeIndex) + tracks + count) % count;
        m_isPlaying = true;
        Q_EMIT changed();
    }
}

bool UnitControls::mediaKey(int code)
{
    switch (code) {
    case Qt::Key_VolumeMute:
        m_isMuted = !m_isMuted;
        Q_EMIT changed();
        return true;
    case Qt::Key_MediaNext:
    case Qt::Key_AudioForward:
    case UnitKeys::TrackNext:
        skip(1);
        return true;
    case Qt::Key_MediaPrevious:
    case Qt::Key_AudioRewind:
    case UnitKeys::TrackPrevious:
        skip(-1);
        return true;
    case Qt::Key_MediaPlay:
    case Qt::Key_MediaTogglePlayPause:
        m_isPlaying = !m_isPlaying;
        Q_EMIT changed();
        return true;
    case UnitKeys::ModeSwitch:
        setMode(modes().at((m_modeIndex + 1) % modes().size()));
        return true;
    default:
        return false;
    }
}

bool UnitControls::phoneKey(int code)
{
    switch (code) {
    case Qt::Key_VoiceDial:
        // Cars with one phone key send this one until there is a call: the second press dials what was heard.
        setCall(m_call == NoCall ? Listening : InCall);
        return true;
    case Qt::Key_Call:
        setCall(InCall);
        return true;
    case Qt::Key_Hangup:
        setCall(NoCall);
        return true;
    default:
        return false;
    }
}

void UnitControls::key(int code, bool isPress, bool isRepeat)
{
    static const QVector<int> navigationKeys = {Qt::Key_Home,  Qt::Key_Back, Qt::Key_Enter, Qt::Key_Left,
                                                Qt::Key_Right, Qt::Key_Up,   Qt::Key_Down};
    if (!isPress) {
        return;
    }
    if (code == Qt::Key_VolumeUp || code == Qt::Key_VolumeDown) {
        setVolume(m_volume + (code == Qt::Key_VolumeUp ? 1 : -1));
    } else if (!isRepeat && !mediaKey(code) && !phoneKey(code) && navigationKeys.contains(code)) {
        Q_EMIT navigation(code);
    }
}
