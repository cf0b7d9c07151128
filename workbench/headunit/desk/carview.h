#ifndef CARVIEW_H
#define CARVIEW_H

#include "carstate.h"

#include <QPixmap>
#include <QWidget>

/// The car from above: its open doors, what its radar sees and where its wheels are turned, with the numbers as
/// they were reported. Shows the state that it is given and nothing of its own: what is not known is not drawn, and
/// what is no longer sure is drawn in grey. A number past its scale is drawn at the end of the scale.
class CarView : public QWidget
{
    Q_OBJECT

public:
    explicit CarView(QWidget *parent = nullptr);

    const CarState &state() const { return m_state; }
    void setState(const CarState &state);

    /// \a doubt: why what is shown may be true no longer ("Line lost"); empty when it is news.
    void setDoubt(const QString &doubt);
    const QString &doubt() const { return m_doubt; }

    /// One sentence on the doors and the distance, that all is well, or that nothing is known.
    QString message() const;

    /// The steering angle as it was reported; empty before that.
    QString steeringText() const;

    /// Where the car is drawn, in the widget's pixels.
    QRectF carRect() const;
    /// Pixels from either end of the car that the radar's fan and the track behind it take.
    qreal radarReach() const;
    qreal trackLength() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect headingRect() const;
    QRect frontRect() const;
    QRect rearRect() const;
    QString doorMessage() const;
    QColor messageColour() const;
    QRegion differences(const CarState &before) const;
    void paintCar(QPainter *painter, const QRegion &region) const;
    int drawnSteering() const;
    void paintHeading(QPainter *painter) const;
    void paintLights(QPainter *painter, const QRectF &car) const;
    void paintWheels(QPainter *painter, const QRectF &car) const;
    void paintQuestionMarks(QPainter *painter, const QRectF &car) const;
    void paintDoors(QPainter *painter, const QRectF &car) const;

    CarState m_state;
    QString m_doubt;
    QPixmap m_body;
};

#endif // CARVIEW_H
