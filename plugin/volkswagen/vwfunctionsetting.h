#ifndef VWFUNCTIONSETTING_H
#define VWFUNCTIONSETTING_H

#include "vwchoicememory.h"
#include "vwpagestate.h"
#include "vwtexts.h"

#include "orbmainwindow.h"

#include <QPointer>
#include <QStringList>
#include <QTimer>

class CanBus_Raise_Volkswagen;
class QAbstractItemModel;
class QLabel;
class QModelIndex;
class SelectDialog;
class TableListView;
class TableViewItemDatas;
class TableViewModel;

/// One page of the car's settings: a list whose rows open further pages, switch, or ask in a dialog. What the
/// car has not told looks so. `labelFoot` says that the page waits for a car that has been silent for two
/// seconds (it is then asked once more), or how old a report is. The page deletes itself when the driver
/// leaves it (back or home).
class VWFunctionSetting : public OrbMainWindow
{
    Q_OBJECT

public:
    /// \a appId: the page, one of Vw::SettingsPage; an unknown one is an empty page without a title.
    /// \a adapter must outlive the page.
    VWFunctionSetting(unsigned int appId, CanBus_Raise_Volkswagen *adapter, QWidget *parent = nullptr);
    ~VWFunctionSetting() override;

    /// Title of page \a appId, empty for an unknown one.
    static QString getAppTitleFromId(unsigned int appId);

    /// Texts of numbers that the car reports, in the unit's language; empty for a number without a text.
    static QString getStartStopInfo(int number) { return Vw::getStartStopInfo(number); }
    static QString getReportInfo(int number) { return Vw::getReportInfo(number); }
    static QString getConvConsumerInfo(int number) { return Vw::getConvConsumerInfo(number); }

    /// Value and unit of a number's row, from its bind data ("80 km/h").
    static QString getItemSliderValueText(const TableViewItemDatas &row);

public Q_SLOTS:
    void onRecvCanDatas(quint8 cmd, const quint8 *datas, quint8 dataLen);

protected:
    void onLoadUiSkin() override;
    void onBackEvent() override;
    void onHomeEvent() override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onItemColumnClicked(QAbstractItemModel *model, const QModelIndex &index);
    /// Nothing: the list lights the row up by itself, and what a row does waits until the finger has left it.
    void onItemPressed(const QModelIndex &) {}
    void onCarSilent();
    void onSentShown();
    void showFoot();
    void retranslate();

private:
    void onItemClicked(const QModelIndex &index);
    QString getItemText(const QModelIndex &index) const;
    void sendRequests();
    void refresh();
    void leave();

    void toggleSwitch(const Vw::SettingRow &row);
    void openPage(unsigned int appId);
    void chooseOption(const Vw::SettingRow &row, const QModelIndex &index);
    void chooseNumber(const Vw::SettingRow &row, const QModelIndex &index);
    void confirmAction(const Vw::SettingRow &row);
    void send(int item, int value);
    void choose(int item, int value);
    void act(int item);

    int showSelectCheckBoxModeDialog(const QStringList &options, int current, const QModelIndex &index);
    int showSelectSliderModeDialog(int minimum, int maximum, int step, const QString &unit, int value,
                                   const QModelIndex &index);
    bool showConfirmDialog(const Vw::SettingRow &row);
    SelectDialog *newDialog(const Vw::SettingRow &row);
    void translateDialog();
    QString questionTitle() const;
    QString questionOf(const Vw::SettingRow &row) const;

    CanBus_Raise_Volkswagen *const m_adapter;
    Vw::PageState m_state;
    TableViewModel *const m_model;
    TableListView *const m_list;
    QLabel *const m_foot;
    Vw::ChoiceMemory m_memory;
    QTimer m_silenceTimer;
    QTimer m_ageTimer;
    QTimer m_sentTimer;
    QPointer<SelectDialog> m_dialog; // the open one,
    Vw::SettingRow m_asked;          // and the row that it is about
    bool m_left;
};

#endif // VWFUNCTIONSETTING_H
