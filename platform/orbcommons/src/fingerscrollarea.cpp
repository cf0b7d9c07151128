#include "fingerscrollarea.h"

#include "orbqtcompat.h"

#include <QAbstractButton>
#include <QScrollBar>

namespace {

const int DragThreshold = 12; // pixels by which a fingertip trembles

}

FingerScrollArea::FingerScrollArea(QWidget *content, QWidget *parent)
    : QScrollArea(parent), m_pressY(0), m_lastY(0), m_dragging(false)
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
    if (type == QEvent::MouseButtonPress) {
        m_pressY = m_lastY = y;
        m_dragging = false;
    } else if (type == QEvent::MouseMove && (m_dragging || qAbs(y - m_pressY) >= DragThreshold)) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + m_lastY - y);
        m_lastY = y;
        m_dragging = true;
    }
    const bool taken = m_dragging;
    if (taken && button) {
        button->setDown(false);
    }
    // What the content itself gets goes no further: the dialog is not to be dragged or tapped through it.
    return taken || !button;
}
