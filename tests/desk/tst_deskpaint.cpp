#include "carview.h"
#include "radararcs.h"
#include "steeringtrack.h"

#include <QLineF>
#include <QTest>

/// Where the painted parts of the car view lie.
class TestDeskPaint : public QObject
{
    Q_OBJECT

private slots:
    void bandsLieApartAndInOrder_data();
    void bandsLieApartAndInOrder();
    void trackBends_data();
    void trackBends();
    void everythingStaysInside_data();
    void everythingStaysInside();

private:
    const QRectF m_car = QRectF(140, 160, 120, 300);
};

void TestDeskPaint::bandsLieApartAndInOrder_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("front") << int(RadarArcs::Front);
    QTest::newRow("rear") << int(RadarArcs::Rear);
}

void TestDeskPaint::bandsLieApartAndInOrder()
{
    QFETCH(int, side);
    const RadarArcs arcs(RadarArcs::Side(side), m_car, 100);
    for (int sensor = 0; sensor < CarState::sensors; ++sensor) {
        for (int level = 1; level <= CarState::farthestLevel; ++level) {
            const QPointF middle = arcs.band(sensor, level).boundingRect().center();
            if (level > 1) {
                const QPointF nearer = arcs.band(sensor, level - 1).boundingRect().center();
                QVERIFY2(side == RadarArcs::Front ? middle.y() < nearer.y() : middle.y() > nearer.y(),
                         "the next level lies farther from the car");
                QVERIFY(!arcs.band(sensor, level).intersects(arcs.band(sensor, level - 1)));
            }
            if (sensor > 0) {
                QVERIFY2(arcs.band(sensor - 1, level).boundingRect().center().x() < middle.x(),
                         "left to right");
                QVERIFY(!arcs.band(sensor, level).intersects(arcs.band(sensor - 1, level)));
            }
        }
    }
    const QRectF end = side == RadarArcs::Front ? QRectF(m_car.left(), m_car.top(), m_car.width(), 1)
                                                : QRectF(m_car.left(), m_car.bottom() - 1, m_car.width(), 1);
    QVERIFY2(!arcs.band(1, 1).contains(end.center()), "nothing is drawn on the car's end");
}

void TestDeskPaint::trackBends_data()
{
    QTest::addColumn<int>("angle");
    QTest::newRow("straight") << 0;
    QTest::newRow("right") << 20;
    QTest::newRow("right lock") << 40;
    QTest::newRow("left") << -20;
    QTest::newRow("left lock") << -40;
}

void TestDeskPaint::trackBends()
{
    QFETCH(int, angle);
    const SteeringTrack track(m_car, angle, 90);
    const QPointF from = (track.point(SteeringTrack::Left, 0) + track.point(SteeringTrack::Right, 0)) / 2;
    const QPointF to = (track.point(SteeringTrack::Left, 1) + track.point(SteeringTrack::Right, 1)) / 2;
    QVERIFY2(to.y() > from.y(), "the way leads backwards");
    const int bend = to.x() > m_car.center().x() + 1 ? 1 : to.x() < m_car.center().x() - 1 ? -1 : 0;
    QCOMPARE(bend, angle > 0 ? 1 : angle < 0 ? -1 : 0);
    for (const qreal along : {0.0, 0.5, 1.0}) {
        const QPointF across =
            track.point(SteeringTrack::Right, along) - track.point(SteeringTrack::Left, along);
        QVERIFY2(qAbs(QLineF(QPointF(), across).length() - m_car.width() * 0.92) < 0.01,
                 "the way is as wide as the car");
    }
    // The mirrored angle gives the mirrored way.
    const SteeringTrack mirrored(m_car, -angle, 90);
    const QPointF right = track.point(SteeringTrack::Right, 1);
    const QPointF left = mirrored.point(SteeringTrack::Left, 1);
    QVERIFY(qAbs(right.x() + left.x() - 2 * m_car.center().x()) < 0.01 && qAbs(right.y() - left.y()) < 0.01);
}

void TestDeskPaint::everythingStaysInside_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("unit of 1024x600") << QSize(410, 528);
    QTest::newRow("unit of 800x480") << QSize(320, 408);
}

void TestDeskPaint::everythingStaysInside()
{
    QFETCH(QSize, size);
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

QTEST_MAIN(TestDeskPaint)
#include "tst_deskpaint.moc"
