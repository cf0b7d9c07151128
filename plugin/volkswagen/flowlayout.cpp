#include "flowlayout.h"

#include "orbqtcompat.h"

namespace {

// So many fit on the smaller screen.
const int MostLines = 3;

int linesOf(int count, int columns)
{
    return (count + columns - 1) / columns;
}

} // namespace

FlowLayout::FlowLayout(int margin, int horizontalSpacing, int verticalSpacing, QWidget *parent)
    : QLayout(parent), m_horizontalSpacing(horizontalSpacing), m_verticalSpacing(verticalSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return m_items.size();
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return Qt::Orientations();
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return layOut(QRect(0, 0, width, 0), m_verticalSpacing, false);
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

QSize FlowLayout::minimumSize() const
{
    QSize largest;
    for (int i = 0; i < m_items.size(); ++i) {
        largest = largest.expandedTo(m_items.at(i)->minimumSize());
    }
    const QMargins margins = contentsMargins();
    return largest + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    // Where words are long, one line more than fits moves the others together.
    int spacing = m_verticalSpacing;
    while (spacing > 0 && layOut(rect, spacing, false) > rect.height()) {
        --spacing;
    }
    layOut(rect, spacing, true);
}

int FlowLayout::columnsIn(int width) const
{
    int widest = 1;
    for (int i = 0; i < m_items.size(); ++i) {
        widest = qMax(widest, m_items.at(i)->sizeHint().width());
    }
    const int count = qMax(1, int(m_items.size()));
    const int most = qBound(1, (width + m_horizontalSpacing) / (widest + m_horizontalSpacing), count);
    return linesOf(count, qMin(MostLines, linesOf(count, most)));
}

int FlowLayout::layOut(const QRect &rect, int spacing, bool apply) const
{
    const QMargins margins = contentsMargins();
    const int top = qMin(margins.top(), spacing);
    const int bottom = qMin(margins.bottom(), spacing);
    const QRect area = rect.adjusted(margins.left(), top, -margins.right(), -bottom);
    const int columns = columnsIn(area.width());
    const int columnWidth = (area.width() - (columns - 1) * m_horizontalSpacing) / columns;
    int y = area.top();
    int column = 0;
    int lineHeight = 0;
    for (int i = 0; i < m_items.size(); ++i) {
        QLayoutItem *const item = m_items.at(i);
        const QSize size = item->sizeHint();
        const int span = size.width() > columnWidth ? qMin(2, columns) : 1;
        if (column + span > columns) {
            y += lineHeight + spacing;
            column = 0;
            lineHeight = 0;
        }
        if (apply) {
            const int x = area.left() + column * (columnWidth + m_horizontalSpacing);
            const int width = span * columnWidth + (span - 1) * m_horizontalSpacing;
            item->setGeometry(QRect(x, y, width, size.height()));
        }
        column += span;
        lineHeight = qMax(lineHeight, size.height());
    }
    return y + lineHeight + bottom - rect.top();
}
