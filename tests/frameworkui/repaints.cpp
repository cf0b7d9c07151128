#include "repaints.h"

#include "tablelistview.h"

#include <QApplication>
#include <QPaintEvent>
#include <QTest>

namespace {

const int SettlingTime = 10; // ms: what a widget learns may have it painted a turn of the event loop later

QStringList rowsIn(const TableListView *list, const QRegion &region)
{
    QStringList rows;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QRect cells = list->visualRect(list->model()->index(row, 0)) |
                            list->visualRect(list->model()->index(row, TableListView::ValueColumn));
        if (region.intersects(cells)) {
            rows << QString("row %1").arg(row);
        }
    }
    return rows;
}

} // namespace

Repaints::Repaints(QWidget *window) : m_window(window)
{
    qApp->installEventFilter(this);
}

void Repaints::settle()
{
    widgets();
    m_painted.clear();
}

QStringList Repaints::widgets()
{
    QTest::qWait(SettlingTime);
    QStringList names;
    QRegion known;
    QRegion all;
    for (auto i = m_painted.cbegin(); i != m_painted.cend(); ++i) {
        QWidget *const widget = i.key();
        const QPoint place = widget->mapTo(m_window, QPoint());
        all += i.value().translated(place);
        bool isBelow = false;
        for (QWidget *other : m_painted.keys()) {
            isBelow = isBelow || (other != widget && widget->isAncestorOf(other));
        }
        if (isBelow) {
            continue;
        }
        known += widget->rect().translated(place);
        const TableListView *const list = qobject_cast<TableListView *>(widget->parentWidget());
        if (list && widget == list->viewport()) {
            names << rowsIn(list, i.value());
        } else {
            names << (widget->objectName().isEmpty() ? widget->metaObject()->className()
                                                     : widget->objectName());
        }
    }
    if (!all.subtracted(known).isEmpty()) {
        names << "elsewhere";
    }
    names.sort();
    return names;
}

int Repaints::pixels()
{
    QTest::qWait(SettlingTime);
    QRegion all;
    for (auto i = m_painted.cbegin(); i != m_painted.cend(); ++i) {
        all += i.value().translated(i.key()->mapTo(m_window, QPoint()));
    }
    int count = 0;
    for (const QRect &rect : all) {
        count += rect.width() * rect.height();
    }
    return count;
}

bool Repaints::eventFilter(QObject *watched, QEvent *event)
{
    QWidget *const widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Paint && widget && (widget == m_window || m_window->isAncestorOf(widget))) {
        m_painted[widget] += static_cast<QPaintEvent *>(event)->region();
    }
    return false;
}
