#include "simulatedunit.h"

#include "boxtools.h"
#include "virtualclock.h"

#include <QTest>

#include <fcntl.h>
#include <unistd.h>

SimulatedUnit::SimulatedUnit(const DecoderBox &box, int acknowledgements)
    : m_isXinHang(!box.speaker()->usesAcknowledgement())
    , m_device(::open(box.portPath().toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    , m_acknowledgements(acknowledgements)
    , m_notifier(new QSocketNotifier(m_device, QSocketNotifier::Read))
{
    m_clock.start();
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SimulatedUnit::read);
}

SimulatedUnit::~SimulatedUnit()
{
    m_notifier.reset();
    ::close(m_device);
}

void SimulatedUnit::write(const QByteArray &bytes)
{
    int written = 0;
    int tries = 0; // without a byte that the line took
    while (written < bytes.size()) {
        const ssize_t count = ::write(m_device, bytes.constData() + written, size_t(bytes.size() - written));
        written += int(qMax(ssize_t(0), count));
        tries = count > 0 ? 0 : tries + 1;
        if (tries > 1000) {
            qFatal("the box does not read");
        }
        if (written < bytes.size()) {
            {
                // The kernel makes room in its own time.
                const VirtualClock::Hold hold;
                ::usleep(200);
            }
            QTest::qWait(1);
        }
    }
}

QVector<QByteArray> SimulatedUnit::frames() const
{
    QVector<QByteArray> result;
    for (const Arrival &package : m_packages) {
        result << package.bytes;
    }
    return result;
}

void SimulatedUnit::forget()
{
    m_packages.clear();
    m_singleBytes.clear();
}

void SimulatedUnit::read()
{
    char bytes[4096];
    const ssize_t count = ::read(m_device, bytes, sizeof bytes);
    if (count <= 0) {
        m_notifier->setEnabled(false); // hung up: it would be readable for ever
        return;
    }
    m_buffer.append(bytes, int(count));
    while (!m_buffer.isEmpty()) {
        const quint8 first = quint8(m_buffer.front());
        const bool isXinHang = m_isXinHang && first == 0xF0;
        if (first != 0x2E && !isXinHang) {
            m_singleBytes += m_buffer.left(1);
            m_buffer.remove(0, 1);
            continue;
        }
        const int lengthAt = isXinHang ? 1 : 2;
        const int rest = isXinHang ? 3 : 4;
        const int size = m_buffer.size() > lengthAt ? quint8(m_buffer.at(lengthAt)) + rest : -1;
        if (size < 0 || m_buffer.size() < size) {
            break;
        }
        m_packages << Arrival{m_clock.elapsed(), m_buffer.left(size)};
        m_buffer.remove(0, size);
        if (!isXinHang && m_acknowledgements != 0) {
            m_acknowledgements = qMax(-1, m_acknowledgements - 1);
            write(QByteArray(1, '\xFF'));
        }
        Q_EMIT arrived(m_packages.last().bytes);
    }
}

std::unique_ptr<DecoderBox> openBox(int type, bool isPaced)
{
    QString error;
    std::unique_ptr<DecoderBox> box = makeBox(type);
    if (!isPaced) {
        box->setUnpaced();
    }
    if (!box->open(QString(), &error)) {
        qFatal("%s", qPrintable(error));
    }
    return box;
}

Conversation::Conversation(int type) : box(openBox(type)), unit(*box)
{
    int reports = 0;
    for (const BoxReport &report : box->speaker()->reports()) {
        reports += report.atStart;
    }
    box->start();
    if (!QTest::qWaitFor([&] { return unit.packages().size() == reports; })) {
        qFatal("the box does not tell its state");
    }
    unit.forget();
}
