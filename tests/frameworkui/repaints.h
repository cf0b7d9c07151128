#ifndef REPAINTS_H
#define REPAINTS_H

#include <QMap>
#include <QObject>
#include <QRegion>
#include <QStringList>
#include <QWidget>

/// What is painted again on a window: every paint of its widgets is heard.
class Repaints : public QObject
{
    Q_OBJECT

public:
    /// Listens from now on. \a window outlives this.
    explicit Repaints(QWidget *window);

    /// Lets what is to be painted be painted, and forgets it.
    void settle();

    /// Names of the widgets that were painted since then, sorted: not those that only lie below one that was. Of a
    /// list it is the rows ("row 3"). What was painted outside of them all is "elsewhere".
    QStringList widgets();

    /// Pixels of the window that were painted since then.
    int pixels();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_window;
    QMap<QWidget *, QRegion> m_painted; // in each widget's own coordinates
};

#endif // REPAINTS_H
