#include "protocolutils_p.h"

#include "orbtrace.h"

#include <QDynamicPropertyChangeEvent>

namespace {

// Boxes want their acknowledgement within 10 ms, and a device need not announce what arrives. A poll costs little more
// than waking up for it, so a line that is silent for a minute is asked half as often.
const int PollInterval = 4;
const int SilentPollInterval = 8;
const int SilentPolls = 60000 / PollInterval;

// No package pauses for so long in its middle.
const int PauseTime = 40;
// A GUI thread that was busy for longer than this has not been listening; such time ages no candidate.
const int LongestPollGap = 50;

// Pauses before each try to open a lost device again (50, 100, 250 and 500 ms after the loss); the last one
// repeats.
const int ReopenPauses[] = {50, 50, 150, 250, 1000};
const int LastReopenPause = int(sizeof ReopenPauses / sizeof ReopenPauses[0]) - 1;
// A device that hangs up again sooner than this, without a word, is not tried again as soon as that.
const int SteadyTime = 1000;

// What an adapter keeps in dynamic properties is for whoever looks on. A filter, since an event() of the framer's would
// be one more function that a plug-in finds in this framework alone.
class ValueTeller : public QObject
{
public:
    explicit ValueTeller(QObject *adapter) : QObject(adapter) { adapter->installEventFilter(this); }

    bool eventFilter(QObject *adapter, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange && OrbTrace::listener) {
            const QByteArray name = static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
            OrbTrace::listener->valueTold(QString::fromLatin1(name.constData()),
                                          adapter->property(name.constData()));
        }
        return false;
    }
};

} // namespace

ProtocolUtils::Private::Private(ProtocolUtils *utils)
    : parent(utils)
    , poll(new PollTimer(utils))
    , reopen(new QTimer(utils))
    , writer(new PacedWriter(utils))
    , device(nullptr)
    , isOpen(false)
    , openMode(QIODevice::ReadWrite)
    , tries(0)
    , announces(false)
    , answered(0)
    , openedAt(0)
    , polledAt(0)
    , idlePolls(0)
    , minimum(1)
    , cursor(0)
    , candidateSize(0)
    , needed(0)
    , behindPackage(false)
    , lookedInto(0)
    , streamBase(0)
    , quietTime(0)
    , special(0)
{
    reopen->setSingleShot(true);
    // Qt 4.8 leaves them as the memory was.
    sinceOpened.invalidate();
    sincePoll.invalidate();
    clock.start();
}

void ProtocolUtils::Private::tryAgainLater()
{
    reopen->start(ReopenPauses[tries]);
    tries = qMin(tries + 1, LastReopenPause);
}

void ProtocolUtils::Private::rest()
{
    if (announces && answered == 0) {
        poll->stop();
    } else if (idlePolls < SilentPolls && ++idlePolls == SilentPolls) {
        poll->start(SilentPollInterval);
    }
}

ProtocolUtils::ProtocolUtils(QObject *parent) : QObject(parent), m_d(new Private(this))
{
    new ValueTeller(this);
    connect(m_d->reopen, SIGNAL(timeout()), this, SLOT(onReopenTimer()));
    connect(m_d->writer, SIGNAL(sent(QByteArray)), this, SLOT(onPackageSent(QByteArray)));
    connect(m_d->writer, SIGNAL(failed()), this, SLOT(onDeviceLost()));
}

ProtocolUtils::~ProtocolUtils()
{
    delete m_d;
}

void ProtocolUtils::attachIODevice(QIODevice *device)
{
    if (m_d->device) {
        disconnect(m_d->device, nullptr, this, nullptr);
    }
    m_d->device = device;
    m_d->isOpen = device && device->isOpen();
    m_d->announces = false;
    m_d->writer->setDevice(nullptr);
    recvBuffer.reserve(Private::BufferSize);
    m_d->poll->stop();
    m_d->reopen->stop();
    if (!device) {
        return;
    }
    m_d->minimum = qMax(1, getPackageMinSize());
    connect(device, SIGNAL(readyRead()), this, SLOT(onDataAnnounced()));
    connect(device, SIGNAL(aboutToClose()), this, SLOT(onPollTimer()), Qt::QueuedConnection);
    connect(device, SIGNAL(readChannelFinished()), this, SLOT(onDeviceLost()));
    connect(device, SIGNAL(destroyed()), this, SLOT(onDeviceDestroyed()));
    if (m_d->isOpen) {
        m_d->openMode = device->openMode();
        startPolling();
    } else {
        m_d->openMode = QIODevice::ReadWrite;
        m_d->tries = 0;
        m_d->tryAgainLater();
    }
}

// A device has been opened: what the one before left unfinished does not go on here.
void ProtocolUtils::startPolling()
{
    m_d->cursor = int(recvBuffer.size());
    m_d->candidateSize = 0;
    m_d->needed = 0;
    m_d->behindPackage = false;
    m_d->age.clear();
    m_d->quietTime = 0;
    m_d->openedAt = m_d->streamEnd();
    m_d->polledAt = m_d->openedAt;
    m_d->sinceOpened.start();
    m_d->sincePoll.start();
    m_d->idlePolls = 0;
    m_d->poll->start(PollInterval);
    m_d->writer->setDevice(m_d->device);
}

