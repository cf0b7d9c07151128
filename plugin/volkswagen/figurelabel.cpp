#include "figurelabel.h"

#include "orbqtcompat.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>

namespace {

const int LargestFigure = 64; // pixels
const int SmallestFigure = 16;
const int UnitSize = 20;
const int Gap = 8; // between number and unit
// By how much larger numbers must get, in pixels, before their units go to a line of their own.
const int WorthALine = 6;

const QRgb UnknownColour = 0xFF8A94A3;
const char Unknown[] = "--";

QString figureOf(const QString &text)
{
    return text.section(QLatin1Char(' '), 0, 0);
}

QString unitOf(const QString &text)
{
    return text.section(QLatin1Char(' '), 1);
}

int advance(const QFont &font, const QString &text)
{
    return OrbQt::textWidth(QFontMetrics(font), text);
}

} // namespace

FigureLabel::FigureLabel(QWidget *parent) : QLabel(parent), m_size(SmallestFigure), m_unitPlace(Beside) {}

void FigureLabel::setUsual(const QString &example, const QString &unit)
{
    m_usualFigure = example;
    m_usualUnit = unit;
}

QSize FigureLabel::minimumSizeHint() const
{
    const QSize figure(figureWidth(SmallestFigure), QFontMetrics(fontOf(SmallestFigure)).height());
    return figure + unitRoom(Beside);
}

QFont FigureLabel::fontOf(int pixels) const
{
    QFont result = font();
    result.setPixelSize(pixels);
    return result;
}

int FigureLabel::figureWidth(int pixels) const
{
    const QFont font = fontOf(pixels);
    return qMax(advance(font, figureOf(text())), advance(font, m_usualFigure));
}

QSize FigureLabel::unitRoom(UnitPlace place) const
{
    const QFont font = fontOf(UnitSize);
    if (place == Below) {
        return QSize(0, QFontMetrics(font).height());
    }
    const int width = qMax(advance(font, unitOf(text())), advance(font, m_usualUnit));
    return QSize(width > 0 ? width + Gap : 0, 0);
}

// Widths grow with the size, but for the rounding to whole pixels: one guess, and a step or two down.
int FigureLabel::fittingSize(UnitPlace place) const
{
    const QSize room = contentsRect().size() - unitRoom(place);
    const int width = qMax(1, figureWidth(LargestFigure));
    const int height = QFontMetrics(fontOf(LargestFigure)).height();
    const int guess = qMin(LargestFigure * room.width() / width, LargestFigure * room.height() / height);
    int size = qBound(SmallestFigure, guess, LargestFigure);
    while (size > SmallestFigure &&
           (figureWidth(size) > room.width() || QFontMetrics(fontOf(size)).height() > room.height())) {
        --size;
    }
    return size;
}

void FigureLabel::setFigureSize(int pixels, UnitPlace place)
{
    if (pixels != m_size || place != m_unitPlace) {
        m_size = pixels;
        m_unitPlace = place;
        update();
    }
}

void FigureLabel::paintEvent(QPaintEvent *)
{
    const QRect area = contentsRect();
    const QFont figureFont = fontOf(m_size);
    const QFont unitFont = fontOf(UnitSize);
    const QString figure = figureOf(text());
    const QString unit = unitOf(text());
    const int unitLine = area.bottom() - QFontMetrics(m_unitPlace == Below ? unitFont : figureFont).descent();
    const int baseLine = area.bottom() - unitRoom(m_unitPlace).height() - QFontMetrics(figureFont).descent();

    QPainter painter(this);
    painter.setPen(figure == QLatin1String(Unknown) ? QColor(UnknownColour)
                                                    : palette().color(foregroundRole()));
    painter.setFont(figureFont);
    painter.drawText(area.left(), baseLine, figure);
    painter.setFont(unitFont);
    painter.setOpacity(0.7);
    const int unitLeft = m_unitPlace == Below ? area.left() : area.right() - advance(unitFont, unit);
    painter.drawText(unitLeft, unitLine, unit);
}

FigureGroup::FigureGroup(QObject *parent) : QObject(parent), m_isStale(false) {}

void FigureGroup::add(FigureLabel *label)
{
    m_labels.append(label);
    label->installEventFilter(this);
}

int FigureGroup::fittingSize(FigureLabel::UnitPlace place) const
{
    int size = LargestFigure;
    for (int i = 0; i < m_labels.size(); ++i) {
        size = qMin(size, m_labels.at(i)->fittingSize(place));
    }
    return size;
}

void FigureGroup::textChanged()
{
    m_isStale = true;
}

void FigureGroup::fit()
{
    m_isStale = false;
    const int beside = fittingSize(FigureLabel::Beside);
    const int below = fittingSize(FigureLabel::Below);
    const bool isBelow = below > beside + WorthALine;
    for (int i = 0; i < m_labels.size(); ++i) {
        m_labels.at(i)->setFigureSize(isBelow ? below : beside,
                                      isBelow ? FigureLabel::Below : FigureLabel::Beside);
    }
}

bool FigureGroup::eventFilter(QObject *watched, QEvent *event)
{
    // Measuring costs more than all else that a package brings, so it waits until somebody looks.
    if (event->type() == QEvent::Resize || (event->type() == QEvent::Paint && m_isStale)) {
        fit();
    }
    return QObject::eventFilter(watched, event);
}
