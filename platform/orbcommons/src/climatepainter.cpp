#include "climatepainter.h"

#include "orbpalette.h"
#include "orbqtcompat.h"

#include <QPainter>
#include <QPixmap>

namespace {

enum Direction { Feet = 1, Face = 2, Windscreen = 4 };

const int UsualFanLevels = 7;
const int HighestFanBar = 64;
const int Padding = 24;
const int LargestCentre = 500;
const int SmallestCentre = 400;
const int MarkHeight = 44;
const int MarkGap = 8;
const int SmallestFont = 12;
const qreal OffOpacity = 0.35;
const qreal UnlitOpacity = 0.4;
const qreal AbsentOpacity = 0.13;

QRect centred(const QRect &room, const QSize &size)
{
    QRect place(QPoint(0, 0), size);
    place.moveCenter(room.center());
    return place;
}

QPixmap picture(const char *path)
{
    return QPixmap(QLatin1String(path));
}

/// The shape of a picture in one colour.
QPixmap tinted(const QPixmap &shape, const QColor &colour)
{
    QPixmap result(shape);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), colour);
    return result;
}

} // namespace

ClimateState::ClimateState()
    : heaterMark(true)
    , minimum(16)
    , maximum(32)
    , on(false)
    , compressor(false)
    , automatic(false)
    , defrosting(false)
    , direction(0)
    , fan(0)
    , fanLevels(UsualFanLevels)
    , circulation(0)
{}

void ClimateState::setDirection(int bits)
{
    direction = bits;
    defrosting = false;
}

double scalePosition(const QString &text, double minimum, double maximum)
{
    if (text == QLatin1String("LO")) {
        return 0;
    }
    if (text == QLatin1String("HI")) {
        return 1;
    }
    int digits = 0;
    while (digits < text.size() && (text.at(digits).isDigit() || QString("+-.").contains(text.at(digits)))) {
        ++digits;
    }
    bool isNumber = false;
    double degrees = text.left(digits).toDouble(&isNumber);
    if (!isNumber) {
        return -1;
    }
    if (text.endsWith(QLatin1Char('F'))) {
        degrees = (degrees - 32) * 5 / 9;
    }
    return qBound(0.0, (degrees - minimum) / (maximum - minimum), 1.0);
}

ClimatePainter::ClimatePainter(QPainter *painter, const QRect &room, const QFont &base)
    : m_painter(painter), m_room(room), m_base(base), m_opacity(1)
{}

void ClimatePainter::paint(const ClimateState &state)
{
    m_painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintGround();
    m_opacity = state.on ? 1 : OffOpacity;
    m_painter->setOpacity(m_opacity);

    const QRect inner = m_room.adjusted(Padding, 16, -Padding, -16);
    const int middle = qBound(SmallestCentre, m_room.width() / 2, LargestCentre);
    const int side = (inner.width() - middle) / 2 - Padding;
    QRect temperature(inner.left(), inner.top(), side, inner.height());
    paintTemperature(temperature, state.left, scalePosition(state.left, state.minimum, state.maximum));
    temperature.moveRight(inner.right());
    paintTemperature(temperature, state.right, scalePosition(state.right, state.minimum, state.maximum));

    const QRect centre = centred(inner, QSize(middle, inner.height()));
    const int half = middle / 2;
    const int upper = inner.height() - MarkHeight - 8;
    paintFan(QRect(centre.left(), centre.top(), half, upper), state);
    paintDirection(QRect(centre.left() + half, centre.top(), half, upper), state);
    paintMarks(QRect(centre.left(), centre.bottom() + 1 - MarkHeight, middle, MarkHeight), state);
}

void ClimatePainter::paintGround()
{
    m_painter->fillRect(m_room, OrbPalette::panel());
    m_painter->fillRect(m_room.left(), m_room.top(), m_room.width(), 2, OrbPalette::line());
}

void ClimatePainter::paintTemperature(const QRect &room, const QString &text, double position)
{
    m_painter->setPen(OrbPalette::text());
    const QRect digits = room.adjusted(0, 14, 0, -50);
    paintFitted(digits, text, 64, QFont::Light, Qt::AlignCenter);
    paintScale(QRect(room.left() + 8, room.bottom() - 32, room.width() - 16, 8), position);
}

void ClimatePainter::paintScale(const QRect &room, double position)
{
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(OrbPalette::raised());
    m_painter->drawRoundedRect(room, 4, 4);
    if (position < 0) {
        return;
    }
    QLinearGradient colours(room.topLeft(), room.topRight());
    colours.setColorAt(0, OrbPalette::accent());
    colours.setColorAt(1, OrbPalette::error());
    m_painter->setBrush(colours);
    const int length = qRound(position * (room.width() - 8));
    m_painter->drawRoundedRect(QRect(room.left(), room.top(), length + 8, room.height()), 4, 4);
    m_painter->setBrush(OrbPalette::text());
    m_painter->drawEllipse(QPoint(room.left() + length + 4, room.top() + 4), 8, 8);
}

