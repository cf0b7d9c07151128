#include "carpicture.h"

#include "orbqtcompat.h"

#include <QPainter>

namespace {

// Parts of the picture's width and height.
const double FrameWidth = 0.15;
const double FrameHeight = 0.23;

struct Place
{
    double x;
    double y;
};

const QRgb MarkColour = 0xFFFFFF00;
const double MarkRadius = 10;
const Place TyreCentres[Vw::TyreCount] = {{0.115, 0.225}, {0.885, 0.225}, {0.115, 0.775}, {0.885, 0.775}};

} // namespace

TyreMark::TyreMark(QWidget *parent) : QFrame(parent), m_marked(false)
{
    setAttribute(Qt::WA_NoSystemBackground); // the style sheet's
}

void TyreMark::setMarked(bool marked)
{
    if (marked != m_marked) {
        m_marked = marked;
        update();
    }
}

void TyreMark::paintEvent(QPaintEvent *)
{
    if (!m_marked) {
        return;
    }
    const double radius = qMin(MarkRadius, width() / 2.0);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(MarkColour));
    painter.drawRoundedRect(rect(), radius, radius);
}

CarPicture::CarPicture(QWidget *parent) : QWidget(parent), m_car(QLatin1String(":/dazhong/car.png"))
{
    for (int i = 0; i < Vw::TyreCount; ++i) {
        m_frames[i] = nullptr;
    }
}

void CarPicture::setTyreFrame(Vw::Tyre tyre, QWidget *frame)
{
    m_frames[tyre] = frame;
    placeFrames();
}

QRect CarPicture::pictureRect() const
{
    QRect picture(QPoint(0, 0), OrbQt::fitted(m_car.size(), size()));
    picture.moveCenter(rect().center());
    return picture;
}

QSize CarPicture::tyreFrameSize() const
{
    const QSize picture = pictureRect().size();
    return QSize(qRound(picture.width() * FrameWidth), qRound(picture.height() * FrameHeight));
}

QSize CarPicture::sizeHint() const
{
    return m_car.size();
}

void CarPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(pictureRect(), m_car);
}

void CarPicture::resizeEvent(QResizeEvent *)
{
    placeFrames();
}

void CarPicture::placeFrames()
{
    const QRect picture = pictureRect();
    for (int i = 0; i < Vw::TyreCount; ++i) {
        if (!m_frames[i]) {
            continue;
        }
        QRect frame(QPoint(0, 0), tyreFrameSize());
        frame.moveCenter(picture.topLeft() + QPoint(qRound(picture.width() * TyreCentres[i].x),
                                                    qRound(picture.height() * TyreCentres[i].y)));
        m_frames[i]->setGeometry(frame);
    }
}
