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
    const char *packages;
    QStringList trace;
};

typedef QList<CarVector> CarVectors;

CarVectors toyotaVectors();
CarVectors hondaVectors();
CarVectors gmVectors();
CarVectors jeepVectors();
CarVectors mazdaVectors();

namespace Expect {

/// Trace lines: a key in one phase; car-data events; "setA(1) setB(2)" as calls of the climate dialog.
QStringList pressed(int key, int last);
QStringList held(int key, int last);
QStringList released(int key, int last);
QStringList angle(int degrees);
QStringList radar(int what, const char *levels);
QStringList status(int bits);
QStringList climate(const char *calls);

} // namespace Expect

#endif // CARVECTORS_H
