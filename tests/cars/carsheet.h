#ifndef CARSHEET_H
#define CARSHEET_H

#include "canbustype.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QStringList>

/// One row of a car's vectors: packages that go in and every call on the framework that comes out, in order.
/// The packages are "COMMAND DATA..." in hexadecimal, apart by bars; `setup` are packages sent before, whose
/// calls do not matter. Acknowledgements are checked for every package and not listed.
struct CarVector
{
    const char *name;
    const char *setup;
    QByteArray packages;
    QStringList trace;
};
typedef QList<CarVector> CarVectors;

typedef QMap<int, int> Codes; // code of the box and key or level of the unit

/// What the adapter of one car does, as its box's data sheet has it: one file per car in sheets/, which puts
/// itself into the list. The tests walk all sheets; what is empty is not claimed.
struct CarSheet
{
    /// Keys that one command reports as (code, state): "1000072=01,81 1000070=02" names the unit's keys and
    /// the box's codes that stand for each, in hexadecimal. Every other code is no key. Knobs count detents.
    struct Keys
    {
        int command;
        int last; ///< the framework's fourth argument
        const char *keys;
        const char *knobs; ///< null for none
    };

    /// Radar of one command: the event, the data byte of each level ('-': always 0), the levels.
    struct Radar
    {
        int command;
        int event;
        const char *sensors;
        Codes levels;
        int otherwise;
    };

    /// Values first..last show start, start + step, ... with the unit; a unit without a degree sign in front
    /// is the text itself. Any other value shows nothing.
    struct Run
    {
        int first;
        int last;
        double start;
        double step;
        const char *unit;
    };
    struct Temperatures
    {
        QByteArray package; ///< "28 80 00 LL RR 00": LL and RR are the left and right value
        QList<Run> runs;
    };

    CanBusType type = CanBusTypeNone;
    QByteArray car; ///< the sheet's file name, "toyota": the word for this car in the boxes' catalog

    // The line, and what is said at start-up: packages apart by bars, those of a clock cut to "c6 50".
    int baudRate = 38400;
    long timeout = -1;
    QByteArray startUp;
    int timerInterval = 0; ///< ms of the periodic timer, 0 for none
    bool timerRuns = false;
    // A car that repeats its ready command: a package that does not end that, and one that does.
    QByteArray otherPackage;
    QByteArray endsReady;

    QList<Keys> keys;
    QList<Radar> radar;
    QList<Temperatures> temperatures;
    CarVectors vectors;

    // Mode report: the package with MM for the mode's code, and the codes of the modes 0 to 19 in hexadecimal.
    QByteArray modePackage;
    QByteArray modeCodes;

    // The two-byte packages of writeSettingData and syncData without their data, empty for none: "c6".
    QByteArray settingCommand;
    QByteArray requestCommand;

    bool isRaiseFramed() const { return type != CanBusTypeXinHang; }
    /// "CanBus_Raise_Toyota"; "type 99" for a car that the plug-in does not have.
    QByteArray name() const;
};

/// All sheets in order of their types. The environment variable CANBUS_CAR, a car's word, leaves one.
const QList<CarSheet> &carSheets();

/// Whether all cars are tested, not one.
bool areAllCarsTested();

/// The sheet of \a type, null when it is not tested.
const CarSheet *findSheet(int type);

/// Puts a sheet into the list; one at file scope of each file in sheets/.
struct CarSheetEntry
{
    CarSheetEntry(CarSheet (*make)(), const char *file);
};

namespace Expect {

/// Trace lines: a key in one phase; car-data events, one for each value; the calls of the climate dialog,
/// "on(true) ac(true) auto(true) wind(7) fan(3) circ(1) defrost() temp(21.5°C,LO) show(true)" in the car's
/// order.
QStringList pressed(int key, int last);
QStringList held(int key, int last);
QStringList released(int key, int last);
QStringList angles(const QList<int> &degrees);
QStringList radar(int what, const char *levels);
QStringList status(const QList<int> &bits);
QStringList climate(const QByteArray &calls);

} // namespace Expect

#endif // CARSHEET_H
