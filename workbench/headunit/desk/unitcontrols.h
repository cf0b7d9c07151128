#ifndef UNITCONTROLS_H
#define UNITCONTROLS_H

#include <QObject>
#include <QVector>

/// What the unit itself does with its keys, as far as a key must be seen to work: it counts volume and
/// tracks, goes round the sources, and is in a call or not. It plays nothing and knows no widget.
class UnitControls : public QObject
{
    Q_OBJECT

public:
    enum CallState { NoCall, Listening, InCall };
    static constexpr int Loudest = 30;
    static constexpr int LastTrack = 99; ///< then comes the first again

    /// The key that arrived last.
    struct LastKey
    {
        int code = 0;
        int number = 0; ///< how many keys were pressed so far; 0 for none yet
        int repeats = 0;
        bool isDown = false;
    };

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
    int track() const { return m_track; }

    CallState call() const { return m_call; }
    /// Empty without a call.
    QString callText() const;

    const LastKey &lastKey() const { return m_lastKey; }
    /// What has become of that on which the last key acts: "Volume 13".
    QString effect() const;

public Q_SLOTS:
    /// A key of the unit or of the car. Repeats count for the volume only. Keys that belong to what is in
    /// front (back, arrows ...) come out again as navigation().
    void key(int code, bool isPress, bool isRepeat);

Q_SIGNALS:
    void changed();
    void modeChanged(uint mode, uint before);
    /// A call began or ended.
    void callChanged(bool isInCall);
    /// A key for the front window or the launcher: Qt's Home, Back, Enter and arrow keys.
    void navigation(int code);

private:
    void note(int code, bool isPress, bool isRepeat);
    void act(int code);
    void setCall(CallState call);

    int m_volume = 12;
    bool m_isMuted = false;
    int m_modeIndex = 0;
    int m_track = 1;
    bool m_isPlaying = true;
    CallState m_call = NoCall;
    LastKey m_lastKey;
};

#endif // UNITCONTROLS_H
