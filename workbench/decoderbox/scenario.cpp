#include "scenario.h"

#include "sweep.h"

#include <QFile>

#include <cmath>

namespace {
const double LongestSeconds = 24 * 3600;
const int SweepInterval = 250; // ms
} // namespace

bool Scenario::load(const QString &path, const DecoderBox &box, QString *error)
{
    steps.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = QString("%1: %2").arg(path, file.errorString());
        return false;
    }
    for (int number = 1; !file.atEnd(); ++number) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        QString reason;
        if (!readStep(line.section(" #", 0, 0), box, &reason)) {
            *error = QString("%1:%2: %3").arg(path).arg(number).arg(reason);
            steps.clear();
            return false;
        }
    }
    return true;
}

bool Scenario::readStep(const QString &line, const DecoderBox &box, QString *error)
{
    const QString time = line.simplified().section(' ', 0, 0);
    const QString order = line.mid(line.indexOf(time) + time.size()).trimmed();
    bool ok = false;
    const double seconds = time.toDouble(&ok);
    if (!ok || !std::isfinite(seconds) || seconds < 0 || seconds > LongestSeconds) {
        *error = QString("'%1' is no time in seconds").arg(time);
        return false;
    }
    if (order.isEmpty()) {
        *error = "nothing to do at this time";
        return false;
    }
    const int ms = int(std::lround(seconds * 1000));
    if (!steps.isEmpty() && ms < steps.last().ms) {
        *error = QString("time goes back, before %1").arg(steps.last().ms / 1000.0);
        return false;
    }
    if (!steps.isEmpty() && steps.last().command.isLast()) {
        *error = "an order after the end";
        return false;
    }
    return order.startsWith("sweep ") ? readSweep(ms, order.section(' ', 1).trimmed(), box, error)
                                      : readOrder(ms, order, box, error);
}

bool Scenario::readSweep(int ms, const QString &what, const DecoderBox &box, QString *error)
{
    const QStringList orders = Sweep::orders(box, what);
    for (const QString &order : orders) {
        if (!readOrder(ms, order, box, error)) {
            return false;
        }
        ms += SweepInterval;
    }
    if (orders.isEmpty()) {
        *error = QString("this box tells nothing of '%1'").arg(what);
    }
    return !orders.isEmpty();
}

bool Scenario::readOrder(int ms, const QString &order, const DecoderBox &box, QString *error)
{
    Step step = {ms, BoxCommand()};
    if (!step.command.parse(order, box, error)) {
        return false;
    }
    if (ms == 0 && step.command.isAgain()) {
        *error = "a drive that starts over takes some time";
        return false;
    }
    steps << step;
    return true;
}
