#include "unitview.h"

#include "headunit.h"
#include "unitscreen.h"

#include <QGraphicsProxyWidget>
#include <QGuiApplication>
#include <QKeyEvent>

namespace {

const int PictureInterval = 100; // ms
const QColor Surroundings(0x0A, 0x0D, 0x11);

/// The unit's key that a key of the keyboard is; 0 for none.
int unitKeyOf(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        return Qt::Key_Back;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Qt::Key_Enter;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return key;
    default:
        return 0;
    }
}

} // namespace

UnitView::UnitView(UnitScreen *screen, QWidget *parent)
    : QGraphicsView(new QGraphicsScene, parent), m_screen(screen), m_unitSize(screen->size())
{
    scene()->setParent(this);
    setObjectName(QStringLiteral("unitView"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignCenter);
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    setFocusPolicy(Qt::StrongFocus);
    scene()->addWidget(screen);
    screen->setAttribute(Qt::WA_QuitOnClose, false); // closing the desk ends the program
    scene()->setSceneRect(QRectF(QPointF(0, 0), m_unitSize));
    // What lies below need not be painted ten times a second.
    setBackgroundBrush(Surroundings);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    m_rest.setSingleShot(true);
    m_rest.setInterval(PictureInterval);
    connect(&m_rest, &QTimer::timeout, this, &UnitView::showChanges);
    screen->installEventFilter(this);
}

// The screen gathers what is to be painted until this event arrives. (The scene would tell as well that something has
// changed, but not where: it names the whole screen.)
bool UnitView::eventFilter(QObject *screen, QEvent *event)
{
    if (event->type() != QEvent::UpdateRequest) {
        return QGraphicsView::eventFilter(screen, event);
    }
    m_isLate = m_rest.isActive() && QGuiApplication::mouseButtons() == Qt::NoButton;
    if (!m_isLate) {
        m_rest.start();
    }
    return m_isLate;
}

void UnitView::showChanges()
{
    if (m_isLate) {
        QEvent request(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(m_screen, &request);
    }
}

QSize UnitView::sizeHint() const
{
    return m_unitSize;
}

QSize UnitView::minimumSizeHint() const
{
    return m_unitSize * LeastScale;
}

void UnitView::resizeEvent(QResizeEvent *event)
{
    const qreal fitting = qMin(qreal(width()) / m_unitSize.width(), qreal(height()) / m_unitSize.height());
    const qreal scale = qBound(LeastScale, fitting, GreatestScale);
    setTransform(QTransform::fromScale(scale, scale));
    QGraphicsView::resizeEvent(event);
}

void UnitView::keyPressEvent(QKeyEvent *event)
{
    if (const int key = unitKeyOf(event->key())) {
        Q_EMIT keyUsed(key, event->isAutoRepeat() ? HeadUnit::KeyRepeated : HeadUnit::KeyPressed);
    } else {
        QGraphicsView::keyPressEvent(event);
    }
}

void UnitView::keyReleaseEvent(QKeyEvent *event)
{
    const int key = unitKeyOf(event->key());
    if (key == 0) {
        QGraphicsView::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        Q_EMIT keyUsed(key, HeadUnit::KeyReleased);
    }
}
