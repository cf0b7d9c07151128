#include "carbench.h"

#include "transcript.h"

#include "orbhost.h"
#include "qextserialport.h"
#include "raise/raiseadapter.h"

#include <QTime>
#include <QTimer>

#include <cstring>

namespace {

// A car's own timers, not those of the framer.
QList<QTimer *> periodicTimers(const CanBusAdapter *car)
{
    QList<QTimer *> timers;
    for (QTimer *timer : car->findChildren<QTimer *>()) {
        if (timer->interval() == 200 || timer->interval() == 500 || timer->interval() >= 10000) {
            timers << timer;
        }
    }
    return timers;
}

// Readable, a key's press and release as one, and the same again and again as "3 x".
QStringList folded(const QStringList &calls)
{
    QStringList lines;
    QList<int> counts;
    for (const QString &call : calls) {
        QString line = TestSupport::readable(call);
        if (!lines.isEmpty() && lines.last().contains(" press") &&
            QString(lines.last()).replace(" press", " release") == line) {
            line.replace(" release", " tap");
            lines.removeLast();
            counts.removeLast();
        }
        if (!lines.isEmpty() && line == lines.last()) {
            ++counts.last();
        } else {
            lines << line;
            counts << 1;
        }
    }
    for (int i = 0; i < lines.size(); ++i) {
        lines[i].prepend(counts.at(i) > 1 ? QString("%1 x ").arg(counts.at(i)) : QString());
    }
    return lines;
}

// A clock without its time.
QByteArray timeless(const QByteArray &package)
{
    if (package.startsWith("c6 50")) {
        return package.left(8) + " .."; // of Honda, with its hour
    }
    if (package.startsWith("c8 ")) {
        return "c8 .. .. " + package.mid(9, 2); // minute, hour, display format
    }
    const bool isHaval = package.startsWith("83 03 ") && package.size() == int(strlen("83 03 hh mm"));
    return isHaval ? QByteArray("83 03 .. ..") : package;
}

// What a package that the unit queues says, for a box with this frame; any other call as it is.
QStringList said(const QString &call)
{
    if (!call.startsWith("ProtocolUtils.writeDatas(")) {
        return {call};
    }
    QStringList lines;
    const RaiseWire::Traffic traffic = RaiseWire::parse(QByteArray::fromHex(call.section('(', 1).toLatin1()));
    for (const QByteArray &package : traffic.packages) {
        lines << "sends " + timeless(package);
    }
    for (const QByteArray &fault : traffic.faults) {
        lines << "fault " + fault;
    }
    return lines;
}

QVariant valueOf(const QString &text)
{
    if (text.isEmpty() || text.startsWith('"')) {
        return text.isEmpty() ? QVariant() : QVariant(text.mid(1).chopped(1));
    }
    return text.toULongLong(nullptr, 16);
}

} // namespace

CanBusAdapter *CarBench::car()
{
    if (!m_car) {
        start();
        for (QTimer *timer : periodicTimers(m_car)) {
            timer->stop();
        }
    }
    return m_car;
}

