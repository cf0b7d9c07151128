#include "carview.h"

#include "deskcolours.h"
#include "radararcs.h"
#include "steeringtrack.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>

namespace {

const int HeadingHeight = 64;
const int SmallestFont = 15; // pixels
const int SmallestHeading = 11;
const int Margin = 16;
const qreal GreyOpacity = 0.45; // of what is no longer sure
// The car's picture: 200 by 420 units, with the paint from 24 to 176 and from 8 to 414.
const QSizeF Picture(200, 420);
const QRectF PaintWork(24, 8, 152, 406);

const qreal DoorOpening = 64; // degrees
const qreal DoorThickness = 9;

struct DoorLeaf
{
    CarState::Door door;
    QPointF hinge; // in the picture's units
    qreal length;
};

const DoorLeaf DoorLeaves[] = {{CarState::FrontLeft, QPointF(27, 162), 74},
                               {CarState::FrontRight, QPointF(173, 162), 74},
                               {CarState::RearLeft, QPointF(25, 238), 68},
                               {CarState::RearRight, QPointF(175, 238), 68}};

const QPointF Wheels[] = {QPointF(25, 86), QPointF(175, 86), QPointF(25, 330), QPointF(175, 330)};

// As large as the room allows, and no larger than \a font.
void drawFitted(QPainter *painter, const QRectF &room, int alignment, QFont font, const QString &text)
{
    const int flags = alignment | Qt::TextWordWrap;
    while (font.pixelSize() > SmallestHeading &&
           !room.contains(QFontMetricsF(font).boundingRect(room, flags, text))) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    painter->setFont(font);
    painter->drawText(room, flags, text);
}

} // namespace

CarView::CarView(QWidget *parent) : QWidget(parent), m_body(QStringLiteral(":/desk/car/body.png"))
{
    setMinimumSize(240, 320);
}

void CarView::setState(const CarState &state)
{
    const CarState before = m_state;
    const QString told = message();
    m_state = state;
    update(differences(before) + (message() == told ? QRect() : headingRect()));
}

QRect CarView::headingRect() const
{
    return QRect(0, 0, width(), HeadingHeight);
}

// The fans of the radar end in the middle of a circle in the car's end.
QRect CarView::frontRect() const
{
    const QRectF car = carRect();
    return QRect(0, HeadingHeight, width(), qCeil(car.top() + car.width() / 2) - HeadingHeight);
}

QRect CarView::rearRect() const
{
    const QRectF car = carRect();
    const int top = qFloor(car.bottom() - car.width() / 2);
    return QRect(0, top, width(), height() - top);
}

// Where another state was shown than now. Radars tell ten times a second, all else seldom.
QRegion CarView::differences(const CarState &before) const
{
    CarState sameRadar = m_state;
    std::copy_n(before.front, CarState::Sensors, sameRadar.front);
    std::copy_n(before.rear, CarState::Sensors, sameRadar.rear);
    if (sameRadar != before) {
        return rect();
    }
    const bool isFrontSame = std::equal(m_state.front, m_state.front + CarState::Sensors, before.front);
    const bool isRearSame = std::equal(m_state.rear, m_state.rear + CarState::Sensors, before.rear);
    return QRegion(isFrontSame ? QRect() : frontRect()) + (isRearSame ? QRect() : rearRect());
}

void CarView::setDoubt(const QString &doubt)
{
    if (doubt != m_doubt) {
        m_doubt = doubt;
        update();
    }
}

QString CarView::doorMessage() const
{
    switch (m_state.doors.value_or(0)) {
    case 0:
        return m_state.doors               ? tr("All doors closed")
               : m_state.isAnythingKnown() ? tr("Doors not reported")
                                           : tr("The car has reported nothing yet");
    case CarState::FrontLeft:
        return tr("Front left door open");
    case CarState::FrontRight:
        return tr("Front right door open");
    case CarState::RearLeft:
        return tr("Rear left door open");
    case CarState::RearRight:
        return tr("Rear right door open");
    default:
        return tr("Doors open");
    }
}

