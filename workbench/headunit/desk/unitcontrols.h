#ifndef UNITCONTROLS_H
#define UNITCONTROLS_H

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QVector>

/// What the unit itself does with its keys: volume, source, track, telephone. The state behind the status bar
/// and the media card; it knows no widget.
class UnitControls : public QObject
{
    Q_OBJECT

public:
    enum Call { NoCall, Listening, InCall };
    static constexpr int Loudest = 30;
    static constexpr int ListeningTime = 6000; ///< milliseconds that the unit waits for a spoken order

    explicit UnitControls(QObject *parent = nullptr);

    int volume() const { return m_volume; }
    bool isMuted() const { return m_isMuted; }

    /// The application mode in front, a number of the framework's (2 to 18).
    uint mode() const;
    static QString modeName(uint mode);
    /// The modes that the mode key goes through.
    static const QVector<uint> &modes();
    void setMode(uint mode);

    bool isPlaying() const { return m_isPlaying; }
    /// What the source in front plays: title and a second line. Empty for a source without tracks.
    QString title() const;
    QString subtitle() const;

    Call call() const { return m_call; }
    /// Seconds since the call was taken, 0 without one.
    int callSeconds() const;

public Q_SLOTS:
    /// A key of the unit or of the car. Repeats count for the volume only; releases for nothing. Keys that
    /// belong to what is in front (back, arrows ...) come out again as navigation().
    void key(int code, bool isPress, bool isRepeat);

Q_SIGNALS:
    void changed();
    void modeChanged(uint mode, uint before);
    /// A call began or ended.
    void callChanged(bool isInCall);
    /// A key for the front window or the launcher: Qt's Home, Back, Enter and arrow keys.
    void navigation(int code);

private:
    void setVolume(int volume);
    void setCall(Call call);
    void skip(int tracks);
    bool mediaKey(int code);
    bool phoneKey(int code);

    int m_volume = 12;
    bool m_isMuted = false;
    int m_modeIndex = 0;
    QVector<int> m_tracks; // by mode index
    bool m_isPlaying = true;
    Call m_call = NoCall;
    QElapsedTimer m_callClock;
    QTimer m_listeningTimer;
};

#endif // UNITCONTROLS_H
