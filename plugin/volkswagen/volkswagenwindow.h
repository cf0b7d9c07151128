#ifndef VOLKSWAGENWINDOW_H
#define VOLKSWAGENWINDOW_H

#include "orbmainwindow.h"

#include <QScopedPointer>

class CanBus_Raise_Volkswagen;
class QTimer;
class Ui_VolkswagenWindow;
class VwDrivingPage;
class VwTyrePage;

/// "Car infos": the trip computer with its three pages (tab `tabRange`) and the tyres (tab `tabTPMS`).
///
/// Figures stand in `labelRange`, `labelConsumption`, `labelAverageConsumption`, `labelDistance`,
/// `labelAverageSpeed` and `labelDrivingTime`, the page's name in `labelPageTitle`; tyre states in
/// `labelTyreLeftFront`, `labelTyreRightFront`, `labelTyreLeftRear` and `labelTyreRightRear`, tyre marks in
/// the frames of the same endings (`frameTyreLeftFront` ...), the tyre message in `labelTpmsState`. What warns the
/// driver stands over the driving data (`btnTyreWarning`, `btnServiceWarning`) and as a badge on the rail's buttons.
class VolkswagenWindow : public OrbMainWindow
{
    Q_OBJECT

public:
    /// \a adapter must outlive the window.
    explicit VolkswagenWindow(CanBus_Raise_Volkswagen *adapter, QWidget *parent = nullptr);
    ~VolkswagenWindow() override;

    /// Turns to trip page \a index, round both ends, and asks the box for its values.
    void changeRangeIndex(int index);

    /// Asks the box for the four values of trip page \a page, 0..2; others are ignored.
    void syncDrivingData(int page);

public Q_SLOTS:
    void onRecvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen);

protected:
    void onLoadUiSkin() override;
    void onVisibleChange(bool visible) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_btnRange_clicked();
    void on_btnTPMS_clicked();
    void on_btnCarStatus_clicked();
    void on_btnSetting_clicked();
    void on_btnTyreWarning_clicked();
    void on_btnServiceWarning_clicked();
    void on_btnLeft_clicked();
    void on_btnRight_clicked();
    void showAges();
    void retranslate();

private:
    void showTab(QWidget *tab);
    void showWarnings();
    void openSettings(unsigned int page);

    CanBus_Raise_Volkswagen *const m_adapter;
    const QScopedPointer<Ui_VolkswagenWindow> m_ui;
    VwDrivingPage *m_driving;
    VwTyrePage *m_tyres;
    QTimer *const m_ageTimer;
};

#endif // VOLKSWAGENWINDOW_H