QString CarView::message() const
{
    if (m_state.isRadarOn && m_state.nearest() == 1) {
        return tr("Stop");
    }
    return doorMessage();
}

QString CarView::steeringText() const
{
    return m_state.steering ? tr("Steering %1°").arg(*m_state.steering) : QString();
}

int CarView::drawnSteering() const
{
    return qBound(-CarState::SteeringLock, m_state.steering.value_or(0), CarState::SteeringLock);
}

qreal CarView::radarReach() const
{
    return (height() - HeadingHeight) * 0.185;
}

qreal CarView::trackLength() const
{
    return radarReach() * 0.62; // ends before the figures
}

QRectF CarView::carRect() const
{
    const QRectF area(Margin, HeadingHeight, width() - 2 * Margin, height() - HeadingHeight - Margin);
    const qreal length = area.height() - 2 * radarReach();
    const qreal scale = length / PaintWork.height();
    QRectF car(0, 0, PaintWork.width() * scale, length);
    car.moveCenter(area.center());
    return car;
}

QColor CarView::messageColour() const
{
    if (!m_doubt.isEmpty()) {
        return DeskColours::Dim;
    }
    if (m_state.isRadarOn && m_state.nearest() == 1) {
        return DeskColours::Error;
    }
    return m_state.doors.value_or(0) != 0 ? DeskColours::Warning : DeskColours::Dim;
}

void CarView::paintHeading(QPainter *painter) const
{
    const QRectF line(Margin, 0, width() - 2 * Margin, HeadingHeight / 2.0 + 6);
    QFont font = painter->font();
    font.setPixelSize(20);
    font.setBold(true);
    painter->setPen(messageColour());
    drawFitted(painter, line, Qt::AlignHCenter | Qt::AlignBottom, font, message());
    font.setPixelSize(18);
    font.setBold(false);
    painter->setPen(DeskColours::Text);
    drawFitted(painter, QRectF(line.left(), line.bottom(), line.width(), HeadingHeight - line.bottom()),
               Qt::AlignCenter, font, m_doubt.isEmpty() ? steeringText() : m_doubt);
}

void CarView::paintLights(QPainter *painter, const QRectF &car) const
{
    for (const qreal side : {-1.0, 1.0}) {
        const QPointF lamp(car.center().x() + side * car.width() * 0.36, car.top() + car.height() * 0.06);
        const qreal reach = radarReach() * 1.25;
        QPainterPath beam(lamp);
        beam.lineTo(lamp + QPointF(-reach * 0.34 + side * 8, -reach));
        beam.lineTo(lamp + QPointF(reach * 0.34 + side * 8, -reach));
        beam.closeSubpath();
        QLinearGradient light(lamp, lamp - QPointF(0, reach));
        light.setColorAt(0, QColor(255, 246, 214, 190));
        light.setColorAt(1, QColor(255, 246, 214, 0));
        painter->fillPath(beam, light);
    }
}

void CarView::paintWheels(QPainter *painter, const QRectF &car) const
{
    const qreal scale = car.height() / PaintWork.height();
    for (const QPointF &wheel : Wheels) {
        const bool isFront = wheel.y() < Picture.height() / 2;
        painter->save();
        painter->translate(car.topLeft() + (wheel - PaintWork.topLeft()) * scale);
        painter->scale(scale, scale);
        painter->rotate(isFront ? drawnSteering() : 0);
        painter->setPen(QPen(QColor(0x5A, 0x66, 0x75), 2));
        painter->setBrush(QColor(0x20, 0x27, 0x30));
        painter->drawRoundedRect(QRectF(-10, -28, 20, 56), 6, 6);
        painter->restore();
    }
}

