#include "figurelabel.h"

#include "orbqtcompat.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

const int LargestFigure = 64; // pixels
const int SmallestFigure = 16;
const int Gap = 6; // between number and unit

QString figureOf(const QString &text)
{
    return text.section(QLatin1Char(' '), 0, 0);
}

QString unitOf(const QString &text)
{
    return text.section(QLatin1Char(' '), 1);
}

int unitSize(int figureSize)
{
    return qMax(SmallestFigure, figureSize * 2 / 5);
}

int advance(const QFont &font, const QString &text)
{
    return OrbQt::textWidth(QFontMetrics(font), text);
}

} // namespace

FigureLabel::FigureLabel(QWidget *parent) : QLabel(parent) {}

QSize FigureLabel::minimumSizeHint() const
{
    return QSize(widthAt(SmallestFigure), QFontMetrics(fontOf(SmallestFigure)).height());
}

QFont FigureLabel::fontOf(int size) const
{
    QFont result = font();
    result.setPixelSize(size);
    return result;
}

int FigureLabel::widthAt(int size) const
{
    const int figure = advance(fontOf(size), figureOf(text()));
    const QString unit = unitOf(text());
    return unit.isEmpty() ? figure : figure + Gap + advance(fontOf(unitSize(size)), unit);
}

void FigureLabel::paintEvent(QPaintEvent *)
{
    const QRect area = contentsRect();
    int size = qBound(SmallestFigure, area.height() * 3 / 4, LargestFigure);
    while (size > SmallestFigure && widthAt(size) > area.width()) {
        --size;
    }

    const QString figure = figureOf(text());
    const QFont figureFont = fontOf(size);
    const QFontMetrics metrics(figureFont);
    const int baseLine = area.top() + (area.height() + metrics.ascent() - metrics.descent()) / 2;

    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.setFont(figureFont);
    painter.drawText(area.left(), baseLine, figure);
    const int unitLeft = area.left() + advance(figureFont, figure) + Gap;
    painter.setFont(fontOf(unitSize(size)));
    painter.setOpacity(0.7);
    painter.drawText(unitLeft, baseLine, unitOf(text()));
}
