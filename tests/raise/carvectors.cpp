#include "carvectors.h"

#include "adapterfixture.h"

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

QStringList Expect::angle(int degrees)
{
    return carData(0x501C, 0, QString(",variant=%1").arg(degrees));
}

QStringList Expect::radar(int what, const char *levels)
{
    return carData(what, 0, QString(",bytes=%1").arg(levels));
}

QStringList Expect::status(int bits)
{
    return carData(0x501B, bits);
}

QStringList Expect::climate(const char *calls)
{
    return TestSupport::words("AirConditionDlg.", QString::fromUtf8(calls));
}
