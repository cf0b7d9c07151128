#include "carsheet.h"

#include "adapterfactory.h"
#include "adapterfixture.h"

#include <QFileInfo>

#include <algorithm>

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

namespace {

struct Entry
{
    CarSheet (*make)();
    QByteArray car;
};

// A function's static object: the sheets of other files register before this one's objects exist.
QList<Entry> &entries()
{
    static QList<Entry> all;
    return all;
}

QList<CarSheet> readSheets()
{
    const QByteArray wanted = qgetenv("CANBUS_CAR");
    QList<CarSheet> sheets;
    for (const Entry &entry : entries()) {
        if (areAllCarsTested() || entry.car == wanted) {
            sheets << entry.make();
            sheets.last().car = entry.car;
        }
    }
    std::sort(sheets.begin(), sheets.end(),
              [](const CarSheet &one, const CarSheet &other) { return one.type < other.type; });
    if (sheets.isEmpty()) {
        qFatal("there is no tests/cars/sheets/%s.cpp", wanted.constData());
    }
    return sheets;
}

} // namespace

CarSheetEntry::CarSheetEntry(CarSheet (*make)(), const char *file)
{
    entries() << Entry{make, QFileInfo(file).baseName().toLatin1()};
}

bool areAllCarsTested()
{
    return !qEnvironmentVariableIsSet("CANBUS_CAR");
}

const QList<CarSheet> &carSheets()
{
    static const QList<CarSheet> sheets = readSheets();
    return sheets;
}

const CarSheet *findSheet(int type)
{
    for (const CarSheet &sheet : carSheets()) {
        if (int(sheet.type) == type) {
            return &sheet;
        }
    }
    return nullptr;
}

QByteArray CarSheet::name() const
{
    const char *const className = AdapterFactory::className(type);
    return className ? QByteArray(className) : "type " + QByteArray::number(int(type));
}
