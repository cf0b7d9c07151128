#ifndef SCREENPATH_H
#define SCREENPATH_H

#include "screentap.h"

#include <QDataStream>

class HeadUnit;

/// The way to the plug-in's screens, step by step from the unit's launcher: the same steps open the same screens in
/// another process.
class ScreenPath
{
public:
    /// An application of the launcher, a window that belongs to none (all others are -1 or empty), or a tap.
    struct Step
    {
        quint32 app = 0;
        QString window;
        qint32 place = -1; ///< number of the screen on which is tapped, in the order in which they came
        qint32 target = -1;
    };
    struct Screen
    {
        QPointer<QWidget> window;
        QVector<ScreenTap::Target> targets;
    };

    /// What the launcher offers: applications, and windows that nothing else opens.
    static QVector<Step> launcher();
    /// The windows in which a driver can tap now.
    static QVector<QWidget *> openWindows();

    /// Takes one step on \a unit; what it opens is there some milliseconds later. Does nothing when the way is another.
    void take(const Step &step, HeadUnit *unit) const;
    /// Notes the screens that have come; their number.
    int addNew();
    /// Takes all of \a steps and lets the time pass that each needs.
    void follow(const QVector<Step> &steps, HeadUnit *unit);

    const QVector<Screen> &screens() const { return m_screens; }

private:
    QVector<Screen> m_screens;
};

QDataStream &operator<<(QDataStream &stream, const ScreenPath::Step &step);
QDataStream &operator>>(QDataStream &stream, ScreenPath::Step &step);

#endif // SCREENPATH_H