void ClimatePainter::paintFan(const QRect &room, const ClimateState &state)
{
    paintIcon(QRect(room.left(), room.top(), 64, room.height()), picture(":/orb/climate/fan.png"), 1);
    const QRect rest = room.adjusted(80, 0, -16, 0);
    m_painter->setPen(OrbPalette::text());
    if (!state.on) {
        paintFitted(rest, tr("OFF"), 36, QFont::Bold, Qt::AlignLeft | Qt::AlignVCenter);
    } else if (state.fan == ClimateState::ChosenByCar) {
        paintFitted(rest, tr("AUTO"), 36, QFont::Bold, Qt::AlignLeft | Qt::AlignVCenter);
    } else {
        paintFanBars(rest, state.fan, state.fanLevels);
    }
}

void ClimatePainter::paintFanBars(const QRect &room, int level, int levels)
{
    const int pitch = room.width() / levels;
    m_painter->setPen(Qt::NoPen);
    for (int i = 0; i < levels; ++i) {
        const int height = HighestFanBar - (levels - 1 - i) * 48 / (levels - 1);
        const QRect bar(room.left() + i * pitch, room.center().y() + 32 - height, pitch - 7, height);
        m_painter->setBrush(i < level ? OrbPalette::accent() : OrbPalette::raised());
        m_painter->drawRoundedRect(bar, 4, 4);
    }
}

void ClimatePainter::paintDirection(const QRect &room, const ClimateState &state)
{
    const QRect figure(room.left() + (room.width() - 176) / 3, room.top(), 176, room.height());
    paintIcon(figure, picture(":/orb/climate/seat.png"), 1);
    if (state.direction == ClimateState::ChosenByCar) {
        // Where the arrows would be.
        m_painter->setPen(OrbPalette::accent());
        paintFitted(QRect(figure.left() + 4, figure.center().y(), 66, 32), tr("AUTO"), 22, QFont::Bold,
                    Qt::AlignCenter);
        return;
    }
    const int bits = state.direction;
    paintIcon(figure, picture(":/orb/climate/air-windscreen.png"), bits & Windscreen ? 1 : AbsentOpacity);
    paintIcon(figure, picture(":/orb/climate/air-face.png"), bits & Face ? 1 : AbsentOpacity);
    paintIcon(figure, picture(":/orb/climate/air-feet.png"), bits & Feet ? 1 : AbsentOpacity);
}

void ClimatePainter::paintMarks(const QRect &room, const ClimateState &state)
{
    const int count = state.heaterMark ? 5 : 4;
    const int width = (room.width() - (count - 1) * MarkGap) / count;
    QRect chip(room.left(), room.top(), width, room.height());
    const int pitch = width + MarkGap;
    paintChip(chip, state.compressor, tr("A/C"));
    paintChip(chip.translated(pitch, 0), state.automatic, tr("AUTO"));
    const char *circulation = state.circulation == 0 ? ":/orb/climate/air-outside.png"
                              : state.circulation == ClimateState::ChosenByCar
                                  ? ":/orb/climate/air-automatic.png"
                                  : ":/orb/climate/air-recirculation.png";
    paintIconChip(chip.translated(2 * pitch, 0), state.circulation != 0, circulation);
    paintIconChip(chip.translated(3 * pitch, 0), state.defrosting, ":/orb/climate/defrost.png");
    if (state.heaterMark) {
        paintChip(chip.translated(4 * pitch, 0), false, tr("PTC"));
    }
}

void ClimatePainter::paintChip(const QRect &room, bool lit, const QString &text)
{
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(lit ? OrbPalette::accent() : OrbPalette::raised());
    m_painter->drawRoundedRect(room, 10, 10);
    m_painter->setPen(lit ? OrbPalette::ground() : OrbPalette::dim());
    paintFitted(room.adjusted(6, 2, -6, -2), text, 20, QFont::Bold, Qt::AlignCenter);
}

void ClimatePainter::paintIconChip(const QRect &room, bool lit, const char *icon)
{
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(lit ? OrbPalette::accent() : OrbPalette::raised());
    m_painter->drawRoundedRect(room, 10, 10);
    paintIcon(room, lit ? tinted(picture(icon), OrbPalette::ground()) : picture(icon),
              lit ? 1 : UnlitOpacity);
}

// As large as the room allows: figures and translated words are of any length.
void ClimatePainter::paintFitted(const QRect &room, const QString &text, int largest, int weight,
                                 int alignment)
{
    QFont font(m_base);
    font.setWeight(static_cast<QFont::Weight>(weight));
    int size = largest;
    font.setPixelSize(size);
    while (size > SmallestFont && OrbQt::textWidth(QFontMetrics(font), text) > room.width()) {
        font.setPixelSize(--size);
    }
    m_painter->setFont(font);
    m_painter->drawText(room, alignment | Qt::TextDontClip, text);
}

void ClimatePainter::paintIcon(const QRect &room, const QPixmap &icon, qreal opacity)
{
    m_painter->setOpacity(m_opacity * opacity);
    m_painter->drawPixmap(centred(room, icon.size()), icon);
    m_painter->setOpacity(m_opacity);
}
