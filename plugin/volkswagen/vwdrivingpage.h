#ifndef VWDRIVINGPAGE_H
#define VWDRIVINGPAGE_H

#include "vwtripdata.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>

class CanBus_Raise_Volkswagen;
class FigureGroup;
class FigureLabel;
class QTimer;
class Ui_VolkswagenWindow;

/// The driving data of "Car infos": three trip pages with four values each, range and consumption for all of them.
/// What the box does not answer within two seconds is asked for once more.
class VwDrivingPage : public QObject
{
    Q_OBJECT

public:
    /// Fills the widgets of \a ui, which belong to \a window; \a adapter must outlive it.
    VwDrivingPage(Ui_VolkswagenWindow *ui, CanBus_Raise_Volkswagen *adapter, QObject *window);

    /// Turns to trip page \a page, round both ends, and asks the box for its values.
    void turnTo(int page);
    int page() const { return m_page; }

    /// Asks for the four values of trip page \a page; an unknown one is ignored.
    void askFor(int page);
    void askForRange();

    /// Takes a package of the box; what is none of this page's is ignored.
    void take(const PackageView &package);

    void setVisible(bool visible);

    /// Says that the car is waited for, or how old its report is.
    void showNote();
    void retranslate();

private Q_SLOTS:
    void askOnceMore();

private:
    void ask(quint8 subType);
    void showTitle();
    void showFigure(int kind);
    bool isPageKnown() const;

    Ui_VolkswagenWindow *const m_ui;
    CanBus_Raise_Volkswagen *const m_adapter;
    int m_page;
    Vw::TripValue m_values[Vw::TripValue::KindCount];
    FigureLabel *m_figures[Vw::TripValue::KindCount];
    FigureGroup *const m_group;
    QElapsedTimer m_reported; // since the last value of this trip page
    QList<quint8> m_awaited;  // sub-types that the box was asked for
    QTimer *const m_patience;
    bool m_askedTwice;
    bool m_visible;
};

#endif // VWDRIVINGPAGE_H
