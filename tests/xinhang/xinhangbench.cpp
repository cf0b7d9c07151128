#include "xinhangbench.h"

#include "transcript.h"

#include "orbiniconfig.h"

#include <QTimer>

namespace {

/// "83 02" of the package that \a call writes; "bad" with its bytes when it is none.
QString sentBy(const QString &call)
{
    const QByteArray package = QByteArray::fromHex(call.section('(', 1).chopped(1).toLatin1());
    const QByteArray body = package.mid(2).chopped(1).toHex();
    return package == XinHangWire::frame(body) ? QByteArray::fromHex(body).toHex(' ')
                                               : "bad " + package.toHex(' ');
}

} // namespace

XinHangBench::XinHangBench(const QVariantMap &settings, Line line)
{
    OrbHost::instance()->setSettingsDir(m_folder.path());
    OrbIniConfig config("carsetting.ini", "CarSetting");
    for (auto at = settings.begin(); at != settings.end(); ++at) {
        config.setValue(at.key(), at.value());
    }
    adapter = construct<CanBus_XinHang>();
    if (line == NoLine) {
        adapter->onInited();
        return;
    }
    open();
    const QTimer *const ready = adapter->findChild<QTimer *>("sendReadyTimer");
    PtyBox::waitUntil([ready] { return ready->isActive(); });
}

QStringList XinHangBench::feed(const QByteArray &packages)
{
    calls();
    for (const QByteArray &package : packages.split('|')) {
        adapter->onRecvMcuProtocol(XinHangWire::frame(package));
    }
    return calls();
}

QStringList XinHangBench::calls()
{
    QStringList calls;
    for (const QString &line : trace.take()) {
        if (line.startsWith("ProtocolUtils.writeDatas(")) {
            calls << "send " + sentBy(line);
        } else if (!line.startsWith("ProtocolUtils.recvProtocolData(")) {
            calls << TestSupport::readable(line);
        }
    }
    return calls;
}

void XinHangBench::drive(int carType, const QString &screen)
{
    const char type[] = {0x0a, char(carType >> 8), char(carType)};
    const char status[] = {0x01, char(screen == "factory" ? 0x10 : 0), 0, 0, char(++m_change)};
    feed(QByteArray(type, sizeof type).toHex() + '|' + QByteArray(status, sizeof status).toHex());
}

bool XinHangBench::passLongPress()
{
    if (!adapter->findChild<QTimer *>("switchDisplayTimer")->isActive()) {
        return false;
    }
    adapter->onSwitchDisplayTimer();
    return true;
}
