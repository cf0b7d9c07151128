#include "windowstack.h"

#include "orbhost_p.h"

WindowStack *WindowStack::instance()
{
    return OrbHostPrivate::get()->windowStack;
}

WindowStack::WindowStack(QObject *parent) : QObject(parent) {}

void WindowStack::add(QWidget *window, Kind kind, unsigned int appId)
{
    if (!window || m_all.contains(window))
        return;
    const Entry entry = {window, kind, appId};
    m_all.append(window);
    m_order.append(entry);
}

void WindowStack::remove(QWidget *window)
{
    const int index = indexInOrder(window);
    if (index < 0)
        return;
    m_order.removeAt(index);
    m_all.removeAll(window);
    Q_EMIT changed();
}

void WindowStack::shown(QWidget *window)
{
    raise(window);
}

void WindowStack::hidden(QWidget *window)
{
    if (indexInOrder(window) >= 0)
        Q_EMIT changed();
}

void WindowStack::raise(QWidget *window)
{
    const int index = indexInOrder(window);
    if (index < 0)
        return;
    m_order.append(m_order.takeAt(index));
    window->raise();
    Q_EMIT changed();
}

void WindowStack::areaChanged() {}

QList<QWidget *> WindowStack::all() const
{
    return m_all;
}

QWidget *WindowStack::front(bool ignoreOverlays) const
{
    for (int i = m_order.size() - 1; i >= 0; --i) {
        const Entry &entry = m_order.at(i);
        if (entry.window->isVisible() && !(ignoreOverlays && entry.kind == OverlayDialog))
            return entry.window;
    }
    return nullptr;
}

unsigned int WindowStack::frontAppId() const
{
    for (int i = m_order.size() - 1; i >= 0; --i) {
        const Entry &entry = m_order.at(i);
        if (entry.kind == MainWindow && entry.window->isVisible())
            return entry.appId;
    }
    return 0;
}

int WindowStack::indexInOrder(QWidget *window) const
{
    for (int i = 0; i < m_order.size(); ++i) {
        if (m_order.at(i).window == window)
            return i;
    }
    return -1;
}
