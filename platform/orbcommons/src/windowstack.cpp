#include "windowstack.h"

#include "orbhost_p.h"
#include "orbmainwindow.h"
#include "orbtrace.h"

#include <QEvent>
#include <QLayout>

#include <algorithm>

namespace {

const int OverlayHeight = 190;
const int SmallestChoiceWidth = 560;
const int ChoiceMargin = 16;

QRect overlayGeometry(const QRect &area, const QSize &hint)
{
    const int height = qMin(area.height(), qMax(OverlayHeight, hint.height()));
    return QRect(area.left(), area.bottom() + 1 - height, area.width(), height);
}

QRect choiceGeometry(const QRect &area, const QWidget *dialog)
{
    QSize hint = dialog->sizeHint().isValid() ? dialog->sizeHint() : dialog->size();
    hint = hint.expandedTo(dialog->minimumSize());
    const QSize room = area.size() - QSize(2 * ChoiceMargin, 2 * ChoiceMargin);
    QSize size(qMin(room.width(), qMax(SmallestChoiceWidth, hint.width())), hint.height());
    QLayout *layout = dialog->layout();
    if (layout && layout->hasHeightForWidth()) {
        size.setHeight(layout->totalHeightForWidth(size.width()));
    }
    QRect place(QPoint(0, 0), size.boundedTo(room));
    place.moveCenter(area.center());
    return place;
}

} // namespace

WindowStack *WindowStack::instance()
{
    return OrbHostPrivate::get()->windowStack;
}

WindowStack::WindowStack(QObject *parent) : QObject(parent), m_area(nullptr), m_quiet(nullptr) {}

void WindowStack::add(QWidget *window, Kind kind, unsigned int appId)
{
    if (!window || m_all.contains(window)) {
        return;
    }
    const Entry entry = {window, kind, appId};
    m_all.append(window);
    m_order.append(entry);
    window->installEventFilter(this);
    // On the screen a window is the area's child; what it was built under then still decides when it dies.
    if (window->parent()) {
        connect(window->parent(), SIGNAL(destroyed()), window, SLOT(deleteLater()));
    }
}

void WindowStack::setKind(QWidget *window, Kind kind)
{
    const int index = indexInOrder(window);
    if (index >= 0 && m_order.at(index).kind != kind) {
        m_order[index].kind = kind;
        m_visible.clear();
    }
}

void WindowStack::remove(QWidget *window)
{
    const int index = indexInOrder(window);
    if (index < 0) {
        return;
    }
    m_order.removeAt(index);
    m_all.removeAll(window);
    m_visible.clear();
    restack();
    Q_EMIT changed();
}

void WindowStack::traceVisibility(QWidget *window, bool visible)
{
    // The update dialog reports its own calls instead.
    if (!OrbTrace::listener || window == m_quiet || window->inherits("UpdateDialog")) {
        return;
    }
    OrbTrace::listener->called(QLatin1String(window->metaObject()->className()), QLatin1String("setVisible"),
                               QVariantList() << visible);
}

void WindowStack::place(QWidget *window)
{
    const int index = indexInOrder(window);
    if (index < 0 || !m_area) {
        return;
    }
    if (window->parentWidget() != m_area) {
        setParentQuietly(window, m_area);
    }
    setGeometryOf(m_order.at(index));
}

void WindowStack::shown(QWidget *window)
{
    const int index = indexInOrder(window);
    if (index < 0) {
        return;
    }
    m_order.append(m_order.takeAt(index));
    restack();
    tellChanges();
}

void WindowStack::hidden(QWidget *window)
{
    if (indexInOrder(window) < 0) {
        return;
    }
    restack();
    tellChanges();
}

// A car repeats its climate, and each time the display is shown that is there already.
void WindowStack::tellChanges()
{
    QList<QWidget *> visible;
    for (int i = 0; i < m_order.size(); ++i) {
        if (!m_order.at(i).window->isHidden()) {
            visible.append(m_order.at(i).window);
        }
    }
    if (visible != m_visible) {
        m_visible = visible;
        Q_EMIT changed();
    }
}

void WindowStack::areaChanged()
{
    QWidget *next = OrbHost::instance()->windowArea();
    if (next == m_area) {
        return;
    }
    leaveArea();
    m_area = next;
    if (!m_area) {
        return;
    }
    m_area->installEventFilter(this);
    connect(m_area, SIGNAL(destroyed()), SLOT(leaveArea()));
}

// Also while the area is being destroyed: its windows are not its own and must not go with it.
void WindowStack::leaveArea()
{
    QWidget *left = m_area;
    m_area = nullptr;
    delete m_scrim;
    if (!left) {
        return;
    }
    left->removeEventFilter(this);
    disconnect(left, nullptr, this, nullptr);
    const QList<QWidget *> windows = m_all;
    for (int i = 0; i < windows.size(); ++i) {
        QWidget *window = windows.at(i);
        if (indexInOrder(window) >= 0 && window->parentWidget() == left) {
            setParentQuietly(window, nullptr);
        }
    }
}

