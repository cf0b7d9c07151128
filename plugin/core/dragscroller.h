#ifndef DRAGSCROLLER_H
#define DRAGSCROLLER_H

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

class QScrollBar;

/// Scrolls by a finger: follows the drag, and glides on for a moment after a flick. Fed with the vertical
/// place of the finger; moves one scroll bar, which counts in pixels.
class DragScroller : public QObject
{
    Q_OBJECT

public:
    /// \a bar is not owned and must outlive the scroller (the scroll area owns both).
    DragScroller(QScrollBar *bar, QObject *parent);

    /// The finger came down. Returns true when it stopped a glide: it is then no tap.
    bool press(int y);
    /// The finger moved; true when this is a drag (from here on it is no tap).
    bool move(int y);
    /// The finger went up; true when it was a tap.
    bool release();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    enum State { Idle, Pressed, StoppedGlide, Dragging };

    QScrollBar *m_bar;
    State m_state;
    int m_pressY;
    int m_lastY;
    qreal m_speed; // pixels a millisecond, positive towards the end of the list
    qreal m_place;
    QElapsedTimer m_sinceMove;
    QBasicTimer m_glide;
};

#endif // DRAGSCROLLER_H
