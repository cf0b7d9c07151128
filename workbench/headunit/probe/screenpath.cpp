#include "screenpath.h"

#include "headunit.h"

#include "orbhost.h"
#include "orbmainwindow.h"

#include <QDialog>
#include <QEventLoop>
#include <QTimer>

namespace {

const int StepMs = 20; // until what a step opens is there

} // namespace

QVector<ScreenPath::Step> ScreenPath::launcher()
{
    QVector<Step> steps;
    for (const unsigned int app : OrbHost::instance()->titledApps()) {
        steps << Step{app, {}, -1, -1};
    }
    for (const OrbMainWindow *window : HeadUnit::launcherWindows()) {
        steps << Step{0, window->windowTitle(), -1, -1};
    }
    return steps;
}

QVector<QWidget *> ScreenPath::openWindows()
{
    QVector<QWidget *> open;
    for (QWidget *window : OrbHost::instance()->windows()) {
        if (!window->isHidden() && !qobject_cast<QDialog *>(window)) {
            open << window;
        }
    }
    return open;
}

void ScreenPath::take(const Step &step, HeadUnit *unit) const
{
    if (step.app != 0) {
        unit->showApp(step.app);
    } else if (step.place < 0) {
        for (OrbMainWindow *window : HeadUnit::launcherWindows()) {
            if (window->windowTitle() == step.window) {
                window->setVisible(true);
            }
        }
    } else if (step.place < m_screens.size() && step.target < m_screens.at(step.place).targets.size()) {
        m_screens.at(step.place).targets.at(step.target).tap();
    }
}

int ScreenPath::addNew()
{
    const int before = int(m_screens.size());
    for (QWidget *window : openWindows()) {
        bool isKnown = false;
        for (const Screen &screen : std::as_const(m_screens)) {
            isKnown = isKnown || screen.window == window;
        }
        if (!isKnown) {
            m_screens << Screen{window, ScreenTap::targets(window)};
        }
    }
    return int(m_screens.size()) - before;
}

void ScreenPath::follow(const QVector<Step> &steps, HeadUnit *unit)
{
    for (const Step &step : steps) {
        QEventLoop loop;
        QTimer::singleShot(StepMs, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        take(step, unit);
        loop.exec();
        addNew();
    }
}

QDataStream &operator<<(QDataStream &stream, const ScreenPath::Step &step)
{
    return stream << step.app << step.window << step.place << step.target;
}

QDataStream &operator>>(QDataStream &stream, ScreenPath::Step &step)
{
    return stream >> step.app >> step.window >> step.place >> step.target;
}
