#ifndef CANBUS_RAISE_VOLKSWAGEN_H
#define CANBUS_RAISE_VOLKSWAGEN_H

#include "raise/raiseadapter.h"

#include "airconditiondlg.h"

#include <QList>
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
    /// (tyres, start-stop system, vehicle reports, consumers). For a screen that opens later.
    template <class Screen>
    void repeatReports(Screen *screen) const
    {
        for (int i = 0; i < m_lastReports.size(); ++i) {
            const QByteArray &report = m_lastReports.at(i);
            const quint8 *const bytes = reinterpret_cast<const quint8 *>(report.constData());
            screen->onRecvCanDatas(bytes[0], bytes + 1, quint8(report.size() - 1));
        }
    }

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

    void keepReport(const PackageView &package);

    static QPointer<VolkswagenWindow> s_window;

    AirConditionDlg m_climate;
    // The last package of each such command, the command byte before the data, in order of arrival.
    QList<QByteArray> m_lastReports;
};

#endif // CANBUS_RAISE_VOLKSWAGEN_H
