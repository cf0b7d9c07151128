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

/// Where what is shown stands: nothing of it lies outside of its place.
class Layout
{
public:
    enum Mark { Compressor, Automatic, Circulation, Defrosting, Heater, MarkCount };

    Layout(const QRect &room, bool hasHeater) : m_marks(hasHeater ? MarkCount : int(Heater))
    {
        const QRect inner = room.adjusted(Padding, 16, -Padding, -16);
        const int middle = qBound(SmallestCentre, room.width() / 2, LargestCentre);
        const int side = (inner.width() - middle) / 2 - Padding;
        left = QRect(inner.left(), inner.top(), side, inner.height());
        right = left;
        right.moveRight(inner.right());
        m_centre = centred(inner, QSize(middle, inner.height()));
        fan = QRect(m_centre.left(), m_centre.top(), middle / 2, inner.height() - MarkHeight - MarkGap);
        direction = fan.translated(middle / 2, 0);
    }

    int marks() const { return m_marks; }
    QRect mark(int number) const
    {
        const int width = (m_centre.width() - (m_marks - 1) * MarkGap) / m_marks;
        return QRect(m_centre.left() + number * (width + MarkGap), m_centre.bottom() + 1 - MarkHeight, width,
                     MarkHeight);
    }
    /// The seat's picture is a little higher than the room for it.
    QRect seat() const { return direction.adjusted(0, -MarkGap, 0, MarkGap); }

    QRect left;
    QRect right;
    QRect fan;
    QRect direction;

private:
    const int m_marks;
    QRect m_centre;
};

const char *circulationIcon(int circulation)
{
    switch (circulation) {
    case 0:
        return ":/orb/climate/air-outside.png";
    case ClimateState::ChosenByCar:
        return ":/orb/climate/air-automatic.png";
    default:
        return ":/orb/climate/air-recirculation.png";
    }
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

void ClimatePainter::paint(const ClimateState &state, const QRegion &region)
{
    m_painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintGround();
    m_opacity = state.on ? 1 : OffOpacity;
    m_painter->setOpacity(m_opacity);

    const Layout layout(m_room, state.heaterMark);
    if (region.intersects(layout.left)) {
        paintTemperature(layout.left, state.left, scalePosition(state.left, state.minimum, state.maximum));
    }
    if (region.intersects(layout.right)) {
        paintTemperature(layout.right, state.right, scalePosition(state.right, state.minimum, state.maximum));
    }
    if (region.intersects(layout.fan)) {
        paintFan(layout.fan, state);
    }
    if (region.intersects(layout.seat())) {
        paintDirection(layout.direction, state);
    }
    for (int i = 0; i < layout.marks(); ++i) {
        if (region.intersects(layout.mark(i))) {
            paintMark(i, layout.mark(i), state);
        }
    }
}

QRegion ClimatePainter::difference(const ClimateState &before, const ClimateState &after, const QRect &room)
{
    if (before.on != after.on || before.heaterMark != after.heaterMark) {
        return room;
    }
    const Layout layout(room, after.heaterMark);
    const bool isOtherScale = before.minimum != after.minimum || before.maximum != after.maximum;
    const struct
    {
        bool differs;
        QRect place;
    } parts[] = {
        {isOtherScale || before.left != after.left, layout.left},
        {isOtherScale || before.right != after.right, layout.right},
        {before.fan != after.fan || before.fanLevels != after.fanLevels, layout.fan},
        {before.direction != after.direction, layout.seat()},
        {before.compressor != after.compressor, layout.mark(Layout::Compressor)},
        {before.automatic != after.automatic, layout.mark(Layout::Automatic)},
        {before.circulation != after.circulation, layout.mark(Layout::Circulation)},
        {before.defrosting != after.defrosting, layout.mark(Layout::Defrosting)},
    };
    QRegion changed;
    for (const auto &part : parts) {
        if (part.differs) {
            changed += part.place;
        }
    }
    return changed;
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

void ClimatePainter::paintMark(int mark, const QRect &room, const ClimateState &state)
{
    switch (mark) {
    case Layout::Compressor:
        paintChip(room, state.compressor, tr("A/C"));
        break;
    case Layout::Automatic:
        paintChip(room, state.automatic, tr("AUTO"));
        break;
    case Layout::Circulation:
        paintIconChip(room, state.circulation != 0, circulationIcon(state.circulation));
        break;
    case Layout::Defrosting:
        paintIconChip(room, state.defrosting, ":/orb/climate/defrost.png");
        break;
    default:
        paintChip(room, false, tr("PTC"));
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
