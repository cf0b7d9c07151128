#include "xinhangbench.h"

#include <QDir>
#include <QRegularExpression>
#include <QSettings>
#include <QTimer>

namespace {

const char Received[] = "ProtocolUtils.recvProtocolData(";

// Command and data of the packages in \a sent, in hexadecimal ("83 02"). What is no good package appears as
// "bad" with the rest.
QByteArrayList parse(QByteArray sent)
{
    QByteArrayList packages;
    while (!sent.isEmpty()) {
        const QByteArray body = sent.mid(2, sent.size() > 1 ? quint8(sent.at(1)) : 0);
        const QByteArray package = XinHangWire::frame(body.toHex());
        if (!sent.startsWith(package)) {
            return packages << "bad " + sent.toHex(' ');
        }
        packages << body.toHex(' ');
        sent.remove(0, package.size());
    }
    return packages;
}

QString readable(const QString &line)
{
    static const QRegularExpression write("^ProtocolUtils\\.writeDatas\\((\\w+)\\)$");
    static const QRegularExpression key("^OrbApplication\\.simulateKey\\((\\d+),(\\w+),(\\w+),0\\)$");
    QRegularExpressionMatch match = write.match(line);
    if (match.hasMatch()) {
        return "send " + parse(QByteArray::fromHex(match.captured(1).toLatin1())).join(" + ");
    }
    match = key.match(line);
    if (!match.hasMatch()) {
        return line;
    }
    const QString phase = match.captured(2) == "false" ? "release" : "press";
    return "key " + QString::number(match.captured(1).toInt(), 16) + ' ' +
           (match.captured(3) == "true" ? "held" : phase);
}

} // namespace

QString XinHang::joined(const QStringList &calls)
{
    return calls.join("; ");
}

const QHash<int, int> &XinHang::unitKeys()
{
    static const QHash<int, int> keys = {
        {0x01, 0x01000013}, {0x02, 0x01000015}, {0x03, 0x010000A7}, {0x04, 0x010000A8}, {0x05, 0x01000005},
        {0x06, 0x01000061}, {0x07, 0x01000005}, {0x08, 0x01000082}, {0x09, 0x01000083}, {0x0A, 0x010000C5},
        {0x0B, 0x01000102}, {0x0C, 0x01000070}, {0x0D, 0x01000072}, {0x0E, 0x01000071}, {0x0F, 0x01100004},
        {0x10, 0x01100005}, {0x11, 0x0100117E}, {0x12, 0x01000010}, {0x13, 0x01100008}, {0x14, 0x01100008},
        {0x15, 0x01100008}, {0x16, 0x01000010}, {0x17, 0x010000A2}, {0x18, 0x010000FF}, {0x19, 0x010000F3},
        {0x1A, 0x01000071}, {0x1B, 0x010000FD}, {0x1D, 0x31},       {0x1E, 0x32},       {0x1F, 0x33},
        {0x20, 0x34},       {0x21, 0x35},       {0x22, 0x36},       {0xFE, 0x01000012}, {0xFF, 0x01000014}};
    return keys;
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
    for (auto at = settings.begin(); at != settings.end(); ++at) {
        config.setValue(at.key(), at.value());
    }
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
        for (const QString &line : trace.lines()) {
            received += line.startsWith(Received);
        }
        return received == wanted;
    });
    return calls();
}

QStringList XinHangBench::calls()
{
    QStringList calls;
    for (const QString &line : trace.take()) {
        if (!line.startsWith(Received)) {
            calls << readable(line);
        }
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
    if (!timer->isActive()) {
        return false;
    }
    timer->start(0);
    PtyBox::waitUntil([timer] { return !timer->isActive(); });
    timer->setInterval(1500);
    return true;
}
