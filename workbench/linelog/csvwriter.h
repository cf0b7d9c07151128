#ifndef CSVWRITER_H
#define CSVWRITER_H

#include "linelogwriter.h"
#include "linepackages.h"
#include "linevaluesource.h"

/// Writes what the packages mean as a table of named values: a row for each value of each package, and one without a
/// value for a package that has none. Columns: seconds, direction ("box" or "unit", who speaks), command, meaning, name,
/// value.
class CsvWriter : public LineLogWriter
{
public:
    /// The records hold packages of \a format; \a values is not owned and outlives the writer.
    CsvWriter(std::unique_ptr<QIODevice> device, const FrameFormat &format, LineValueSource *values)
        : LineLogWriter(std::move(device)), m_packages(format), m_values(values)
    {}

protected:
    void putHeader(const LineLogHeader &header) override;
    void putRecord(const LineRecord &record) override;
    void putEnd() override;

private:
    void putPieces();
    void putPackage(const LineRecord &record);

    LinePackages m_packages;
    LineValueSource *m_values;
};

#endif // CSVWRITER_H
