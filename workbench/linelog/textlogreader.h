#ifndef TEXTLOGREADER_H
#define TEXTLOGREADER_H

#include "linelogreader.h"
#include "linesource.h"

/// Reads a log of which each line stands for itself.
class TextLogReader : public LineLogReader
{
public:
    /// Takes \a device, which is open for reading, as its own.
    explicit TextLogReader(std::unique_ptr<QIODevice> device)
        : LineLogReader(std::move(device)), m_source(this->device())
    {}

protected:
    enum Outcome {
        Record,  ///< the line held one
        Comment, ///< it is not meant to hold one
        Unread   ///< it should, and does not
    };

    /// Reads \a line, which has no end; \a record is fresh. Another format's reader implements this.
    virtual Outcome take(const QByteArray &line, LineRecord *record) = 0;

    bool read(LineRecord *record) final;
    qint64 line() const final { return m_source.line(); }
    qint64 waiting() const final { return m_source.waiting(); }

private:
    LineSource m_source;
};

#endif // TEXTLOGREADER_H