// Where nobody knows whether a door is open.
void CarView::paintQuestionMarks(QPainter *painter, const QRectF &car) const
{
    const qreal scale = car.height() / PaintWork.height();
    QFont font = painter->font();
    font.setPixelSize(SmallestFont);
    font.setBold(true);
    painter->setFont(font);
    for (const DoorLeaf &leaf : DoorLeaves) {
        const bool isLeft = leaf.hinge.x() < Picture.width() / 2;
        const QPointF side = leaf.hinge + QPointF(isLeft ? -26 : 26, leaf.length / 2);
        QRectF place(0, 0, SmallestFont + 7, SmallestFont + 7);
        place.moveCenter(car.topLeft() + (side - PaintWork.topLeft()) * scale);
        painter->setPen(Qt::NoPen);
        painter->setBrush(DeskColours::Edge);
        painter->drawEllipse(place);
        painter->setPen(DeskColours::Dim);
        painter->drawText(place, Qt::AlignCenter, QStringLiteral("?"));
    }
}

void CarView::paintDoors(QPainter *painter, const QRectF &car) const
{
    const qreal scale = car.height() / PaintWork.height();
    for (const DoorLeaf &leaf : DoorLeaves) {
        if (!m_state.isDoorOpen(leaf.door)) {
            continue;
        }
        const bool isLeft = leaf.hinge.x() < Picture.width() / 2;
        painter->save();
        painter->translate(car.topLeft() + (leaf.hinge - PaintWork.topLeft()) * scale);
        painter->scale(isLeft ? scale : -scale, scale);
        // The way that the leaf swung, the dark sill that it left, and the leaf.
        QPainterPath swing;
        const QRectF circle(-leaf.length, -leaf.length, 2 * leaf.length, 2 * leaf.length);
        swing.arcTo(circle, 270, -DoorOpening);
        swing.closeSubpath();
        QColor shade = DeskColours::Warning;
        shade.setAlphaF(0.22);
        painter->fillPath(swing, shade);
        painter->setPen(QPen(QColor(0x0B, 0x0F, 0x14), 7, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(QPointF(2, 4), QPointF(2, leaf.length - 4));
        painter->rotate(DoorOpening);
        painter->setPen(QPen(QColor(0x5A, 0x3D, 0x08), 1.2));
        painter->setBrush(DeskColours::Warning);
        painter->drawRoundedRect(QRectF(-DoorThickness / 2, 0, DoorThickness, leaf.length), 4, 4);
        painter->fillRect(QRectF(-1.5, leaf.length * 0.2, 3, leaf.length * 0.6), QColor(0x20, 0x28, 0x32));
        painter->restore();
    }
}

void CarView::paintCar(QPainter *painter, const QRegion &region) const
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF car = carRect();
    const qreal scale = car.height() / PaintWork.height();
    if (m_state.isRadarOn && m_state.hasFront && region.intersects(frontRect())) {
        RadarArcs(RadarArcs::Front, car, radarReach()).paint(painter, m_state.front);
    }
    if (m_state.isRadarOn && m_state.hasRear && region.intersects(rearRect())) {
        RadarArcs(RadarArcs::Rear, car, radarReach()).paint(painter, m_state.rear);
    }
    if (m_state.isTrackOn && m_state.steering) {
        SteeringTrack(car, drawnSteering(), trackLength()).paint(painter);
    }
    if (m_state.areLightsOn) {
        paintLights(painter, car);
    }
    paintWheels(painter, car);
    painter->drawPixmap(QRectF(car.topLeft() - PaintWork.topLeft() * scale, Picture * scale), m_body,
                        QRectF(m_body.rect()));
    if (m_state.doors) {
        paintDoors(painter, car);
    } else {
        paintQuestionMarks(painter, car);
    }
}

void CarView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(DeskColours::Panel);
    painter.drawRoundedRect(rect(), 10, 10);
    paintHeading(&painter);
    if (m_doubt.isEmpty()) {
        paintCar(&painter, event->region());
        return;
    }
    QImage picture(size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(DeskColours::Panel);
    QPainter carPainter(&picture);
    carPainter.setFont(painter.font());
    paintCar(&carPainter, rect());
    carPainter.end();
    painter.setOpacity(GreyOpacity);
    painter.setClipRect(rect().adjusted(0, HeadingHeight, 0, -Margin / 2));
    painter.drawImage(0, 0, picture.convertToFormat(QImage::Format_Grayscale8));
}
