#ifndef CANBUS_RAISE_HONDA_H
#define CANBUS_RAISE_HONDA_H

#include "raisesyncadapter.h"

#include "airconditiondlg.h"

class QTime;

/// Raise decoder in a Honda, CAN-bus type 7: wheel keys, steering angle, two radar groups, status bits and
/// climate. Sets the car's clock every ten seconds and tells the car which source plays.
class CanBus_Raise_Honda : public RaiseSyncAdapter
{
    Q_OBJECT

public:
    CanBus_Raise_Honda();

    CommandTable commands() const override;
    void onInited() override;

    using RaiseAdapter::writeSettingData;
    /// Sends \a len bytes for the setting \a item; at most 254 fit into a package, further ones are left out.
    void writeSettingData(unsigned char item, const char *data, unsigned char len);

    /// Hour, minute and second as the car's clock takes them, for a clock of 12 or 24 hours.
    static QByteArray clockData(const QTime &time, bool twelveHours);

public Q_SLOTS:
    /// Sets the car's clock to the local time.
    void onSyncTimer() override;

private:
    void onClimate(const PackageView &d);
    void updateVisibility(const PackageView &d);

    static bool s_climateShown;

    AirConditionDlg m_climate;
};

#endif // CANBUS_RAISE_HONDA_H
