#ifndef CANBUS_RAISE_VOLKSWAGEN_H
#define CANBUS_RAISE_VOLKSWAGEN_H

#include "raise/raiseadapter.h"
#include "vwkeptreports.h"

#include "airconditiondlg.h"

#include <QPointer>

class VolkswagenWindow;

/// Raise decoder in a Volkswagen, CAN-bus type 3: wheel and function keys, two radar groups, climate and
/// status bits. Everything else (driving data, tyres, settings, reports) goes to the car's screens through
/// recvCanDatas. Registers the application "Car infos" (769), whose screen showApp opens.
class CanBus_Raise_Volkswagen : public RaiseAdapter
{
    Q_OBJECT

public:
    enum App { CarInfosApp = 769 };

    CanBus_Raise_Volkswagen();

    CommandTable commands() const override;
    void onInited() override;

    /// Shows the "Car infos" screen for CarInfosApp, which is built at the first call; other ids are ignored.
    void showApp(unsigned int appId) override;
    void translateApp() override;

    void syncSettingData(unsigned char param) override;

    /// Nothing: 0x40 brings values of the settings pages, which take it through recvCanDatas; it bears no key.
    void processFKKey40(unsigned char *) {}

    /// Hands \a screen, by its onRecvCanDatas, what the box last reported by itself and nobody can ask for
    /// (tyres, start-stop system, vehicle reports, consumers, consumption). For a screen that opens later.
    template <class Screen>
    void repeatReports(Screen *screen) const
    {
        m_reports.repeat(screen);
    }

    /// Milliseconds since the box last reported \a command, one of those; -1 when it has not.
    qint64 reportAge(quint8 command) const { return m_reports.age(command); }

    /// Whether a service of the car is overdue, as far as the box has told.
    bool isServiceOverdue() const { return m_reports.isServiceOverdue(); }

Q_SIGNALS:
    /// The unit's language changed; visible texts are to be translated anew.
    void languageChanged();

protected:
    void onOtherPackage(const PackageView &package) override;

private:
    void greetBox() override;
    void processFKKey20(const PackageView &d);
    void onClimate(const PackageView &d);
    void onRadar22(const PackageView &d);
    void onRadar23(const PackageView &d);
    void processFKKey2F(const PackageView &d);

    static QPointer<VolkswagenWindow> s_window;

    AirConditionDlg m_climate;
    Vw::KeptReports m_reports;
};

#endif // CANBUS_RAISE_VOLKSWAGEN_H
