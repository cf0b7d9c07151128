#ifndef SCENARIO_H
#define SCENARIO_H

#include "boxcommand.h"

#include <QVector>

/// A drive to replay: a text file with one order per line, `TIME ORDER`, where TIME counts in seconds from
/// the start of the play and never goes back, and ORDER is what BoxCommand reads. `#` begins a comment,
/// except inside a value. `TIME sweep WHAT` stands for many orders, see Sweep, which begin at TIME.
///
///     # out of the car park
///     1.0  doors.front_left on
///     2.5  climate.left 21.5
///     3    key volume_up tap
struct Scenario
{
    struct Step
    {
        int ms; ///< since the start of the play
        BoxCommand command;
    };

    QVector<Step> steps; ///< in order of time

    /// Reads the file \a path for \a box. False, with "FILE: why" or "FILE:LINE: why" in \a error, when it
    /// cannot be read or one line is wrong; the scenario is then empty.
    bool load(const QString &path, const DecoderBox &box, QString *error);

private:
    bool readStep(const QString &line, const DecoderBox &box, QString *error);
    bool readSweep(int ms, const QString &what, const DecoderBox &box, QString *error);
    bool readOrder(int ms, const QString &order, const DecoderBox &box, QString *error);
};

#endif // SCENARIO_H
