#include "fingerscrollarea.h"

#include "dragscroller.h"
#include "orbqtcompat.h"

#include <QAbstractButton>
#include <QScrollBar>

FingerScrollArea::FingerScrollArea(QWidget *content, QWidget *parent)
    : QScrollArea(parent), m_scroller(new DragScroller(verticalScrollBar(), this))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setWidgetResizable(true);
    setWidget(content);
    content->installEventFilter(this);
    const QList<QAbstractButton *> buttons = content->findChildren<QAbstractButton *>();
    for (int i = 0; i < buttons.size(); ++i) {
        buttons.at(i)->installEventFilter(this);
    }
}

QSize FingerScrollArea::sizeHint() const
{
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

bool FingerScrollArea::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease) {
        return QScrollArea::eventFilter(watched, event);
    }

    QAbstractButton *button = qobject_cast<QAbstractButton *>(watched);
    const int y = OrbQt::mouseGlobalPos(static_cast<QMouseEvent *>(event)).y();
    bool taken = false;
    if (type == QEvent::MouseButtonPress) {
        taken = m_scroller->press(y);
    } else if (type == QEvent::MouseMove) {
        taken = m_scroller->move(y);
    } else {
        taken = !m_scroller->release();
    }
    if (taken && button) {
        button->setDown(false);
    }
    // What the content itself gets goes no further: the dialog is not to be dragged or tapped through it.
    return taken || !button;
}
