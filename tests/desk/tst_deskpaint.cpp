#include "carview.h"
#include "radararcs.h"
#include "steeringtrack.h"

#include <QLineF>
#include <QPainterPath>
#include <QTest>

/// Where the painted parts of the car view lie.
class TestDeskPaint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bandsLieApartAndInOrder();
    void trackBends();
    void everythingStaysInside();

private:
    const QRectF m_car = QRectF(140, 160, 120, 300);
};

void TestDeskPaint::bandsLieApartAndInOrder()
{
    for (const RadarArcs::Side side : {RadarArcs::Front, RadarArcs::Rear}) {
        const RadarArcs arcs(side, m_car, 100);
        const int away = side == RadarArcs::Front ? -1 : 1;
        for (int sensor = 0; sensor < CarState::Sensors; ++sensor) {
            for (int level = 1; level <= CarState::FarthestLevel; ++level) {
                const QPainterPath band = arcs.band(sensor, level);
                const QPointF middle = band.boundingRect().center();
                if (level > 1) {
                    const QPainterPath nearer = arcs.band(sensor, level - 1);
                    QVERIFY((middle.y() - nearer.boundingRect().center().y()) * away > 0);
                    QVERIFY(!band.intersects(nearer));
                }
                if (sensor > 0) {
                    const QPainterPath left = arcs.band(sensor - 1, level);
                    QVERIFY(left.boundingRect().center().x() < middle.x());
                    QVERIFY(!band.intersects(left));
                }
            }
        }
        const qreal end = side == RadarArcs::Front ? m_car.top() + 0.5 : m_car.bottom() - 0.5;
        QVERIFY2(!arcs.band(1, 1).contains(QPointF(m_car.center().x(), end)), "nothing on the car's end");
    }
}

void TestDeskPaint::trackBends()
{
    for (const int angle : {0, 5, -40}) {
        const SteeringTrack track(m_car, angle, 90);
        const QPointF from = (track.point(SteeringTrack::Left, 0) + track.point(SteeringTrack::Right, 0)) / 2;
        const QPointF to = (track.point(SteeringTrack::Left, 1) + track.point(SteeringTrack::Right, 1)) / 2;
        QVERIFY2(to.y() > from.y(), "the way leads backwards");
        const qreal aside = to.x() - m_car.center().x();
        QVERIFY(angle == 0 ? qAbs(aside) <= 1 : aside * angle > qAbs(angle));
        for (const qreal along : {0.0, 0.5, 1.0}) {
            const QLineF across(track.point(SteeringTrack::Left, along),
                                track.point(SteeringTrack::Right, along));
            QVERIFY2(qAbs(across.length() - m_car.width() * 0.92) < 0.01, "as wide as the car");
        }
        // The mirrored angle gives the mirrored way.
        const QPointF right = track.point(SteeringTrack::Right, 1);
        const QPointF left = SteeringTrack(m_car, -angle, 90).point(SteeringTrack::Left, 1);
        QVERIFY(qAbs(right.x() + left.x() - 2 * m_car.center().x()) < 0.01);
        QVERIFY(qAbs(right.y() - left.y()) < 0.01);
    }
}

void TestDeskPaint::everythingStaysInside()
{
    for (const QSize &size : {QSize(410, 528), QSize(320, 408)}) { // units of 1024x600 and 800x480
        CarView view;
        view.resize(size);
        const QRectF car = view.carRect();
        const QRectF inside = QRectF(view.rect()).adjusted(8, 8, -8, -8);
        for (const RadarArcs::Side side : {RadarArcs::Front, RadarArcs::Rear}) {
            QVERIFY(inside.contains(RadarArcs(side, car, view.radarReach()).bounds()));
        }
        for (const int angle : {-40, 0, 40}) {
            const SteeringTrack track(car, angle, view.trackLength());
            for (const SteeringTrack::Edge edge : {SteeringTrack::Left, SteeringTrack::Right}) {
                QVERIFY(inside.contains(track.path(edge).boundingRect().adjusted(-2, -2, 2, 2)));
            }
        }
    }
}

QTEST_MAIN(TestDeskPaint)
#include "tst_deskpaint.moc"
