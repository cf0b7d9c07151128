#include "orbmainwindow.h"

#include "orbtitlebar.h"
#include "windowstack.h"

#include <QEvent>
#include <QPointer>

class OrbMainWindow::Private
{
public:
    Private(unsigned int id, QWidget *window)
        : appId(id), skinLoaded(false), visible(false), titleBar(new OrbTitleBar(window))
    {}

    const unsigned int appId;
    bool skinLoaded;
    bool visible; ///< what onVisibleChange said last
    QPointer<OrbTitleBar> titleBar;
};

OrbMainWindow::OrbMainWindow(unsigned int appId, QWidget *parent)
    : QMainWindow(parent), d(new Private(appId, this))
{
    setAttribute(Qt::WA_NoMousePropagation);
    setMenuWidget(d->titleBar);
    WindowStack::instance()->add(this, WindowStack::MainWindow, appId);
}

OrbMainWindow::~OrbMainWindow()
{
    WindowStack::instance()->remove(this);
    delete d;
}

unsigned int OrbMainWindow::appId() const
{
    return d->appId;
}

void OrbMainWindow::setVisible(bool visible)
{
    WindowStack *stack = WindowStack::instance();
    stack->traceVisibility(this, visible);
    if (visible && !d->skinLoaded) {
        d->skinLoaded = true;
        onLoadUiSkin();
    }
    if (visible) {
        stack->place(this);
    }
    QMainWindow::setVisible(visible);
    if (visible) {
        stack->shown(this);
    } else {
        stack->hidden(this);
    }
    if (visible != d->visible) {
        d->visible = visible;
        onVisibleChange(visible);
    }
}

void OrbMainWindow::back()
{
    const QPointer<OrbMainWindow> guard(this);
    onBackEvent();
    if (guard && !isHidden()) {
        setVisible(false);
    }
}

void OrbMainWindow::home()
{
    const QPointer<OrbMainWindow> guard(this);
    onHomeEvent();
    if (guard && !isHidden()) {
        setVisible(false);
    }
}

void OrbMainWindow::onLoadUiSkin() {}

void OrbMainWindow::onVisibleChange(bool) {}

void OrbMainWindow::onBackEvent() {}

void OrbMainWindow::onHomeEvent() {}

void OrbMainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange && d->titleBar) {
        d->titleBar->setTitle(windowTitle());
    }
}
