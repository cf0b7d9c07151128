#include "portcheck.h"

#include "portholder.h"
#include "portlistener.h"

#include <QFile>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const int WantedAnswer = 10; // ms within which a box wants its acknowledgement

bool readStatus(const QString &path, struct stat *status)
{
    return ::stat(QFile::encodeName(path).constData(), status) == 0;
}

bool isVersionCommand(quint8 command)
{
    return command == 0x30 || command == 0x7F;
}

QString percent(double part)
{
    return QString("%1 %").arg(int(part * 100));
}

} // namespace

QString CheckResult::statusText() const
{
    static const char *const texts[] = {"ok", "warning", "failure"};
    return texts[status];
}

PortCheck::PortCheck(const QString &path, const QString &root)
    : m_path(path), m_root(root), m_device(PortList::find(path, root))
{}

CheckResult PortCheck::device() const
{
    struct stat status;
    if (!readStatus(m_path, &status)) {
        return {"device", CheckResult::Failure, QString("there is no %1").arg(m_path),
                "plug the adapter in; headunit --list-ports shows what is there"};
    }
    if (!S_ISCHR(status.st_mode)) {
        return {"device", CheckResult::Failure, QString("%1 is no serial device").arg(m_path),
                "headunit --list-ports shows those that are"};
    }
    QStringList words = {m_device.path, m_device.usbId, m_device.manufacturer, m_device.product,
                         m_device.byId};
    words.removeAll(QString());
    return {"device", CheckResult::Ok, words.join(", "), QString()};
}

CheckResult PortCheck::permission() const
{
    struct stat status;
    const QByteArray path = QFile::encodeName(m_path);
    if (!readStatus(m_path, &status)) {
        return {"permission", CheckResult::Failure, "there is nothing to open", QString()};
    }
    if (::access(path.constData(), R_OK | W_OK) == 0) {
        return {"permission", CheckResult::Ok, "you may read and write it", QString()};
    }
    const group *owner = ::getgrgid(status.st_gid);
    const QString name = owner ? QString::fromLocal8Bit(owner->gr_name) : QString::number(status.st_gid);
    return {"permission", CheckResult::Failure, QString("you may not open it, the group %1 may").arg(name),
            QString("sudo usermod -aG %1 $USER, then log in again").arg(name)};
}

CheckResult PortCheck::holders() const
{
    const QStringList names = PortHolder::processesAt(m_path);
    if (names.isEmpty()) {
        return {"free", CheckResult::Ok, "no process is seen to have it open", QString()};
    }
    return {"free", CheckResult::Failure, "it is in use by " + names.join(", "),
            "end that program: two readers take each other's bytes"};
}

CheckResult PortCheck::latency() const
{
    if (m_device.latencyMs < 0) {
        return {"latency", CheckResult::Ok, "the adapter has no setting for how long it keeps bytes back",
                QString()};
    }
    const QString finding = QString("the adapter keeps bytes back for %1 ms").arg(m_device.latencyMs);
    if (m_device.latencyMs < WantedAnswer) {
        return {"latency", CheckResult::Ok, finding, QString()};
    }
    return {"latency", CheckResult::Warning,
            finding + QString(", and a box wants its acknowledgement within %1").arg(WantedAnswer),
            QString("echo 1 | sudo tee %1").arg(PortList::latencyFile(m_device))};
}

// ---------------------------------------------------------------------------------------------- the box

CheckResult BoxCheck::bytes(const PortListener &listener)
{
    const qint64 count = listener.best().byteCount();
    if (count == 0) {
        return {"bytes", CheckResult::Failure, "nothing has come, nor when the box was greeted",
                "is the box powered, ignition on, and are RX and TX crossed?"};
    }
    return {"bytes", CheckResult::Ok, QString("%1 bytes have come").arg(count), QString()};
}

CheckResult BoxCheck::packages(const PortListener &listener, int baud)
{
    const PackageCensus &census = listener.best();
    const QString share = QString("%1 packages at %2 baud, %3 of the bytes, %4 with a bad checksum")
                              .arg(census.packageCount())
                              .arg(baud)
                              .arg(percent(census.framed()))
                              .arg(census.badCount());
    if (census.packageCount() == 0) {
        return {"packages", CheckResult::Failure,
                census.byteCount() == 0 ? "none has come" : "bytes but no packages at any baud rate",
                census.byteCount() == 0 ? QString()
                                        : "another baud rate or another make of box; ground connected?"};
    }
    if (census.badCount() > 0 || census.framed() < 0.9) {
        return {"packages", CheckResult::Warning, share,
                "look at the wires: ground, length, the level of the signal"};
    }
    return {"packages", CheckResult::Ok, share, QString()};
}

CheckResult BoxCheck::acknowledgement(const PortListener &listener, const CheckResult &latency)
{
    const qint64 repetitions = listener.best().repetitions();
    if (listener.best().packageCount() == 0) {
        return {"answers", CheckResult::Warning, "no package to answer; " + latency.finding, latency.advice};
    }
    if (repetitions > 0) {
        return {"answers", CheckResult::Warning,
                QString("the box repeated itself %1 times: acknowledgements reach it late; %2")
                    .arg(repetitions)
                    .arg(latency.finding),
                latency.advice};
    }
    return {"answers", latency.status, "the box repeated nothing; " + latency.finding, latency.advice};
}

CheckResult BoxCheck::handshake(const PortListener &listener)
{
    const qint64 after = listener.answeredAfter();
    if (after < 0 || listener.best().packageCount() == 0) {
        return {"handshake", CheckResult::Failure, "the box did not answer to a greeting",
                "RX may be connected and TX not"};
    }
    return {"handshake", CheckResult::Ok, QString("the box spoke %1 ms after the greeting").arg(after / 1000),
            QString()};
}

CheckResult BoxCheck::version(const PortListener &listener)
{
    for (const QByteArray &frame : listener.raise().packages()) {
        const BoxPackage package = FrameFormat::raise().package(frame);
        if (isVersionCommand(package.command)) {
            QString text;
            for (const char letter :
                 package.data.left(int(qstrnlen(package.data.constData(), uint(package.n()))))) {
                text += letter >= ' ' && letter <= '~' ? QChar(letter) : QChar('?');
            }
            return {"version", CheckResult::Ok, '"' + text.trimmed() + '"', QString()};
        }
    }
    return {"version", CheckResult::Warning, "the box did not tell its version", QString()};
}
