#include "bitgridpicture.h"

#include "deskcolours.h"

#include <QPainter>

namespace {

const int HeadWidth = 96; // of a byte's name and value
const int CellSize = 40;
const int CellGap = 4;
const int Margin = 16;
const int LineGap = 14;      // between two bytes
const int TextGap = 6;       // between the texts of two runs
const int TextSize = 14;     // pixels
const int LongestText = 420; // characters; a key table is longer than anybody reads here

QFont fontOf(const QWidget *widget, int pixels, bool isBold = false)
{
    QFont font = widget->font();
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

QColor colourOf(const BitGrid::Run &run)
{
    return !run.effects.isEmpty()  ? run.dependsOnState ? DeskColours::Warning : DeskColours::Accent
           : run.partner.isEmpty() ? DeskColours::Edge
                                   : DeskColours::Good;
}

} // namespace

BitGridPicture::BitGridPicture(QWidget *parent) : QWidget(parent) {}

void BitGridPicture::setRuns(const QByteArray &bytes, const QVector<BitGrid::Run> &runs)
{
    m_data = bytes;
    m_runs = runs;
    layOut();
    update();
}

void BitGridPicture::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

QString BitGridPicture::textOf(const BitGrid::Run &run) const
{
    const QString bits = run.high == run.low       ? QString::number(run.low)
                         : run.high - run.low == 7 ? QString()
                                                   : QStringLiteral("%1-%2").arg(run.high).arg(run.low);
    QString text = !run.effects.isEmpty()  ? run.effects.join(QLatin1Char('\n'))
                   : run.partner.isEmpty() ? tr("no effect")
                                           : tr("only together with %1").arg(run.partner);
    if (text.size() > LongestText) {
        text = text.left(LongestText) + QStringLiteral(" ...");
    }
    if (run.dependsOnState) {
        text += QLatin1Char('\n') + tr("depends on what the car said before");
    }
    return bits.isEmpty() ? text : bits + QStringLiteral("  ") + text;
}

// Each byte takes the height of its texts, and of its cells at least.
void BitGridPicture::layOut()
{
    const QFontMetrics metrics(fontOf(this, TextSize));
    const int left = Margin + HeadWidth + 8 * (CellSize + CellGap) + Margin;
    const int width = qMax(120, this->width() - left - Margin);
    m_tops.clear();
    m_texts.clear();
    int top = Margin;
    int next = 0;
    for (int byte = 0; byte < m_data.size(); ++byte) {
        m_tops << top;
        int bottom = top + 4;
        for (; next < m_runs.size() && m_runs.at(next).byte == byte; ++next) {
            const QRect text = metrics.boundingRect(QRect(left, bottom, width, 10000), Qt::TextWordWrap,
                                                    textOf(m_runs.at(next)));
            m_texts << QRect(left, bottom, width, text.height());
            bottom += text.height() + TextGap;
        }
        top = qMax(top + CellSize, bottom) + LineGap;
    }
    setMinimumHeight(top + Margin);
}

QRect BitGridPicture::cell(int top, int bit) const
{
    return QRect(Margin + HeadWidth + (7 - bit) * (CellSize + CellGap), top, CellSize, CellSize);
}

void BitGridPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), DeskColours::Ground);
    for (int byte = 0; byte < m_tops.size(); ++byte) {
        paintByte(&painter, byte);
    }
    for (int i = 0; i < m_texts.size(); ++i) {
        const BitGrid::Run &run = m_runs.at(i);
        paintRun(&painter, run, m_tops.at(run.byte));
        painter.setFont(fontOf(this, TextSize));
        painter.setPen(run.effects.isEmpty() ? DeskColours::Dim : DeskColours::Text);
        painter.drawText(m_texts.at(i), Qt::TextWordWrap, textOf(run));
    }
}

void BitGridPicture::paintByte(QPainter *painter, int byte) const
{
    const int top = m_tops.at(byte);
    const int value = quint8(m_data.at(byte));
    if (byte > 0) {
        painter->setPen(DeskColours::Panel);
        painter->drawLine(Margin, top - LineGap / 2, width() - Margin, top - LineGap / 2);
    }
    painter->setFont(fontOf(this, 18, true));
    painter->setPen(DeskColours::Text);
    const QRect head(Margin, top, HeadWidth - 12, CellSize);
    painter->drawText(head, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("d[%1]").arg(byte));
    painter->setFont(fontOf(this, 16));
    painter->setPen(DeskColours::Dim);
    painter->drawText(head, Qt::AlignRight | Qt::AlignVCenter,
                      QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')));
}

// One frame around all the bits of the run, each with its number and its value.
void BitGridPicture::paintRun(QPainter *painter, const BitGrid::Run &run, int top) const
{
    const QColor colour = colourOf(run);
    const bool isIdle = run.effects.isEmpty() && run.partner.isEmpty();
    QColor fill = colour;
    fill.setAlphaF(isIdle ? 0.35 : 0.28);
    painter->setPen(QPen(colour, isIdle ? 1 : 2));
    painter->setBrush(fill);
    painter->drawRoundedRect(QRectF(cell(top, run.high) | cell(top, run.low)).adjusted(1, 1, -1, -1), 8, 8);
    for (int bit = run.low; bit <= run.high; ++bit) {
        const QRect place = cell(top, bit);
        painter->setFont(fontOf(this, 11));
        painter->setPen(DeskColours::Dim);
        painter->drawText(place.adjusted(6, 3, 0, 0), Qt::AlignLeft | Qt::AlignTop, QString::number(bit));
        painter->setFont(fontOf(this, 18, true));
        painter->setPen(isIdle ? DeskColours::Dim : DeskColours::Text);
        painter->drawText(place.adjusted(0, 6, 0, 0), Qt::AlignCenter,
                          quint8(m_data.at(run.byte)) & (1 << bit) ? QStringLiteral("1")
                                                                   : QStringLiteral("0"));
    }
}
