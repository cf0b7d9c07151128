#ifndef CARVECTORS_H
#define CARVECTORS_H

#include <QByteArray>
#include <QList>
#include <QStringList>

/// One row of a car's table: packages that go in and every call on the framework that comes out, in order.
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

/// The tables of all cars by class name.
QList<QPair<const char *, CarVectors>> allVectors();

CarVectors toyotaVectors();
CarVectors hondaVectors();
CarVectors gmVectors();
CarVectors jeepVectors();
CarVectors mazdaVectors();

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

#endif // CARVECTORS_H
