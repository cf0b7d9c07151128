#include "apptile.h"

#include "deskcolours.h"

#include <QPainter>
#include <QTextLayout>

namespace {

const QSize TileSize(132, 132); // two rows of them find room on a screen of 800x480
const int PictureSize = 72;
const int TopMargin = 8;
const int TitleMargin = 4;

QFont titleFont()
{
    QFont font;
    font.setPixelSize(18);
    return font;
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

QStringList AppTile::titleLines() const
{
    const QFontMetrics metrics(titleFont());
    const int width = TileSize.width() - 2 * TitleMargin;
    QTextLayout layout(text(), titleFont());
    layout.beginLayout();
    QTextLine first = layout.createLine();
    if (text().isEmpty() || !first.isValid()) {
        return QStringList();
    }
    first.setLineWidth(width);
    const int length = first.textLength();
    layout.endLayout();
    QStringList lines(metrics.elidedText(text().left(length).trimmed(), Qt::ElideRight, width));
    const QString rest = text().mid(length).trimmed();
    if (!rest.isEmpty()) {
        lines << metrics.elidedText(rest, Qt::ElideRight, width);
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

    painter.setFont(titleFont());
    painter.setPen(isLit ? DeskColours::Text : QColor(0xD5, 0xDB, 0xE2));
    const int top = place.bottom() + 4;
    const QRect title(TitleMargin, top, width() - 2 * TitleMargin, height() - top);
    painter.drawText(title, Qt::AlignHCenter | Qt::AlignTop, titleLines().join(QLatin1Char('\n')));
}
