#ifndef TOUCHINJECTOR_H
#define TOUCHINJECTOR_H

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

/// Turns touches on the unit's screen into mouse events of the widgets on it. A touch is delivered from the
/// event loop, never inside inject(), so that a press that opens a modal dialog does not hold up whoever
/// reported it, and in the order of the calls, also when such a dialog runs a loop of its own.
class TouchInjector : public QObject
{
    Q_OBJECT

public:
    explicit TouchInjector(QObject *parent = nullptr);

    /// \a type: QEvent number of a press (2), a release (3) or a move (5); others are ignored. \a x, \a y:
    /// pixels of the screen widget.
    void inject(int type, int x, int y);

private Q_SLOTS:
    void deliver(int type, int x, int y);

private:
    void press(const QPointer<QWidget> &screen, const QPoint &pos);
    void send(QWidget *receiver, int type, const QPoint &local, const QPoint &global);

    QPointer<QWidget> m_grabber; ///< gets every touch until the release
};

#endif // TOUCHINJECTOR_H
