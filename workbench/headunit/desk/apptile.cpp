#include "apptile.h"

#include "deskcolours.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {

const QSize TileSize(132, 132); // two rows of them find room on a screen of 800x480
const int PictureSize = 72;
const int TopMargin = 8;
const int TitleMargin = 0;
const int LargestLetters = 18; // pixels
const int SmallestLetters = 12;
const int MostLines = 2;

QFont titleFont(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

// The parts that stand on lines of the width; \a mode: where a line may end.
QStringList broken(const QString &text, const QFont &font, int width, QTextOption::WrapMode mode)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(mode);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

bool fits(const QStringList &lines, const QFontMetrics &metrics, int width)
{
    return lines.size() <= MostLines && std::all_of(lines.begin(), lines.end(), [&](const QString &line) {
               return metrics.horizontalAdvance(line) <= width;
           });
}

} // namespace

AppTile::AppTile(const QString &title, const QString &normal, const QString &highlighted, QWidget *parent)
    : QAbstractButton(parent), m_normal(normal), m_highlighted(highlighted)
{
    if (m_normal.isNull()) {
        m_normal =
            m_highlighted.isNull() ? QPixmap(QStringLiteral(":/desk/launcher/app.png")) : m_highlighted;
    }
    if (m_highlighted.isNull()) {
        m_highlighted = m_normal;
    }
    setText(title);
    setFixedSize(TileSize);
    setFocusPolicy(Qt::StrongFocus);
}

QSize AppTile::sizeHint() const
{
    return TileSize;
}

QStringList AppTile::titleLines(int *pixels) const
{
    const int width = TileSize.width() - 2 * TitleMargin;
    for (*pixels = LargestLetters; *pixels >= SmallestLetters; --*pixels) {
        const QFont font = titleFont(*pixels);
        const QStringList lines = broken(text(), font, width, QTextOption::WordWrap);
        if (fits(lines, QFontMetrics(font), width)) {
            return lines;
        }
    }
    *pixels = SmallestLetters;
    const QFont font = titleFont(SmallestLetters);
    QStringList lines = broken(text(), font, width, QTextOption::WrapAtWordBoundaryOrAnywhere);
    if (lines.size() > MostLines) {
        const QString rest = lines.mid(MostLines - 1).join(QString());
        lines = lines.mid(0, MostLines - 1);
        lines << QFontMetrics(font).elidedText(rest, Qt::ElideRight, width);
    }
    return lines;
}

void AppTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const bool isLit = isDown() || isChecked();
    if (isLit || hasFocus()) {
        painter.setPen(hasFocus() ? QPen(DeskColours::Accent, 2) : QPen(Qt::NoPen));
        painter.setBrush(isLit ? DeskColours::Edge : DeskColours::Panel);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 10, 10);
    }
    const QRect place((width() - PictureSize) / 2, TopMargin, PictureSize, PictureSize);
    painter.drawPixmap(place, isLit ? m_highlighted : m_normal);

    int pixels = 0;
    const QStringList lines = titleLines(&pixels);
    painter.setFont(titleFont(pixels));
    painter.setPen(isLit ? DeskColours::Text : QColor(0xD5, 0xDB, 0xE2));
    const int top = place.bottom() + 4;
    const QRect title(TitleMargin, top, width() - 2 * TitleMargin, height() - top);
    painter.drawText(title, Qt::AlignHCenter | Qt::AlignTop, lines.join(QLatin1Char('\n')));
}
