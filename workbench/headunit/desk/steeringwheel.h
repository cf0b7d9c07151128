#ifndef STEERINGWHEEL_H
#define STEERINGWHEEL_H

#include <QPixmap>
#include <QWidget>

/// A steering wheel that turns under the mouse; a double click puts it straight.
class SteeringWheel : public QWidget
{
    Q_OBJECT

public:
    /// \a lock: degrees from the middle to either end, more than 0; \a step: degrees between two angles.
    SteeringWheel(int lock, int step, QWidget *parent = nullptr);

    /// Degrees, negative to the left.
    int angle() const { return m_angle; }
    /// Past the lock counts as the lock. Emits nothing.
    void setAngle(int angle);

Q_SIGNALS:
    /// The user has turned the wheel to \a angle.
    void turned(int angle);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPointF centre() const;
    void turnTo(int angle);

    int m_lock;
    int m_step;
    int m_angle = 0;
    qreal m_dragAngle = 0; // where the wheel would be without steps
    qreal m_mouseDirection = 0;
    QPixmap m_wheel;
};

#endif // STEERINGWHEEL_H
