#include "linestatus.h"

QString LineStatus::text() const
{
    switch (state) {
    case NotWatched:
        return tr("the serial library in use tells nothing");
    case NotOpened:
        return tr("the unit has opened no line");
    case NoDevice:
        return tr("no such device");
    case NoPermission:
        return who.isEmpty() ? tr("no permission") : tr("no permission: join the group %1").arg(who);
    case InUse:
        return who.isEmpty() ? tr("in use by another process") : tr("in use by %1").arg(who);
    case NoTerminal:
        return tr("no serial device");
    case CannotOpen:
        return tr("cannot be opened: %1").arg(who);
    case Lost:
        return tr("line lost: was the adapter pulled out?");
    case OtherRate:
        return tr("bytes but no packages: other baud rate?");
    case Waiting:
        return tr("waiting for the box's first word");
    case Talking:
        return tr("talking");
    case Silent:
        return tr("silent for %1 s").arg(packageAge / 1000);
    case Slow:
        return tr("unit too slow: box repeats");
    case BoxStopped:
        return tr("box stopped");
    case BoxHushed:
        return tr("box silent by order");
    }
    return QString();
}

const char *LineStatus::name() const
{
    static const char *const names[] = {"not-watched", "not-opened",  "no-device",   "no-permission",
                                        "in-use",      "no-terminal", "cannot-open", "lost",
                                        "other-rate",  "waiting",     "talking",     "silent",
                                        "slow",        "box-stopped", "box-hushed"};
    return names[state];
}
