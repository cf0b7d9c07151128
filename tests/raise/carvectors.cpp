#include "carvectors.h"

#include "adapterfixture.h"

#include <QMap>

namespace {

QStringList carData(int what, int value, const QString &more = QString())
{
    return {QString("dispatchOrbEvent(400,12,51007,%1,%2%3)").arg(what).arg(value).arg(more)};
}

} // namespace

QStringList Expect::pressed(int key, int last)
{
    return {TestSupport::key(key, true, false, last)};
}

QStringList Expect::held(int key, int last)
{
    return {TestSupport::key(key, true, true, last)};
}

QStringList Expect::released(int key, int last)
{
    return {TestSupport::key(key, false, false, last)};
}

QStringList Expect::angles(const QList<int> &degrees)
{
    QStringList lines;
    for (const int angle : degrees) {
        lines += carData(0x501C, 0, QString(",variant=%1").arg(angle));
    }
    return lines;
}

QStringList Expect::radar(int what, const char *levels)
{
    return carData(what, 0, QString(",bytes=%1").arg(levels));
}

QStringList Expect::status(const QList<int> &bits)
{
    QStringList lines;
    for (const int value : bits) {
        lines += carData(0x501B, value);
    }
    return lines;
}

QStringList Expect::climate(const QByteArray &calls)
{
    static const QMap<QString, QString> names = {
        {"on", "setAirConditionEnable"},  {"ac", "setACEnable"},      {"auto", "setAutoModeEnable"},
        {"wind", "setWindDirectEx"},      {"fan", "setAirVolume"},    {"circ", "setCirculationMode"},
        {"defrost", "setDefrostingMode"}, {"temp", "setTemperature"}, {"show", "setVisible"}};
    QStringList lines;
    for (const QString &call : QString::fromUtf8(calls).split(' ')) {
        const QString name = call.section('(', 0, 0);
        lines << "AirConditionDlg." + names.value(name) + call.mid(name.size());
    }
    return lines;
}

QList<QPair<const char *, CarVectors>> allVectors()
{
    return {{"CanBus_Raise_Toyota", toyotaVectors()},
            {"CanBus_Raise_Honda", hondaVectors()},
            {"CanBus_Raise_GM", gmVectors()},
            {"CanBus_Raise_Jeep", jeepVectors()},
            {"CanBus_XBS_Mazda", mazdaVectors()}};
}
