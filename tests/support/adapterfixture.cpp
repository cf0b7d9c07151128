#include "adapterfixture.h"

#include "orbhost.h"
#include "xinhangwire.h"

namespace {

const int InitTime = 70; // ms, a little more than an adapter waits before onInited

// The trace's line of a package that was received.
QString received(const QByteArray &package)
{
    return "ProtocolUtils.recvProtocolData(" + package.toHex() + ')';
}

void setPort(const QVariant &path)
{
    OrbHost::instance()->setProductValue("CANPortName", path);
}

} // namespace

AdapterFixture::AdapterFixture()
{
    TestSupport::watchConnects();
}

AdapterFixture::~AdapterFixture()
{
    if (!m_adapter) {
        return;
    }
    // Without a port name the adapter lets go of the line.
    setPort(QString());
    m_adapter->initAdapter();
    delete m_adapter;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    setPort(QVariant());
}

void AdapterFixture::open()
{
    openPort(box.path());
}

void AdapterFixture::openPort(const QString &path)
{
    setPort(path);
    m_adapter->initAdapter();
}

void AdapterFixture::settle()
{
    QTest::qWait(InitTime);
    box.takeUntilQuiet();
    trace.take();
}

QStringList AdapterFixture::exchange(const QByteArrayList &packages)
{
    const bool isXinHang = m_adapter->inherits("CanBus_XinHang"); // the one box that wants no acknowledgement
    box.take();
    trace.take();
    QStringList faults;
    if (!box.send(packages.join())) {
        faults << "the line is full";
    }
    const QString last = received(packages.last());
    PtyBox::waitUntil([&] {
        return trace.lines().contains(last) &&
               (isXinHang || RaiseWire::parse(box.received()).acknowledgements >= packages.size());
    });
    QStringList lines = trace.take();
    if (!isXinHang) {
        const RaiseWire::Traffic traffic = RaiseWire::parse(box.take());
        if (traffic.acknowledgements != packages.size() || !traffic.faults.isEmpty()) {
            faults << QString("%1 acknowledgements, faults: ").arg(traffic.acknowledgements) +
                          traffic.faults.join(", ");
        }
    }
    const int passed = isXinHang ? 1 : 2; // lines of the trace that a package has to itself
    for (const QByteArray &package : packages) {
        const int at = int(lines.indexOf(received(package)));
        if (at < 0 || (!isXinHang && lines.value(at + 1) != "ProtocolUtils.writeDatas_direct(ff)")) {
            faults << "not taken and acknowledged first: " + package.toHex(' ');
        } else {
            lines.erase(lines.begin() + at, lines.begin() + at + passed);
        }
    }
    return lines + faults;
}

QStringList AdapterFixture::exchange(const char *packages)
{
    QByteArrayList frames;
    for (const QByteArray &package : QByteArray(packages).split('|')) {
        frames << (m_adapter->inherits("CanBus_XinHang") ? XinHangWire::frame(package)
                                                         : RaiseWire::frame(package));
    }
    return exchange(frames);
}
