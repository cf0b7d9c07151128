#include "scenario.h"

#include <QFile>

#include <cmath>

namespace {
const double longestSeconds = 24 * 3600;
}

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
    if (!ok || !std::isfinite(seconds) || seconds < 0 || seconds > longestSeconds) {
        *error = QString("'%1' is no time in seconds").arg(time);
        return false;
    }
    if (order.isEmpty()) {
        *error = "nothing to do at this time";
        return false;
    }
    Step step = {int(std::lround(seconds * 1000)), BoxCommand()};
    if (!steps.isEmpty() && step.ms < steps.last().ms) {
        *error = "time goes back";
        return false;
    }
    if (!steps.isEmpty() && steps.last().command.isLast()) {
        *error = "an order after the end";
        return false;
    }
    if (!step.command.parse(order, box, error)) {
        return false;
    }
    if (step.ms == 0 && step.command.isAgain()) {
        *error = "a drive that starts over takes some time";
        return false;
    }
    steps << step;
    return true;
}
