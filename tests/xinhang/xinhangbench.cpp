#include "xinhangbench.h"

#include <QDir>
#include <QRegularExpression>
#include <QSettings>
#include <QTimer>

namespace {

const char Received[] = "ProtocolUtils.recvProtocolData(";

QString readable(const QString &line)
{
    static const QRegularExpression write("^ProtocolUtils\\.writeDatas\\((\\w+)\\)$");
    static const QRegularExpression key("^OrbApplication\\.simulateKey\\((\\d+),(\\w+),(\\w+),0\\)$");
    QRegularExpressionMatch match = write.match(line);
    if (match.hasMatch())
        return "send " + XinHangWire::parse(QByteArray::fromHex(match.captured(1).toLatin1())).join(" + ");
    match = key.match(line);
    if (!match.hasMatch())
        return line;
    const QString phase = match.captured(2) == "false" ? "release" : "press";
    return "key " + QString::number(match.captured(1).toInt(), 16) + ' ' +
           (match.captured(3) == "true" ? "held" : phase);
}

} // namespace

QByteArray XinHangWire::frame(const QByteArray &commandAndData)
{
    const QByteArray body = QByteArray::fromHex(commandAndData);
    int sum = 0;
    for (const char byte : body)
        sum += quint8(byte);
    return QByteArray("\xF0") + char(body.size()) + body + char(0xFF - sum % 256);
}

QByteArrayList XinHangWire::parse(QByteArray sent)
{
    QByteArrayList packages;
    while (!sent.isEmpty()) {
        const QByteArray body = sent.mid(2, sent.size() > 1 ? quint8(sent.at(1)) : 0);
        const QByteArray package = frame(body.toHex());
        if (!sent.startsWith(package))
            return packages << "bad " + sent.toHex(' ');
        packages << body.toHex(' ');
        sent.remove(0, package.size());
    }
    return packages;
}

QString XinHang::joined(const QStringList &calls)
{
    return calls.join("; ");
}

QString XinHang::settingsFile()
{
    static const QTemporaryDir folder;
    OrbHost::instance()->setSettingsDir(folder.path());
    return folder.filePath("carsetting.ini");
}

XinHangBench::XinHangBench(const QVariantMap &settings)
{
    const QString file = XinHang::settingsFile();
    QDir(QFileInfo(file).path()).removeRecursively();
    OrbIniConfig config("carsetting.ini", "CarSetting");
    for (auto at = settings.begin(); at != settings.end(); ++at)
        config.setValue(at.key(), at.value());
    adapter = construct<CanBus_XinHang>();
    open();
    const QTimer *const ready = adapter->findChild<QTimer *>("sendReadyTimer");
    PtyBox::waitUntil([ready] { return ready->isActive(); });
    calls();
}

QStringList XinHangBench::exchange(const QByteArray &packages)
{
    calls();
    QByteArray bytes;
    int wanted = 0;
    for (const QByteArray &package : packages.split('|')) {
        bytes += XinHangWire::frame(package);
        ++wanted;
    }
    box.send(bytes);
    PtyBox::waitUntil([&] {
        int received = 0;
        for (const QString &line : trace.lines())
            received += line.startsWith(Received);
        return received == wanted;
    });
    return calls();
}

QStringList XinHangBench::calls()
{
    QStringList calls;
    for (const QString &line : trace.take()) {
        if (!line.startsWith(Received))
            calls << readable(line);
    }
    return calls;
}

void XinHangBench::drive(int carType, const QByteArray &screen)
{
    static quint8 change = 0; // two equal status packages would be one
    const QByteArray display = screen == "factory" ? "10" : "00";
    exchange("0a " + QByteArray(1, char(carType >> 8)).toHex() + QByteArray(1, char(carType)).toHex() +
             " | 01 " + display + " 00 00 " + QByteArray(1, char(++change)).toHex());
}

bool XinHangBench::passLongPress()
{
    QTimer *const timer = adapter->findChild<QTimer *>("switchDisplayTimer");
    if (!timer->isActive())
        return false;
    timer->start(0);
    PtyBox::waitUntil([timer] { return !timer->isActive(); });
    timer->setInterval(1500);
    return true;
}
