#include "vwtripdata.h"

namespace {

const int TripMinimumN = 6;

// By bit 0 of d[1]; distances and speeds count the other way round.
const char *const DistanceUnits[] = {QT_TRANSLATE_NOOP("VolkswagenWindow", "mi"),
                                     QT_TRANSLATE_NOOP("VolkswagenWindow", "km")};
const char *const SpeedUnits[] = {QT_TRANSLATE_NOOP("VolkswagenWindow", "km/h"),
                                  QT_TRANSLATE_NOOP("VolkswagenWindow", "mph")};
// By bits 1..0 of d[1].
const char *const ConsumptionUnits[] = {
    QT_TRANSLATE_NOOP("VolkswagenWindow", "L/100km"), QT_TRANSLATE_NOOP("VolkswagenWindow", "km/L"),
    QT_TRANSLATE_NOOP("VolkswagenWindow", "mph(UK)"), QT_TRANSLATE_NOOP("VolkswagenWindow", "mph(US)")};

Vw::TripValue makeValue(Vw::TripValue::Kind kind, int page, const QString &figure, const char *unit)
{
    const Vw::TripValue value = {kind, page, figure, unit};
    return value;
}

// 7 is "0.7", 75 is "7.5".
QString tenthsText(int tenths)
{
    QString text = QString::number(tenths);
    if (text.size() == 1) {
        return QLatin1String("0.") + text;
    }
    return text.insert(text.size() - 1, QLatin1Char('.'));
}

} // namespace

const quint8 Vw::TripRequests[TripRequestCount] = {0x20, 0x30, 0x40, 0x50};

// d[0]: sub-type, for the values of a page 7..4 the value and 3..0 the page; d[1]: unit (driving time: data);
// d[2..]: little-endian number
Vw::TripValue Vw::tripValue(const PackageView &d)
{
    const TripValue none = makeValue(TripValue::NoValue, -1, QString(), nullptr);
    if (d.n() < TripMinimumN) {
        return none;
    }

    if (d.d(0) == 0x10) {
        return makeValue(TripValue::Range, -1, QString::number(d.u16le(2)), DistanceUnits[d.bit(1, 0)]);
    }
    if (d.d(0) == 0x61) {
        return makeValue(TripValue::Consumption, -1, QString::number(d.u16le(2) / 10),
                         ConsumptionUnits[d.bits(1, 1, 0)]);
    }

    const int page = d.bits(0, 3, 0);
    if (page >= TripPageCount) {
        return none;
    }
    switch (d.bits(0, 7, 4)) {
    case 0x2:
        return makeValue(TripValue::Distance, page, QString::number(d.u32le(2) / 10),
                         DistanceUnits[d.bit(1, 0)]);
    case 0x3:
        return makeValue(TripValue::AverageConsumption, page, tenthsText(d.u16le(2)),
                         ConsumptionUnits[d.bits(1, 1, 0)]);
    case 0x4:
        return makeValue(TripValue::AverageSpeed, page, QString::number(d.u16le(2) / 10),
                         SpeedUnits[d.bit(1, 0)]);
    case 0x5: {
        const int minutes = d.u16le(1);
        return makeValue(TripValue::DrivingTime, page,
                         QString::fromLatin1("%1:%2").arg(minutes / 60).arg(minutes % 60), nullptr);
    }
    default:
        return none;
    }
}

Vw::TyreStates Vw::tyreStates(const PackageView &d)
{
    TyreStates states = {d.n() >= TyreCount, {0, 0, 0, 0}};
    for (int i = 0; i < TyreCount; ++i) {
        states.state[i] = qMin<int>(d.d(i), 2);
    }
    return states;
}

Vw::TyreWarning Vw::tyreWarning(const PackageView &d)
{
    TyreWarning warning = {d.n() >= 2, {false, false, false, false}, d.d(1)};
    for (int i = 0; i < TyreCount; ++i) {
        warning.marked[i] = d.bit(0, i);
    }
    return warning;
}
