#ifndef VWTYREPAGE_H
#define VWTYREPAGE_H

#include "vwtripdata.h"

#include <QObject>
#include <QString>

class CanBus_Raise_Volkswagen;
class QLabel;
class TyreMark;
class TyreSlot;
class Ui_VolkswagenWindow;

/// The tyres of "Car infos". The box tells of them in two ways, by the state of each tyre and by a message with
/// marked tyres; whichever came last decides what is to be seen.
class VwTyrePage : public QObject
{
    Q_OBJECT

public:
    /// Fills the widgets of \a ui, which belong to \a window; \a adapter must outlive it.
    VwTyrePage(Ui_VolkswagenWindow *ui, const CanBus_Raise_Volkswagen *adapter, QObject *window);

    /// Takes a package of the box; what is none of this page's is ignored.
    void take(const PackageView &package);

    /// What the driver is to be warned of on other pages as well, in the unit's language; empty for nothing.
    QString warning() const;

    /// The window came into view: from now on the car is waited for.
    void shown();

    /// Says that the car is waited for, or how old its report is.
    void showNote();
    void retranslate();

private Q_SLOTS:
    void onNothingTold();

private:
    void takeStates(const Vw::TyreStates &states);
    void takeWarning(const Vw::TyreWarning &warning);
    bool isMessageTrue() const;
    bool isAnyTyreFaulty() const;
    void showLooks();

    Ui_VolkswagenWindow *const m_ui;
    const CanBus_Raise_Volkswagen *const m_adapter;
    quint8 m_newest; // command of the newest report, 0 before the first
    Vw::TyreStates m_states;
    Vw::TyreWarning m_warning;
    bool m_waited;
    QLabel *m_labels[Vw::TyreCount];
    TyreSlot *m_slots[Vw::TyreCount];
    TyreMark *m_marks[Vw::TyreCount];
};

#endif // VWTYREPAGE_H
