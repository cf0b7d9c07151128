#include "flowlayout.h"

#include "orbqtcompat.h"

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
    return layOut(QRect(0, 0, width, 0), false);
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
    layOut(rect, true);
}

int FlowLayout::layOut(const QRect &rect, bool apply) const
{
    const QMargins margins = contentsMargins();
    const QRect area = rect.adjusted(margins.left(), margins.top(), -margins.right(), -margins.bottom());
    int x = area.left();
    int y = area.top();
    int lineHeight = 0;
    for (int i = 0; i < m_items.size(); ++i) {
        QLayoutItem *const item = m_items.at(i);
        QSize size = item->sizeHint();
        size.setWidth(qMin(size.width(), area.width()));
        if (lineHeight > 0 && x + size.width() > area.left() + area.width()) {
            x = area.left();
            y += lineHeight + m_verticalSpacing;
            lineHeight = 0;
        }
        if (apply) {
            item->setGeometry(QRect(QPoint(x, y), size));
        }
        x += size.width() + m_horizontalSpacing;
        lineHeight = qMax(lineHeight, size.height());
    }
    return y + lineHeight + margins.bottom() - rect.top();
}
