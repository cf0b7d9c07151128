#ifndef SWIPEAREA_H
#define SWIPEAREA_H

#include <QPoint>
#include <QWidget>

/// Tells when a finger sweeps to the left or right over it and over what lies on it and takes no touches.
class SwipeArea : public QWidget
{
    Q_OBJECT

public:
    explicit SwipeArea(QWidget *parent = nullptr);

Q_SIGNALS:
    void sweptLeft();
    void sweptRight();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QPoint m_pressed;
};

#endif // SWIPEAREA_H
