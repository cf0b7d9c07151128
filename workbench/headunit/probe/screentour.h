#ifndef SCREENTOUR_H
#define SCREENTOUR_H

#include "screenpath.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

class HeadUnit;
class ProbeUnit;

/// Goes through the plug-in's screens as a curious driver does: opens each that can be reached, so that all are there
/// to show what a package brings, and finds out what each tap says to the box. Taps are tried in forks, of which
/// nothing stays.
class ScreenTour
{
public:
    using Packages = QVector<QByteArray>;

    /// One way to answer what a tap asks.
    struct Answer
    {
        QString choice; ///< what is tapped in the dialog; empty when a tap alone says it
        Packages sent;
    };
    struct Control
    {
        QString name;
        QVector<Answer> answers; ///< those only that say something
    };
    struct Screen
    {
        QString name;
        QString openedBy; ///< "Car Setting: Light"; empty for an application's own
        Packages asked;   ///< what its opening says
        QVector<Control> controls;
    };

    /// \a unit runs already, and outlives the tour.
    explicit ScreenTour(ProbeUnit *unit);

    /// Opens all screens, \a head being the unit itself. They stay open, one upon the other.
    void open(HeadUnit *head);
    /// Tries each tap; after open().
    void tapAll();

    /// In the order in which they were found, without the controls before tapAll().
    const QVector<Screen> &screens() const { return m_screens; }
    /// What opens them all again, one after the other.
    const QVector<ScreenPath::Step> &steps() const { return m_steps; }
    /// The buttons that turn a screen to something else that it can show.
    const QVector<ScreenTap::Target> &turns() const { return m_turns; }

private:
    struct Effect
    {
        QStringList opened; ///< screens that were not there before
        bool hasTurned;     ///< texts are other
        QStringList dialog; ///< what can be tapped in the dialog that waits
        bool isDialog;
        Packages sent;
    };
    Effect effectOf(const std::function<void()> &act, const QVector<int> &steps) const;
    void add(const ScreenPath::Step &step, const QString &openedBy, const Packages &asked);
    void openFrom(int place, HeadUnit *head);
    QVector<Answer> answersOf(const ScreenTap::Target &target) const;

    ProbeUnit *m_unit;
    QVector<Screen> m_screens;
    ScreenPath m_path; // its screens are those of m_screens
    QVector<ScreenPath::Step> m_steps;
    QVector<ScreenTap::Target> m_turns;
};

#endif // SCREENTOUR_H
