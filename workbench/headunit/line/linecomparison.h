#ifndef LINECOMPARISON_H
#define LINECOMPARISON_H

#include "frameformat.h"

#include <QMap>
#include <QSet>
#include <QStringList>
#include <QVector>

/// What one box and its unit said to each other, command by command.
struct LineTraffic
{
    enum Direction { ToUnit, ToBox };

    struct Package
    {
        QByteArray data;
        qint64 microseconds;
    };

    QMap<quint8, QVector<Package>> packages[2]; ///< by command, of either direction
    bool hasTimes = true;
    bool isWhole = false; ///< all that the box can say and understands, not what it once said

    /// Counts a package that came; \a microseconds are no less than those of the one before.
    void add(Direction direction, const BoxPackage &package, qint64 microseconds);
};

/// How two boxes differ, a line each.
namespace LineComparison {

struct Difference
{
    QString
        kind; ///< "missing" in the second, "extra" in it, "length", "bits", "rhythm", "calls" (see CallComparison)
    QString direction; ///< "box>unit" or "unit>box"
    int command;
    QString text; ///< "d[2].5 is 0 in the first, 1 in the second"

    QString line() const;
};

/// Commands that only one has, other lengths of data, other bits, and a rhythm that is clearly another. Of as many
/// packages of a command on both sides each is compared with its own; else which bits are ever set and ever clear.
/// Of a log and a whole box only what the log has and the box has not is a difference.
QVector<Difference> differences(const LineTraffic &first, const LineTraffic &second);

} // namespace LineComparison

#endif // LINECOMPARISON_H
