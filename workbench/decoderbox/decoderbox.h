#ifndef DECODERBOX_H
#define DECODERBOX_H

#include "boxkeyboard.h"
#include "boxspeaker.h"
#include "framereceiver.h"
#include "linefaults.h"
#include "pseudoterminal.h"

#include <QElapsedTimer>
#include <QQueue>
#include <QTimer>

/// A virtual decoder box: a simulated car, a speaker for the box's protocol, a pseudo-terminal that the unit
/// opens as its serial port, and the manners of real boxes:
///
/// - It says nothing before the unit's ready. Then it sends the car's state, and afterwards what changes. A
///   second ready is ignored while it talks; one after an end or after it fell silent starts it again.
/// - It sends one package at a time and waits for the unit's acknowledgement. 100 ms without one and it sends
///   the package again; after the third resend it falls silent until it is started again.
/// - It answers 0xFF to a good package, 0xF0 to a bad checksum, 0xF3 to a command that it does not know.
/// - A held key is reported every 200 ms, and what the speaker gives a period over and over.
/// - Its line is as slow as its baud rate says, both ways.
///
/// Boxes whose protocol knows no acknowledgement neither wait nor answer. A unit that closes the port takes
/// the box back to where it waits for ready. Everything runs on the thread of the box and nothing blocks it.
class DecoderBox : public QObject
{
    Q_OBJECT

public:
    enum State {
        WaitsForReady,
        Talks,
        Silent ///< the unit did not acknowledge
    };

    /// Takes \a car and \a speaker, which is of that car, as its own.
    DecoderBox(SimulatedCar *car, BoxSpeaker *speaker, QObject *parent = nullptr);

    /// See PseudoTerminal::open().
    bool open(const QString &link, QString *error);
    /// The line takes no time any more; before open() only.
    void setUnpaced() { m_terminal.setBaud(0); }
    /// The device for the unit; empty before open() and while the line is pulled out.
    QString portPath() const { return m_terminal.devicePath(); }

    SimulatedCar *car() const { return m_car; }
    BoxSpeaker *speaker() const { return m_speaker; }
    State state() const { return m_state; }
    bool isUnitThere() const { return m_terminal.isUnitThere(); }

    /// What the unit last told about \a topic; empty when nothing.
    QString observation(const QString &topic) const { return m_observations.value(topic); }
    /// All that the unit has told so far, by topic.
    const QMap<QString, QString> &observations() const { return m_observations; }

    /// Starts the box as the unit's ready does, also when none came: it sends its state and talks.
    void start();

    /// The car's keys, knobs and touch screen. Before ready and in silence nothing of them is sent.
    BoxKeyboard *keys() { return &m_keys; }

    /// Sends \a bytes at once, whatever the state.
    void sendRaw(const QByteArray &bytes);
    /// Sends \a count (at most 65536) bytes of noise: the same ones in each run.
    void sendNoise(int count);
    /// What goes wrong on the line with packages and acknowledgements.
    LineFaults *faults() { return &m_faults; }
    /// Says nothing at all for \a ms; what is to be sent waits.
    void holdTongue(int ms);
    /// For how many ms it still does so; 0 when it speaks.
    int silenceLeft() const { return qMax(0, m_tongueTimer.remainingTime()); }

    /// See PseudoTerminal::canUnplug().
    bool canUnplug() const { return m_terminal.canUnplug(); }
    /// Pulls the line out, and puts it back \a ms later; 0 leaves it out until replug(). The unit finds
    /// neither device nor link meanwhile.
    void unplug(int ms = 0);
    void replug();
    bool isPlugged() const { return m_terminal.isPlugged(); }
    /// Pulls the line out as soon as firmware packet \a number of an update has arrived; they count from 1.
    void cutUpdateAt(int number) { m_cutUpdateAt = number; }

Q_SIGNALS:
    void unitCame();
    void unitLeft();
    void stateChanged(DecoderBox::State state);
    /// One line per package and event: "  12.345 unit>box 2e8101017c ready".
    void logLine(const QString &line);
    /// See BoxSpeaker::observed().
    void observed(const QString &topic, const QString &value);

private:
    // Either a report, which is put into bytes when its turn comes, or a package that stands.
    struct Entry
    {
        int report = -1;
        BoxPackage package;
        QString meaning;
    };

    void onUnitLeft();
    void onReady();
    void onEnd();
    void onCarChanged(const QString &property);
    void onPackage(const BoxPackage &package, const QByteArray &frame);
    void onBadChecksum(const QByteArray &frame);
    void onAcknowledged();
    void onAcknowledgementMissing();
    void onObserved(const QString &topic, const QString &value);
    void addRepetitions();

    void setState(State state);
    void stopTalking();
    void sendState();
    void enqueueReport(int index);
    void enqueue(const BoxPackage &package, const QString &meaning);
    void sendNext();
    void transmit();
    void answer(quint8 byte);
    void sendAnswer(quint8 byte);
    void log(const QString &direction, const QByteArray &bytes, const QString &meaning);

    SimulatedCar *m_car;
    BoxSpeaker *m_speaker;
    PseudoTerminal m_terminal;
    FrameReceiver m_receiver;
    State m_state = WaitsForReady;
    QMap<QString, QString> m_observations;

    QQueue<Entry> m_queue;
    QByteArray m_frame; // on its way and not acknowledged; empty for none
    QString m_frameMeaning;
    int m_resends = 0;
    bool m_isListening = false; // a package is being taken in: what it brings about is sent after its answer
    QTimer m_acknowledgementTimer;

    QVector<QTimer *> m_repetitions; // of reports
    BoxKeyboard m_keys;

    LineFaults m_faults;
    QTimer m_tongueTimer;
    QTimer m_replugTimer;
    int m_cutUpdateAt = 0; // 0 for never
    QElapsedTimer m_clock;
};

#endif // DECODERBOX_H
