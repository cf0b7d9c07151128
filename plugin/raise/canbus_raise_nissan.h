#ifndef CANBUS_RAISE_NISSAN_H
#define CANBUS_RAISE_NISSAN_H

#include "raisesyncadapter.h"

class QTime;

/// Raise decoder in a Nissan, CAN-bus type 8: keys of wheel and console, steering angle, two radar groups, doors; the
/// car asks for sources and answers calls. Amplifier, parking picture and driving aids are told as values. Sets the
/// car's clock every ten seconds and tells the car which source plays.
class CanBus_Raise_Nissan : public RaiseSyncAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Nissan();

    CommandTable commands() const override;
    void onInited() override;

    /// Minute, hour and display format as the car's clock takes them; the hour is always 0 to 23.
    static QByteArray clockData(const QTime &time, bool twelveHours);

public Q_SLOTS:
    /// Sets the car's clock to the local time.
    void onSyncTimer() override;

private:
    void onSourceRequest(const PackageView &d);
    void onCallRequest(const PackageView &d);
};

#endif // CANBUS_RAISE_NISSAN_H
