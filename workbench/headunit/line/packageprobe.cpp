#include "packageprobe.h"

#include "screenwatch.h"

#include "orbhost.h"
#include "virtualline.h"

#include <QEventLoop>
#include <QTimer>

#include <unistd.h>

namespace {

const uint CanBusTypeTag = 0x10008;
const int StartTime = 300;   // ms of the virtual clock until the unit has said what it says at start
const int PackageTime = 12;  // ms that the unit gets for a package; it reads every 4
const int MostContexts = 12; // other packages that one is tried behind

} // namespace

PackageProbe::PackageProbe(int type, const FrameFormat &format, QObject *parent)
    : QObject(parent), m_type(type), m_format(format), m_watch(&format, {}, nullptr)
{
    connect(&m_watch, &PackageWatch::packageDone, this,
            [this](const QByteArray &, bool isExplained) { m_isExplained = m_isExplained || isExplained; });
}

PackageProbe::~PackageProbe()
{
    m_unit.unloadPlugin();
    OrbTrace::setListener(nullptr);
}

bool PackageProbe::start(const QString &path, QString *error)
{
    if (!m_terminal.open(error)) {
        return false;
    }
    if (!m_terminal.holdLine() || !m_settings.isValid()) {
        *error = "there is no line, or no folder, for a unit";
        return false;
    }
    OrbHost *host = OrbHost::instance();
    host->setSettingsDir(m_settings.path());
    host->setTag(CanBusTypeTag, m_type);
    host->setProductValue("CANPortName", m_terminal.devicePath());
    OrbTrace::setListener(&m_watch);
    if (!m_unit.loadPlugin(path, error)) {
        return false;
    }
    pass(StartTime);
    ScreenWatch::openWindows(&m_unit);
    pass(StartTime);
    return true;
}

QVector<bool> PackageProbe::explained(const QVector<QByteArray> &packages)
{
    QVector<bool> explained;
    for (int i = 0; i < packages.size(); ++i) {
        explained << (tryOne(packages.at(i)) || tryBehindOthers(packages, i));
    }
    return explained;
}

bool PackageProbe::tryBehindOthers(const QVector<QByteArray> &packages, int index)
{
    const quint8 command = m_format.package(packages.at(index)).command;
    int contexts = 0;
    for (int other = 0; other < packages.size() && contexts < MostContexts; ++other) {
        if (other != index && m_format.package(packages.at(other)).command == command) {
            ++contexts;
            play(packages.at(other));
            if (tryOne(packages.at(index))) {
                return true;
            }
        }
    }
    return false;
}

bool PackageProbe::tryOne(const QByteArray &package)
{
    const QByteArray before = ScreenWatch::fingerprint();
    m_isExplained = false;
    play(package);
    return m_isExplained || ScreenWatch::fingerprint() != before;
}

void PackageProbe::play(const QByteArray &package)
{
    char answers[4096];
    while (::read(m_terminal.farEnd(), answers, sizeof answers) > 0) {
    }
    if (::write(m_terminal.farEnd(), package.constData(), size_t(package.size())) == package.size()) {
        VirtualLine::waitUntilThere(m_terminal, int(package.size()));
    }
    pass(PackageTime);
}

void PackageProbe::pass(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}
