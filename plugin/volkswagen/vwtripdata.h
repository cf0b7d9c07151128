#ifndef VWTRIPDATA_H
#define VWTRIPDATA_H

#include "packageview.h"

#include <QString>

/// What the box's trip computer and tyre packages say, as plain values.
namespace Vw {

/// Pages of the trip computer, each with values of its own.
enum TripPage { SinceStart, SinceRefuelling, LongTerm, TripPageCount };

/// One figure of the trip computer.
struct TripValue
{
    enum Kind {
        Range,
        Consumption,
        AverageConsumption,
        Distance,
        AverageSpeed,
        DrivingTime,
        KindCount,
        NoValue = -1
    };

    Kind kind;
    int page;         ///< the TripPage that the figure belongs to, -1 for every page
    QString figure;   ///< number without unit
    const char *unit; ///< source text of the unit (context VolkswagenWindow), null for none

    /// Whether the figure is to be seen on page \a shown.
    bool isOn(int shown) const { return kind != NoValue && (page < 0 || page == shown); }
};

/// The figure of a trip package (0x50). NoValue for an unknown sub-type and for fewer than 6 data bytes.
TripValue tripValue(const PackageView &d);

/// Request sub-types that together fill \a page of the trip computer.
enum { TripRequestCount = 4 };
extern const quint8 TripRequests[TripRequestCount];
const quint8 RangeRequest = 0x10;

/// Tyres in the order in which the box reports them.
enum Tyre { LeftFront, RightFront, LeftRear, RightRear, TyreCount };

/// Tyre states (0x65): 0 normal, 1 low, 2 high; larger ones count as 2. Not valid below 4 data bytes.
struct TyreStates
{
    bool valid;
    int state[TyreCount];
};
TyreStates tyreStates(const PackageView &d);

/// Tyre warning (0x68): the tyres that are marked, and the number of the message. Not valid below 2 data
/// bytes.
struct TyreWarning
{
    bool valid;
    bool marked[TyreCount];
    int message;
};
TyreWarning tyreWarning(const PackageView &d);

} // namespace Vw

#endif // VWTRIPDATA_H
