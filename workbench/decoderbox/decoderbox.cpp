#include "decoderbox.h"

#include <utility>

namespace {

const int AcknowledgementMs = 100;
const int MostResends = 3;
const int MostQueued = 256;
const int MostNoise = 65536;

const quint8 GoodAnswer = 0xFF;
const quint8 BadChecksumAnswer = 0xF0;
const quint8 UnknownCommandAnswer = 0xF3;

} // namespace

DecoderBox::DecoderBox(SimulatedCar *car, BoxSpeaker *speaker, QObject *parent)
    : QObject(parent), m_car(car), m_speaker(speaker), m_receiver(speaker->format()), m_keys(speaker)
{
    m_car->setParent(this);
    m_speaker->setParent(this);
    m_acknowledgementTimer.setSingleShot(true);
    m_acknowledgementTimer.setTimerType(Qt::PreciseTimer);
    m_tongueTimer.setSingleShot(true);
    m_replugTimer.setSingleShot(true);
    m_terminal.setBaud(speaker->baudRate());
    m_clock.start();

    connect(&m_terminal, &PseudoTerminal::received, &m_receiver, &FrameReceiver::feed);
    connect(&m_terminal, &PseudoTerminal::unitCame, this, &DecoderBox::unitCame);
    connect(&m_terminal, &PseudoTerminal::unitLeft, this, &DecoderBox::onUnitLeft);
    connect(&m_receiver, &FrameReceiver::packageReceived, this, &DecoderBox::onPackage);
    connect(&m_receiver, &FrameReceiver::badChecksum, this, &DecoderBox::onBadChecksum);
    connect(&m_receiver, &FrameReceiver::acknowledged, this, &DecoderBox::onAcknowledged);
    connect(m_speaker, &BoxSpeaker::readyReceived, this, &DecoderBox::onReady);
    connect(m_speaker, &BoxSpeaker::endReceived, this, &DecoderBox::onEnd);
    connect(m_speaker, &BoxSpeaker::reportDue, this, &DecoderBox::enqueueReport);
    connect(m_speaker, &BoxSpeaker::packageDue, this, &DecoderBox::enqueue);
    connect(m_speaker, &BoxSpeaker::observed, this, &DecoderBox::onObserved);
    connect(m_car, &SimulatedCar::changed, this, &DecoderBox::onCarChanged);
    connect(&m_acknowledgementTimer, &QTimer::timeout, this, &DecoderBox::onAcknowledgementMissing);
    connect(&m_keys, &BoxKeyboard::packageDue, this, &DecoderBox::enqueue);
    connect(&m_tongueTimer, &QTimer::timeout, this, &DecoderBox::sendNext);
    connect(&m_replugTimer, &QTimer::timeout, this, &DecoderBox::replug);
    addRepetitions();
}

void DecoderBox::addRepetitions()
{
    for (int i = 0; i < m_speaker->reports().size(); ++i) {
        const int period = m_speaker->reports().at(i).period;
        if (period > 0) {
            QTimer *timer = new QTimer(this);
            timer->setInterval(period);
            timer->setTimerType(Qt::PreciseTimer);
            connect(timer, &QTimer::timeout, this, [this, i] { enqueueReport(i); });
            m_repetitions << timer;
        }
    }
}

bool DecoderBox::open(const QString &link, QString *error)
{
    return m_terminal.open(link, error);
}

void DecoderBox::start()
{
    stopTalking();
    setState(Talks);
    sendState();
    for (QTimer *timer : std::as_const(m_repetitions)) {
        timer->start();
    }
}

void DecoderBox::sendRaw(const QByteArray &bytes)
{
    log("box>unit", bytes,
        m_terminal.write(bytes) ? "raw bytes" : "raw bytes, dropped: the unit does not read");
}

void DecoderBox::sendNoise(int count)
{
    sendRaw(m_faults.noise(qMin(count, MostNoise)));
}

// From the event loop: whoever asks may be in the middle of what the line has just brought.
void DecoderBox::unplug(int ms)
{
    QTimer::singleShot(0, this, [this, ms] {
        if (m_terminal.isPlugged()) {
            m_terminal.unplug();
            log("box", {}, "the line is pulled out");
        }
        m_replugTimer.stop();
        if (ms > 0) {
            m_replugTimer.start(ms);
        }
    });
}

void DecoderBox::replug()
{
    QString error;
    m_replugTimer.stop();
    if (!m_terminal.isPlugged()) {
        log("box", {}, m_terminal.replug(&error) ? "the line is back" : error);
    }
}

void DecoderBox::holdTongue(int ms)
{
    m_tongueTimer.start(ms);
}

void DecoderBox::onUnitLeft()
{
    m_receiver.clear();
    stopTalking();
    setState(WaitsForReady);
    Q_EMIT unitLeft();
}

void DecoderBox::onReady()
{
    if (m_state != Talks) {
        start();
    }
}

void DecoderBox::onEnd()
{
    stopTalking();
    setState(WaitsForReady);
}

void DecoderBox::onCarChanged(const QString &property)
{
    for (int i = 0; i < m_speaker->reports().size(); ++i) {
        if (m_speaker->reports().at(i).isAbout(property)) {
            enqueueReport(i);
        }
    }
}

void DecoderBox::onPackage(const BoxPackage &package, const QByteArray &frame)
{
    QString meaning;
    m_isListening = true;
    const BoxSpeaker::Understanding understanding = m_speaker->receive(package, &meaning);
    m_isListening = false;
    log("unit>box", frame, meaning);
    // The answer leaves before what the package has brought about.
    answer(understanding == BoxSpeaker::UnknownCommand ? UnknownCommandAnswer : GoodAnswer);
    sendNext();
}

