#include "callcomparison.h"

#include "bitprobe.h"
#include "boxcatalog.h"
#include "boxspeaker.h"
#include "childprocess.h"
#include "commandapplication.h"
#include "decoderbox.h"
#include "probestart.h"

#include "orbapplication.h"

#include <QDataStream>

#include <memory>

namespace {

const int MostNamed = 3; // effects in one line

using AllEffects = QVector<BitProbe::Effects>;

// The data that both have said of one command, in the first one's order.
QVector<QByteArray> sharedData(const LineTraffic &first, const LineTraffic &second, quint8 command)
{
    QSet<QByteArray> known;
    for (const LineTraffic::Package &package : second.packages[LineTraffic::ToUnit].value(command)) {
        known.insert(package.data);
    }
    QVector<QByteArray> shared;
    for (const LineTraffic::Package &package : first.packages[LineTraffic::ToUnit].value(command)) {
        if (known.remove(package.data)) {
            shared << package.data;
        }
    }
    return shared;
}

// In a child: runs a unit and tries \a datas on it, each as a fresh one's first of the command.
QString tryAll(int type, const QString &plugin, quint8 command, const QVector<QByteArray> &datas,
               AllEffects *effects)
{
    QString error;
    const std::unique_ptr<OrbApplication> application = CommandApplication::makeUnit(&error);
    if (!application) {
        return error;
    }
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(type, nullptr, &error));
    ProbeUnit unit;
    if (!box || !unit.start(plugin, type, ProbeStart::greeting(*box->speaker(), command), &error)) {
        return error;
    }
    QVector<ProbeUnit::Packages> trials;
    for (const QByteArray &data : datas) {
        trials << ProbeUnit::Packages{box->speaker()->format().frame({command, data})};
    }
    for (const ProbeUnit::Trial &trial : unit.tryFresh(trials)) {
        *effects << BitProbe::effectsOf(trial);
    }
    return QString();
}

// A type is built once per process, hence the child.
bool effectsOf(int type, const QString &plugin, quint8 command, const QVector<QByteArray> &datas,
               AllEffects *effects, QString *error)
{
    QByteArray told;
    int status = 0;
    const bool isRun = ChildProcess::run(
        [&](int result) {
            QByteArray bytes;
            QDataStream stream(&bytes, QIODevice::WriteOnly);
            AllEffects found;
            stream << tryAll(type, plugin, command, datas, &found) << found;
            ChildProcess::writeAll(result, bytes);
        },
        &told, &status);
    QDataStream stream(told);
    stream >> *error >> *effects;
    if (error->isEmpty() && (!isRun || stream.status() != QDataStream::Ok)) {
        *error = QString("a unit with %1 did not come to an end").arg(BoxCatalog::className(type));
    }
    return error->isEmpty();
}

QString textOf(const BitProbe::Effects &first, const BitProbe::Effects &second)
{
    const auto value = [](const BitProbe::Effects &effects, const QString &name) {
        const QString text = effects.value(name, "nothing");
        return text.isEmpty() ? QString("empty") : text;
    };
    BitProbe::Effects both = first;
    both.insert(second);
    QStringList parts;
    int unnamed = 0;
    for (const QString &name : both.keys()) {
        if (first.contains(name) != second.contains(name) || first.value(name) != second.value(name)) {
            if (parts.size() < MostNamed) {
                parts << QString("%1 is %2 in the first, %3 in the second")
                             .arg(name, value(first, name), value(second, name));
            } else {
                ++unnamed;
            }
        }
    }
    return parts.join("; ") + (unnamed > 0 ? QString("; and %1 more").arg(unnamed) : QString());
}

} // namespace

bool CallComparison::add(const LineTraffic &first, const LineTraffic &second, const int types[2],
                         const QString &plugin, QVector<LineComparison::Difference> *result, QString *error)
{
    for (const quint8 command : first.packages[LineTraffic::ToUnit].keys()) {
        const QVector<QByteArray> datas = sharedData(first, second, command);
        AllEffects effects[2];
        for (int side = 0; side < 2 && !datas.isEmpty(); ++side) {
            if (!effectsOf(types[side], plugin, command, datas, &effects[side], error)) {
                return false;
            }
        }
        int count = 0;
        int example = -1;
        for (int i = 0; i < datas.size(); ++i) {
            if (effects[0].at(i) != effects[1].at(i)) {
                example = example < 0 ? i : example;
                ++count;
            }
        }
        if (count > 0) {
            const QString text =
                QString("%1 of %2 packages that both have; at %3 %4")
                    .arg(count)
                    .arg(datas.size())
                    .arg(datas.at(example).isEmpty() ? QString("no data")
                                                     : QString::fromLatin1(datas.at(example).toHex(' ')),
                         textOf(effects[0].at(example), effects[1].at(example)));
            *result << LineComparison::Difference{"calls", "box>unit", command, text};
        }
    }
    return true;
}
