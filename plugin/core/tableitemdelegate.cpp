#include "tablelistview.h"

#include "orbpalette.h"
#include "orbqtcompat.h"
#include "tableviewmodel.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

namespace {

const int Inset = 24;
const int Gap = 16;
const int IconSize = 40;
const int MarkSize = 28;
const int LabelSize = 22;
const int HeadingSize = 17;
const int ButtonHeight = 52;
const int ButtonInset = 20;
const int KnobGap = 4;
const QSize SwitchSize(72, 40);
const char NotTold[] = "--";

QFont pixelFont(const QFont &base, int pixels, int weight = QFont::Normal)
{
    QFont font(base);
    font.setPixelSize(pixels);
    font.setWeight(static_cast<QFont::Weight>(weight));
    return font;
}

QRect middle(const QRect &room, const QSize &size, int left)
{
    return QRect(left, room.top() + (room.height() - size.height()) / 2, size.width(), size.height());
}

// Breaks a text into at most two lines; the second ends in an ellipsis where it does not fit.
QStringList twoLines(const QFont &font, const QString &text, int width)
{
    const QFontMetrics metrics(font);
    QTextLayout layout(text, font);
    // A number without a blank (a vehicle's, say) is broken as well rather than cut.
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    QTextLine first = layout.createLine();
    if (first.isValid()) {
        first.setLineWidth(width);
    }
    layout.endLayout();
    const int end = first.isValid() ? first.textStart() + first.textLength() : text.size();
    QStringList lines(metrics.elidedText(text.left(end).trimmed(), Qt::ElideRight, width));
    if (end < text.size()) {
        lines.append(metrics.elidedText(text.mid(end).trimmed(), Qt::ElideRight, width));
    }
    return lines;
}

void drawText(QPainter *painter, const QRect &room, const QFont &font, const QColor &colour,
              const QString &text, Qt::Alignment side)
{
    if (text.isEmpty() || room.width() <= 0) {
        return;
    }
    painter->setFont(font);
    painter->setPen(colour);
    painter->drawText(room, int(side | Qt::AlignVCenter),
                      twoLines(font, text, room.width()).join(QLatin1String("\n")));
}

void drawPicture(QPainter *painter, const QRect &room, const QString &path)
{
    const QPixmap picture(path);
    if (picture.isNull()) {
        return;
    }
    QSize size = picture.size();
    if (size.width() > room.width() || size.height() > room.height()) {
        size = OrbQt::fitted(size, room.size());
    }
    QRect target(QPoint(0, 0), size);
    target.moveCenter(room.center());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(target, picture);
}

int looksOf(const TableViewItemDatas &row)
{
    return row.bindData(TableItemDelegate::LooksRole).toInt();
}

// Neither off nor on: an empty track, the knob an outline half way.
void drawUnknownSwitch(QPainter *painter, const QRect &room)
{
    const QRectF track = QRectF(room).adjusted(1, 1, -1, -1);
    painter->setPen(QPen(QColor(0x56, 0x61, 0x6F), 2, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(track, track.height() / 2, track.height() / 2);
    const qreal knob = room.height() - 2 * KnobGap - 6;
    QRectF place(0, 0, knob, knob);
    place.moveCenter(track.center());
    painter->setPen(QPen(OrbPalette::dim(), 2));
    painter->drawEllipse(place);
    painter->drawLine(place.center() - QPointF(5, 0), place.center() + QPointF(5, 0));
}

void drawSwitch(QPainter *painter, const QRect &room, bool on)
{
    const int radius = room.height() / 2;
    painter->setPen(Qt::NoPen);
    painter->setBrush(on ? OrbPalette::accent() : QColor(0x3A, 0x44, 0x52));
    painter->drawRoundedRect(room, radius, radius);
    QRect knob(room.topLeft(), QSize(room.height(), room.height()));
    if (on) {
        knob.moveRight(room.right());
    }
    painter->setBrush(on ? QColor(Qt::white) : QColor(0xC3, 0xCB, 0xD6));
    painter->drawEllipse(knob.adjusted(KnobGap, KnobGap, -KnobGap, -KnobGap));
}

void drawLabel(QPainter *painter, const QRect &cell, const QFont &base, const TableViewItemDatas &row)
{
    QRect room = cell.adjusted(Inset, 0, 0, 0);
    if (!row.icon().isEmpty()) {
        drawPicture(painter, middle(room, QSize(IconSize, IconSize), room.left()), row.icon());
        room.setLeft(room.left() + IconSize + Gap);
    }
    drawText(painter, room, pixelFont(base, LabelSize), OrbPalette::text(), row.text(), Qt::AlignLeft);
}

void drawHeading(QPainter *painter, const QRect &cell, const QFont &base, const QString &text)
{
    QFont font = pixelFont(base, HeadingSize, QFont::Bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    const QRect room = cell.adjusted(Inset, cell.height() / 3, 0, -8);
    painter->setFont(font);
    painter->setPen(OrbPalette::accent());
    painter->drawText(room, int(Qt::AlignLeft | Qt::AlignVCenter),
                      QFontMetrics(font).elidedText(text.toUpper(), Qt::ElideRight, room.width()));
}

QColor valueColour(int looks)
{
    if (looks & TableItemDelegate::Warning) {
        return OrbPalette::warning();
    }
    if (looks & TableItemDelegate::Unknown) {
        return OrbPalette::dim();
    }
    return looks & TableItemDelegate::Changeable ? OrbPalette::accent() : OrbPalette::text();
}

// The mark stands behind a value, on a button before the note.
void drawButton(QPainter *painter, const QRect &room, const QFont &base, const TableViewItemDatas &row)
{
    const QFont font = pixelFont(base, LabelSize);
    const QString text = row.bindData(TableItemDelegate::NoteRole).toString();
    const int textWidth = text.isEmpty() ? 0 : Gap / 2 + OrbQt::textWidth(QFontMetrics(font), text) + 1;
    const int width = qMin(room.width(), MarkSize + textWidth + 2 * ButtonInset);
    const QRect button = middle(room, QSize(width, ButtonHeight), room.right() + 1 - width);
    painter->setPen(Qt::NoPen);
    painter->setBrush(OrbPalette::raised());
    painter->drawRoundedRect(button, 10, 10);
    QRect inside = button.adjusted(ButtonInset, 0, -ButtonInset, 0);
    drawPicture(painter, middle(inside, QSize(MarkSize, MarkSize), inside.left()), row.mark());
    inside.setLeft(inside.left() + MarkSize + Gap / 2);
    drawText(painter, inside, font, OrbPalette::text(), text, Qt::AlignLeft);
}

void drawValue(QPainter *painter, const QRect &cell, const QFont &base, const TableViewItemDatas &row)
{
    QRect room = cell.adjusted(0, 0, -Inset, 0);
    const int looks = looksOf(row);
    const QVariant value = row.value(TableListView::ValueColumn);
    if (row.isSwitch()) {
        const QRect place = middle(room, SwitchSize, room.right() - SwitchSize.width());
        if (looks & TableItemDelegate::Unknown) {
            drawUnknownSwitch(painter, place);
        } else {
            drawSwitch(painter, place, value.toBool());
        }
        return;
    }
    if (looks & TableItemDelegate::Button) {
        drawButton(painter, room, base, row);
        return;
    }
    if (!row.mark().isEmpty()) {
        drawPicture(painter, middle(room, QSize(MarkSize, MarkSize), room.right() - MarkSize), row.mark());
        room.setRight(room.right() - MarkSize - Gap / 2);
    }
    const QString text = looks & TableItemDelegate::Unknown ? QLatin1String(NotTold) : value.toString();
    drawText(painter, room, pixelFont(base, LabelSize), valueColour(looks), text, Qt::AlignRight);
}

// The line between two rows: over the whole width, indented at both ends.
void drawSeparator(QPainter *painter, const QRect &cell, int column)
{
    const int left = column == TableListView::TextColumn ? Inset : 0;
    const int right = column == TableListView::ValueColumn ? Inset : 0;
    painter->fillRect(cell.left() + left, cell.bottom(), cell.width() - left - right, 1, OrbPalette::line());
}

} // namespace

TableItemDelegate::TableItemDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

void TableItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    const TableViewModel *model = qobject_cast<const TableViewModel *>(index.model());
    if (!model) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const TableViewItemDatas row = model->itemDatas(index.row());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state & QStyle::State_Selected) {
        painter->fillRect(option.rect, OrbPalette::raised());
    }
    if (!row.isHeading()) {
        drawSeparator(painter, option.rect, index.column());
    }
    if (index.column() == TableListView::TextColumn && row.isHeading()) {
        drawHeading(painter, option.rect, option.font, row.text());
    } else if (index.column() == TableListView::TextColumn) {
        drawLabel(painter, option.rect, option.font, row);
    } else if (index.column() == TableListView::ValueColumn) {
        drawValue(painter, option.rect, option.font, row);
    } else {
        drawText(painter, option.rect, pixelFont(option.font, HeadingSize), OrbPalette::dim(),
                 row.value(TableListView::SecondColumn).toString(), Qt::AlignLeft);
    }
    painter->restore();
}

QSize TableItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QSize(QStyledItemDelegate::sizeHint(option, index).width(), TableListView::RowHeight);
}