QList<QWidget *> WindowStack::all() const
{
    return m_all;
}

QWidget *WindowStack::front(bool ignoreOverlays) const
{
    int index = topmost(ModalDialog);
    if (index < 0 && !ignoreOverlays) {
        index = topmost(OverlayDialog);
    }
    if (index < 0) {
        index = topmost(MainWindow);
    }
    return index < 0 ? nullptr : m_order.at(index).window;
}

QWidget *WindowStack::frontMainWindow() const
{
    const int index = topmost(MainWindow);
    return index < 0 ? nullptr : m_order.at(index).window;
}

unsigned int WindowStack::frontAppId() const
{
    const int index = topmost(MainWindow);
    return index < 0 ? 0 : m_order.at(index).appId;
}

// A window's hook may delete other windows.
void WindowStack::goHome()
{
    QList<QPointer<OrbMainWindow>> windows;
    for (int i = 0; i < m_order.size(); ++i) {
        if (m_order.at(i).kind == MainWindow && !m_order.at(i).window->isHidden()) {
            windows.append(qobject_cast<OrbMainWindow *>(m_order.at(i).window));
        }
    }
    for (int i = 0; i < windows.size(); ++i) {
        if (windows.at(i) && !windows.at(i)->isHidden()) {
            windows.at(i)->home();
        }
    }
}

bool WindowStack::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_area && event->type() == QEvent::Resize) {
        for (int i = 0; i < m_order.size(); ++i) {
            setGeometryOf(m_order.at(i));
        }
        restack();
    } else if (event->type() == QEvent::LayoutRequest) {
        // What a dialog shows has changed, and with it the room that it needs.
        const int index = indexInOrder(watched);
        if (index >= 0 && m_order.at(index).kind != MainWindow) {
            setGeometryOf(m_order.at(index));
        }
    }
    return QObject::eventFilter(watched, event);
}

int WindowStack::indexInOrder(const QObject *window) const
{
    for (int i = 0; i < m_order.size(); ++i) {
        if (m_order.at(i).window == window) {
            return i;
        }
    }
    return -1;
}

int WindowStack::topmost(Kind kind) const
{
    for (int i = m_order.size() - 1; i >= 0; --i) {
        if (m_order.at(i).kind == kind && !m_order.at(i).window->isHidden()) {
            return i;
        }
    }
    return -1;
}

void WindowStack::setGeometryOf(const Entry &entry)
{
    if (!m_area || entry.window->parentWidget() != m_area) {
        return;
    }
    const QRect area = m_area->rect();
    if (entry.kind == MainWindow) {
        entry.window->setGeometry(area);
    } else if (entry.kind == OverlayDialog) {
        entry.window->setGeometry(overlayGeometry(area, entry.window->sizeHint()));
    } else {
        entry.window->setGeometry(choiceGeometry(area, entry.window));
    }
}

void WindowStack::setParentQuietly(QWidget *window, QWidget *parent)
{
    const QWidget *before = m_quiet;
    m_quiet = window;
    if (!window->isHidden()) {
        window->setVisible(false);
    }
    window->setParent(parent, parent ? Qt::Widget : Qt::Window);
    m_quiet = before;
}

// Puts what is on the area into its order: windows, overlays, choices; the scrim lies right under the topmost
// choice, so that nothing else takes a touch.
void WindowStack::restack()
{
    if (!m_area) {
        return;
    }
    const int choice = topmost(ModalDialog);
    const Kind kinds[] = {MainWindow, OverlayDialog, ModalDialog};
    QObjectList wanted;
    for (int k = 0; k < 3; ++k) {
        for (int i = 0; i < m_order.size(); ++i) {
            if (m_order.at(i).kind == kinds[k] && m_order.at(i).window->parentWidget() == m_area) {
                wanted.append(m_order.at(i).window);
            }
        }
    }
    // A window that is raised is painted again, also where it lies already.
    QObjectList present = m_area->children();
    present.removeAll(m_scrim);
    if (!std::equal(wanted.constBegin(), wanted.constEnd(), present.constEnd() - wanted.size())) {
        for (int i = 0; i < wanted.size(); ++i) {
            static_cast<QWidget *>(wanted.at(i))->raise();
        }
    }
    if (choice < 0 || m_order.at(choice).window->parentWidget() != m_area) {
        if (m_scrim) {
            m_scrim->hide();
        }
        return;
    }
    if (!m_scrim) {
        m_scrim = new QWidget(m_area);
        m_scrim->setObjectName(QLatin1String("orbScrim"));
        m_scrim->setAttribute(Qt::WA_StyledBackground);
        m_scrim->setAttribute(Qt::WA_NoMousePropagation);
    }
    m_scrim->setGeometry(m_area->rect());
    m_scrim->show();
    m_scrim->stackUnder(m_order.at(choice).window);
}
