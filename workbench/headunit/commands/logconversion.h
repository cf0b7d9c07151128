#ifndef LOGCONVERSION_H
#define LOGCONVERSION_H

#include "linelogformats.h"
#include "packagevalues.h"

#include <QJsonObject>

/// One log of a serial line becomes another, record by record.
class LogConversion
{
public:
    struct Options
    {
        QString in;
        QString out;
        QString pattern;                    ///< of a line of the log; see LineLogFormats::ReadOptions
        int type = 0;                       ///< CAN-bus type; 0: as the log says
        const FrameFormat *frame = nullptr; ///< null: the type's, or what the log looks like
    };
    enum Result {
        Fine,
        FoundSomething, ///< not all of it was read or could be written, or none
        WrongUsage      ///< the options do not go together
    };

    /// Carries it out. The file OUT is replaced only by a whole one.
    Result run(const Options &options);

    /// Why there is no log, or why it is not whole; empty while all is well.
    QString error() const { return m_error; }

    /// What came of it, for people and for scripts.
    QStringList texts() const;
    QJsonObject json() const;

private:
    void lookAhead();
    bool write(LineLogFormats::Format format);

    std::unique_ptr<LineLogReader> m_reader;
    std::unique_ptr<PackageValues> m_values;
    std::unique_ptr<LineLogWriter> m_writer;
    const FrameFormat *m_frame = nullptr;
    QVector<LineRecord> m_beginning; // read to tell the frame
    int m_type = 0;
    qint64 m_records = 0;
    QString m_error;
    Options m_options;
};

#endif // LOGCONVERSION_H
