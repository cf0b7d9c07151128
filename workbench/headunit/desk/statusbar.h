#ifndef STATUSBAR_H
#define STATUSBAR_H

#include <QBasicTimer>
#include <QPixmap>
#include <QWidget>

/// The strip at the top of the unit's screen: clock, application in front, telephone, mode, volume.
class StatusBar : public QWidget
{
    Q_OBJECT

public:
    static constexpr int BarHeight = 48;

    explicit StatusBar(QWidget *parent = nullptr);

    void setTwelveHourClock(bool isTwelveHour);

    void setApplication(const QString &name);
    void setMode(const QString &name);
    /// A line on the telephone ("In a call"), empty for none; \a isInCall: a call, else the unit listens.
    void setCall(const QString &text, bool isInCall);
    /// \a volume of \a loudest.
    void setVolume(int volume, int loudest, bool isMuted);

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QString clockText() const;
    int paintVolume(QPainter *painter, int right) const;
    int paintMode(QPainter *painter, int right) const;
    int paintCall(QPainter *painter, int right) const;

    QBasicTimer m_clockTimer;
    QString m_shownClock;
    bool m_isTwelveHour = false;
    QString m_application;
    QString m_mode;
    QString m_callText;
    bool m_isInCall = false;
    int m_volume = 0;
    int m_loudest = 1;
    bool m_isMuted = false;
    QPixmap m_volumeIcon;
    QPixmap m_muteIcon;
    QPixmap m_callIcon;
    QPixmap m_voiceIcon;
};

#endif // STATUSBAR_H
