#include "fingerscroll.h"

#include "steeringwheel.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QScrollPrepareEvent>
#include <QScroller>

namespace {

const qreal PressDelay = 0.1; // seconds until a finger that has not moved presses what is below it

/// Refuses the drags that belong to a control.
class DragRefuser : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *viewport, QEvent *event) override
    {
        if (event->type() != QEvent::ScrollPrepare) {
            return false;
        }
        const QPointF place = static_cast<QScrollPrepareEvent *>(event)->startPos();
        const QWidget *control = static_cast<QWidget *>(viewport)->childAt(place.toPoint());
        // A list scrolls by itself, and its rows are clicked, once or twice.
        const bool isList = control && qobject_cast<const QAbstractItemView *>(control->parentWidget());
        const bool isRefused = isList || qobject_cast<const QAbstractSlider *>(control) ||
                               qobject_cast<const SteeringWheel *>(control);
        event->setAccepted(!isRefused);
        return isRefused;
    }
};

} // namespace

void FingerScroll::enable(QAbstractScrollArea *area)
{
    QWidget *viewport = area->viewport();
    viewport->installEventFilter(new DragRefuser(viewport));
    QScroller::grabGesture(viewport, QScroller::LeftMouseButtonGesture);
    QScroller *scroller = QScroller::scroller(viewport);
    QScrollerProperties manners = scroller->scrollerProperties();
    manners.setScrollMetric(QScrollerProperties::MousePressEventDelay, PressDelay);
    manners.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy,
                            QScrollerProperties::OvershootAlwaysOff);
    manners.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                            QScrollerProperties::OvershootAlwaysOff);
    scroller->setScrollerProperties(manners);
}