void DecoderBox::onBadChecksum(const QByteArray &frame)
{
    log("unit>box", frame, "bad checksum");
    answer(BadChecksumAnswer);
}

void DecoderBox::onAcknowledged()
{
    if (!m_frame.isEmpty() && m_speaker->usesAcknowledgement()) {
        m_frame.clear();
        m_acknowledgementTimer.stop();
        sendNext();
    }
}

void DecoderBox::onAcknowledgementMissing()
{
    if (m_tongueTimer.isActive()) {
        m_acknowledgementTimer.start(AcknowledgementMs);
        return;
    }
    if (m_resends < MostResends) {
        ++m_resends;
        transmit();
        return;
    }
    log("box", m_frame, QString("no acknowledgement of %1: silent until started again").arg(m_frameMeaning));
    stopTalking();
    setState(Silent);
}

void DecoderBox::onObserved(const QString &topic, const QString &value)
{
    m_observations.insert(topic, value);
    if (m_cutUpdateAt > 0 && topic == "firmware" &&
        value.startsWith(QString("receiving %1/").arg(m_cutUpdateAt))) {
        m_cutUpdateAt = 0;
        unplug();
    }
    Q_EMIT observed(topic, value);
}

void DecoderBox::setState(State state)
{
    if (m_state != state) {
        m_state = state;
        Q_EMIT stateChanged(state);
    }
}

void DecoderBox::stopTalking()
{
    m_queue.clear();
    m_frame.clear();
    m_acknowledgementTimer.stop();
    m_keys.letGo();
    for (QTimer *timer : std::as_const(m_repetitions)) {
        timer->stop();
    }
}

void DecoderBox::sendState()
{
    for (int i = 0; i < m_speaker->reports().size(); ++i) {
        if (m_speaker->reports().at(i).atStart) {
            enqueueReport(i);
        }
    }
}

// A report that waits already will tell the newest state when its turn comes.
void DecoderBox::enqueueReport(int index)
{
    if (m_state != Talks) {
        return;
    }
    for (const Entry &entry : std::as_const(m_queue)) {
        if (entry.report == index) {
            return;
        }
    }
    m_queue.enqueue({index, {}, m_speaker->reports().at(index).meaning});
    sendNext();
}

void DecoderBox::enqueue(const BoxPackage &package, const QString &meaning)
{
    if (m_state != Talks) {
        return;
    }
    if (m_queue.size() >= MostQueued) {
        log("box", {}, "too much to send, dropped: " + meaning);
        return;
    }
    m_queue.enqueue({-1, package, meaning});
    sendNext();
}

void DecoderBox::sendNext()
{
    while (m_frame.isEmpty() && !m_queue.isEmpty() && !m_isListening && !m_tongueTimer.isActive()) {
        const Entry entry = m_queue.dequeue();
        const BoxPackage package = entry.report < 0 ? entry.package : m_speaker->reportPackage(entry.report);
        m_frame = m_speaker->format().frame(package);
        m_frameMeaning = entry.meaning;
        m_resends = 0;
        transmit();
        if (!m_speaker->usesAcknowledgement()) {
            m_frame.clear();
        }
    }
}

void DecoderBox::transmit()
{
    const LineFaults::Spoilt frame = m_faults.spoil(m_frame, m_speaker->format().lengthAt);
    // The wait for the unit's acknowledgement begins when the package is out.
    if (m_speaker->usesAcknowledgement()) {
        m_acknowledgementTimer.start(AcknowledgementMs + m_terminal.duration(int(frame.bytes.size())) +
                                     frame.pauseMs);
    }
    QString meaning = m_frameMeaning;
    if (m_resends > 0) {
        meaning += QString(", resend %1").arg(m_resends);
    }
    meaning += frame.what;
    const bool isOut = m_terminal.write(frame.bytes.left(frame.pauseAt)) &&
                       m_terminal.write(frame.bytes.mid(frame.pauseAt), frame.pauseMs);
    if (!isOut) {
        meaning += ", dropped: the unit does not read";
    }
    log("box>unit", frame.bytes, meaning);
}

void DecoderBox::answer(quint8 byte)
{
    if (!m_speaker->usesAcknowledgement()) {
        return;
    }
    const int lateness = m_faults.lateness();
    if (lateness > 0) {
        log("box", {}, QString("the acknowledgement comes %1 ms late").arg(lateness));
        QTimer::singleShot(lateness, Qt::PreciseTimer, this, [this, byte] { sendAnswer(byte); });
    } else {
        sendAnswer(byte);
    }
}

void DecoderBox::sendAnswer(quint8 byte)
{
    if (!m_tongueTimer.isActive()) {
        m_terminal.write(QByteArray(1, char(byte)));
    }
    if (byte != GoodAnswer) {
        log("box>unit", QByteArray(1, char(byte)), "refused");
    }
}

void DecoderBox::log(const QString &direction, const QByteArray &bytes, const QString &meaning)
{
    QStringList parts = {QString::number(double(m_clock.elapsed()) / 1000, 'f', 3).rightJustified(8),
                         direction};
    if (!bytes.isEmpty()) {
        parts << QString::fromLatin1(bytes.toHex());
    }
    Q_EMIT logLine((parts << meaning).join(' '));
}