QStringList CarBench::act(const QString &order)
{
    const QString word = order.section(' ', 0, 0);
    const QString rest = order.section(' ', 1);
    if (word == "start") {
        return start();
    }
    if (word == "still") {
        m_car = nullptr;
    } else if (word == "tag") {
        OrbHost::instance()->setTag(rest.section(' ', 0, 0).toUInt(nullptr, 16),
                                    valueOf(rest.section(' ', 1)));
    } else if (word == "product") {
        OrbHost::instance()->setProductValue(rest.section(' ', 0, 0), valueOf(rest.section(' ', 1)));
    }
    if (QStringList{"==", "still", "tag", "product"}.contains(word)) {
        return {};
    }
    CanBusAdapter *const adapter = car();
    m_fixture->trace.take();
    RaiseAdapter *const raise = dynamic_cast<RaiseAdapter *>(adapter);
    const QByteArray bytes = QByteArray::fromHex(rest.toLatin1());
    if (word == "wait") {
        QTest::qWait(rest.toInt());
    } else if (word == "minute") {
        const QTime now = QTime::currentTime();
        QTest::qWait(60500 - now.second() * 1000 - now.msec());
        m_fixture->trace.take();
    } else if (word == "call") {
        QMetaObject::invokeMethod(adapter, rest.toLatin1().constData());
    } else if (word == "write" && raise) {
        raise->writeSettingData(uchar(bytes.at(0)), uchar(bytes.at(1)));
    } else if (word == "sync" && raise) {
        raise->syncData(uchar(bytes.at(0)), uchar(bytes.at(1)));
    } else if (word == "current" && raise) {
        return {QString::number(raise->currentKey(), 16)};
    } else if (word == "modes") {
        return modes();
    } else if (word == "each") {
        return each(rest);
    } else {
        static const QRegularExpression packages("^[0-9a-f]{2}( [0-9a-f]{2}| \\| [0-9a-f]{2})*$");
        if (!packages.match(order).hasMatch()) {
            return {"there is no such order"};
        }
        const QStringList calls = m_fixture->exchange(order.toLatin1().constData());
        QStringList lines;
        for (const QString &call : calls) {
            lines << (raise ? said(call) : QStringList(call));
        }
        return folded(lines);
    }
    return sent();
}

QStringList CarBench::sent()
{
    QStringList lines;
    for (const QString &line : m_fixture->trace.take()) {
        lines << (line.startsWith("ProtocolUtils.writeDatas(") ? said(line) : QStringList());
    }
    return lines;
}

QStringList CarBench::start()
{
    m_fixture.reset();
    m_fixture.reset(new AdapterFixture);
    m_car = m_fixture->take(AdapterFactory::create(m_type));
    if (RaiseAdapter *const raise = dynamic_cast<RaiseAdapter *>(m_car)) {
        // What a screen would get.
        QObject::connect(
            raise, &RaiseAdapter::recvCanDatas, [this](quint8 cmd, const quint8 *datas, quint8 dataLen) {
                m_fixture->trace.called(
                    "adapter", "recvCanDatas",
                    {QByteArray(1, char(cmd)), QByteArray(reinterpret_cast<const char *>(datas), dataLen)});
            });
    }
    m_fixture->open();
    PortSettings settings;
    QStringList lines = {
        m_car->getPortSettings(settings)
            ? QString("%1 baud, time-out %2 ms").arg(int(settings.BaudRate)).arg(settings.Timeout_Millisec)
            : "no port settings"};
    // Nothing before its time; then, before a 200 ms timer has its turn, everything.
    QTest::qWait(25);
    lines << sent() << "after 25 ms";
    QTest::qWait(150);
    lines << sent();
    for (const QTimer *timer : periodicTimers(m_car)) {
        lines << QString("timer of %1 ms, %2").arg(timer->interval()).arg(timer->isActive() ? "on" : "off");
    }
    m_fixture->box.takeUntilQuiet();
    return lines;
}

// Straight into the adapter, of a Raise box. Neighbours that do the same make one line: "06-ff: CALLS".
QStringList CarBench::each(const QString &order)
{
    const QString package = order.section(':', 0, 0);
    const QString name = order.section(": ", 1);
    QStringList lines;
    QString before;
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte = QByteArray(1, char(value)).toHex();
        m_car->onRecvMcuProtocol(RaiseWire::frame(package.toLatin1().replace("??", byte)));
        const QStringList calls = m_fixture->trace.take().filter(QRegularExpression("^(?!ProtocolUtils)"));
        const QString now = folded(calls.filter(name)).join("; ");
        if (!now.isEmpty() && now == before) {
            lines.last().replace(2, lines.last().indexOf(':') - 2, '-' + byte);
        } else if (!now.isEmpty()) {
            lines << byte + ": " + now;
        }
        before = now;
    }
    m_fixture->box.takeUntilQuiet();
    return lines;
}

QStringList CarBench::modes()
{
    QStringList lines;
    for (const uint mode : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 0x106}) {
        Q_EMIT OrbApplication::instance()->modeAppChanged(mode, 6);
        for (const QString &package : sent()) {
            lines << QString("mode %1 ").arg(mode) + package;
        }
    }
    return lines;
}
