#ifndef LINEHEALTH_H
#define LINEHEALTH_H

#include "lineframer.h"
#include "linestatus.h"
#include "serialtap.h"

#include <deque>

/// Hears the serial line and tells how it is. It knows neither the plug-in nor any screen; whoever shows it asks when
/// it likes, and never gets an answer that is older than the question.
class LineHealth : public SerialTapObserver
{
public:
    static constexpr int Patience = 5000; ///< ms without a package after which a box counts as silent

    enum BoxManner {
        Speaks,
        Stopped, ///< until it is started
        Hushed   ///< for a while
    };

    /// Listens from now on; one that is there before the plug-in is loaded hears the line being opened.
    LineHealth();

    /// The unit's decoder is of CAN-bus type \a type, which says how packages look. Without a type, or with one whose
    /// packages nobody knows, the most common ones are looked for. To be set before anything is heard.
    void setType(int type);
    /// The line that the unit will open, until it does; empty for none.
    void setPort(const QString &port) { m_port = port; }
    /// What a virtual box was told: nobody can hear that from the line.
    void setBoxManner(BoxManner manner) { m_boxManner = manner; }

    /// How the line is now. Of a line that gives no packages it looks, once a second at most, whether another process
    /// reads it too.
    LineStatus status();

    /// Sends the box the ready command, as the unit does at start. False when no line is open or it takes nothing.
    bool sayHello();

    void opened(const QString &port, const PortSettings &settings, qint64 at) override;
    void openFailed(const QString &port, int systemError, qint64 at) override;
    void received(const QByteArray &bytes, qint64 at) override;
    void sent(const QByteArray &bytes, qint64 at) override;
    void closed(bool isLost, qint64 at) override;

private:
    LineStatus::State talkState(qint64 now) const;
    void takePackage(const LinePiece &package);
    void lookForOthers(qint64 now);

    QString m_port;
    BoxManner m_boxManner = Speaks;
    LineFramer m_fromBox;
    LineFramer m_fromUnit;
    LineStatus m_status; // its state is the line's; what the talk is like is told when it is asked

    bool m_isOpen = false;
    bool m_wasLost = false;            // and is not back
    std::deque<qint64> m_packageTimes; // of the last second
    qint64 m_lastPackage = -1;
    bool m_hasPackages = false; // since the line was opened
    qint64 m_strangeBytes = 0;  // since the last package: neither packages nor answers
    qint64 m_strangeSince = 0;
    QByteArray m_unanswered; // the package that the unit has not acknowledged
    qint64 m_unansweredSince = 0;
    qint64 m_lastRepetition = -1;
    qint64 m_lastLook = -1;
    QString m_otherProcess;
};

#endif // LINEHEALTH_H
