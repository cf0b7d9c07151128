#include "linewords.h"

#include "deskcolours.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString word(const char *text)
{
    return QCoreApplication::translate("LineWords", text);
}

} // namespace

QColor LineWords::colour(const LineStatus &status)
{
    switch (status.state) {
    case LineStatus::Talking:
        return DeskColours::Good;
    case LineStatus::Waiting:
    case LineStatus::Silent:
    case LineStatus::Slow:
    case LineStatus::BoxStopped:
    case LineStatus::BoxHushed:
        return DeskColours::Warning;
    case LineStatus::NotWatched:
    case LineStatus::NotOpened:
        return DeskColours::Dim;
    default:
        return DeskColours::Error;
    }
}

QString LineWords::counts(const LineStatus &status)
{
    QStringList parts;
    if (status.packages != 0) {
        parts << word(QT_TRANSLATE_NOOP("LineWords", "%1 packages/s")).arg(status.packagesPerSecond);
    }
    if (status.badChecksums != 0) {
        parts << word(QT_TRANSLATE_NOOP("LineWords", "%1 bad")).arg(status.badChecksums);
    }
    if (status.skippedBytes != 0) {
        parts << word(QT_TRANSLATE_NOOP("LineWords", "%1 bytes skipped")).arg(status.skippedBytes);
    }
    if (status.repetitions != 0) {
        parts << word(QT_TRANSLATE_NOOP("LineWords", "%1 repeated")).arg(status.repetitions);
    }
    if (status.acknowledgement >= 0) {
        parts << word(QT_TRANSLATE_NOOP("LineWords", "answered in %1")).arg(acknowledgement(status));
    }
    return parts.join(QStringLiteral(" · "));
}

QString LineWords::age(const LineStatus &status)
{
    return status.packageAge < 0 ? word(QT_TRANSLATE_NOOP("LineWords", "never"))
                                 : word(QT_TRANSLATE_NOOP("LineWords", "%1 s ago"))
                                       .arg(double(status.packageAge) / 1000, 0, 'f', 1);
}

QString LineWords::acknowledgement(const LineStatus &status)
{
    return status.acknowledgement < 0
               ? word(QT_TRANSLATE_NOOP("LineWords", "none yet"))
               : QStringLiteral("%1 ms").arg(double(status.acknowledgement) / 1000, 0, 'f', 1);
}