// ---------------------------------------------------------------------------------------------- reading

void ProtocolUtils::onReadDeviceDatas()
{
    Private *const p = m_d;
    while (p->isOpen) {
        // A read may wait for what is not there, and Qt 4's for as much as it was asked for.
        const qint64 available = p->device->bytesAvailable();
        if (available == 0) {
            return;
        }
        if (available < 0) {
            onDeviceLost();
            return;
        }
        // The device writes behind the bytes that are held, into reserved room; the size follows what came.
        const int wanted = int(qMin<qint64>(available, Private::ReadSize));
        const int held = p->makeRoom(&recvBuffer, wanted);
        const int count = int(p->device->read(recvBuffer.data() + held, wanted));
        if (count <= 0) {
            recvBuffer.resize(held);
            onDeviceLost();
            return;
        }
        recvBuffer.resize(held + count);
        if (held + count - p->cursor >= p->needed) {
            framePackages();
        }
    }
}

// The timer runs meanwhile: a slot further down may run an event loop, in which many a device announces nothing.
void ProtocolUtils::onDataAnnounced()
{
    m_d->announces = true;
    if (m_d->isOpen && !m_d->poll->isActive()) {
        m_d->poll->start(PollInterval);
    }
    ++m_d->answered;
    onReadDeviceDatas();
    --m_d->answered;
    if (!m_d->isWaiting()) {
        m_d->rest();
    }
}

void ProtocolUtils::onPollTimer()
{
    // Read first: what has already arrived is not late, however long the thread was busy.
    onReadDeviceDatas();
    if (m_d->isOpen && !m_d->device->isOpen()) {
        onDeviceLost(); // somebody else has closed it
    }
    if (!m_d->isOpen) {
        return;
    }
    const qint64 streamEnd = m_d->streamEnd();
    const bool received = streamEnd != m_d->polledAt;
    if (!received && !m_d->isWaiting()) {
        m_d->rest();
        return;
    }

    if (m_d->idlePolls >= SilentPolls) {
        m_d->poll->start(PollInterval);
    }
    m_d->idlePolls = 0;
    m_d->polledAt = streamEnd;
    const int elapsed = int(qMin<qint64>(m_d->sincePoll.restart(), LongestPollGap));
    m_d->quietTime = received ? 0 : m_d->quietTime + elapsed;
    m_d->age.advance(elapsed, streamEnd);
    // A box says what is not acknowledged again after 100 ms, and only three times: it must not wait for a
    // candidate that its own repetitions fill up.
    const bool pause = m_d->quietTime >= PauseTime && m_d->quietTime - elapsed < PauseTime;
    while (recvBuffer.size() > m_d->cursor &&
           (m_d->age.isStale(m_d->streamBase + m_d->cursor) || (pause && holdsPackageBehind()))) {
        ++m_d->cursor;
        m_d->candidateSize = 0;
        framePackages();
    }
}

// ---------------------------------------------------------------------------------------------- writing

void ProtocolUtils::setWritePackageIntval(int milliseconds)
{
    m_d->writer->setInterval(milliseconds);
}

void ProtocolUtils::writeDatas(const QByteArray &package)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("ProtocolUtils", "writeDatas", QVariantList() << package);
    }
    m_d->writer->enqueue(package);
}

void ProtocolUtils::writeDatas_direct(const QByteArray &bytes)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("ProtocolUtils", "writeDatas_direct", QVariantList() << bytes);
    }
    m_d->writer->writeNow(bytes);
}

void ProtocolUtils::onPackageSent(const QByteArray &package)
{
    if (m_d->special & Private::Logging) {
        m_d->log("send", package);
    }
}

// ---------------------------------------------------------------------------------------- device states

void ProtocolUtils::onDeviceLost()
{
    if (!m_d->isOpen) {
        return;
    }
    qWarning("ProtocolUtils: lost the device, trying to open it again");
    m_d->poll->stop();
    m_d->writer->setDevice(nullptr);
    if (m_d->streamEnd() != m_d->openedAt || m_d->sinceOpened.elapsed() >= SteadyTime) {
        m_d->tries = 0;
    }
    m_d->tryAgainLater();
    m_d->isOpen = false;
    m_d->device->close();
}

void ProtocolUtils::onDeviceDestroyed()
{
    m_d->device = nullptr; // nothing to disconnect from
    attachIODevice(nullptr);
}

void ProtocolUtils::onReopenTimer()
{
    if (!m_d->device->isOpen() && !m_d->device->open(m_d->openMode)) {
        m_d->tryAgainLater();
        return;
    }
    m_d->isOpen = true;
    qWarning("ProtocolUtils: the device is there again");
    startPolling();
}

void ProtocolUtils::setDebugMode(const QString &tag, bool on)
{
    m_d->tag = tag;
    m_d->special = on ? m_d->special | Private::Logging : m_d->special & ~Private::Logging;
}
