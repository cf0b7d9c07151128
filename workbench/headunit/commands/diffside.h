#ifndef DIFFSIDE_H
#define DIFFSIDE_H

#include "linecomparison.h"
#include "linerecord.h"

#include <QString>
#include <QVector>

/// One of the two boxes that `headunit diff` compares: a log of it, or the virtual box of a type.
struct DiffSide
{
    QString name; ///< as it was given: a file, or what BoxCatalog::typeFromText() understands
    int type = 0; ///< 0 for a log that does not say
    QVector<LineRecord> records;
    LineTraffic traffic;

    /// Reads the log, or has the virtual box say all that it can. Needs an application object. False, with one sentence
    /// in \a error, when there is neither.
    bool read(QString *error);
    /// Makes traffic of a log's records, whose packages look like \a format says.
    void takeRecords(const FrameFormat &format);
};

#endif // DIFFSIDE_H
