#include "probestart.h"

#include "boxcatalog.h"
#include "boxspeaker.h"
#include "childprocess.h"
#include "decoderbox.h"
#include "virtualclock.h"

namespace {

const std::time_t StartOfClock = 1767268800; // 2026-01-01 12:00, as drives start

} // namespace

bool ProbeStart::prepare(QString *error)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC"); // what the unit tells of the time is the same everywhere
    if (!VirtualClock::start(StartOfClock)) {
        *error = "the virtual clock does not reach the libraries of this program";
        return false;
    }
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) {}); // of hundreds of trials
    return true;
}

ProbeUnit::Packages ProbeStart::greeting(const BoxSpeaker &speaker, int command)
{
    ProbeUnit::Packages frames;
    for (int i = 0; i < speaker.reports().size(); ++i) {
        const BoxReport &report = speaker.reports().at(i);
        if (report.atStart && int(report.command) != command) {
            frames << speaker.format().frame(speaker.reportPackage(i));
        }
    }
    return frames;
}

int ProbeStart::reportsOf(const BoxSpeaker &speaker, quint8 command)
{
    int count = 0;
    for (const BoxReport &report : speaker.reports()) {
        count += report.command == command ? 1 : 0;
    }
    return count;
}

QVector<ScreenPath::Step> ProbeStart::screenSteps(const QString &plugin, int type)
{
    QByteArray told;
    int status = 0;
    ChildProcess::run(
        [&](int result) {
            QString error;
            const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
            QByteArray bytes;
            QDataStream stream(&bytes, QIODevice::WriteOnly);
            ProbeUnit unit;
            if (box && unit.start(plugin, type, greeting(*box->speaker()), &error)) {
                stream << unit.screens().steps();
            }
            ChildProcess::writeAll(result, bytes);
        },
        &told, &status);
    QVector<ScreenPath::Step> steps;
    QDataStream stream(told);
    stream >> steps;
    return steps;
}
