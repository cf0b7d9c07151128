#include "replaylog.h"

#include "boxcatalog.h"

namespace {

const int MostPassedOver = 4096; // records, before others have their turn

bool isLineChange(const LineRecord &record)
{
    return record.kind == LineRecord::State &&
           (record.text.startsWith("lost") || record.text.startsWith("back"));
}

} // namespace

ReplayLog::ReplayLog(const ReplayOptions &options, const FrameFormat *format) : m_options(options)
{
    m_readOptions.pattern = options.pattern;
    if (format) {
        m_readOptions.frame = format;
    }
}

int ReplayLog::typeOf(const ReplayOptions &options)
{
    QString error;
    LineLogFormats::ReadOptions readOptions;
    readOptions.pattern = options.pattern;
    const std::unique_ptr<LineLogReader> reader = LineLogFormats::reader(options.log, readOptions, &error);
    if (!reader) {
        return -1;
    }
    reader->prepare();
    return BoxCatalog::typeFromText(reader->header().type.section(' ', 0, 0));
}

bool ReplayLog::open(QString *error)
{
    m_reader = LineLogFormats::reader(m_options.log, m_readOptions, error);
    return m_reader != nullptr;
}

ReplayLog::Result ReplayLog::next(LineRecord *record)
{
    if (!m_reader) {
        return End;
    }
    LineRecord read;
    for (int i = 0; i < MostPassedOver; ++i) {
        if (!m_reader->next(&read) || (m_options.to >= 0 && read.microseconds > m_options.to)) {
            return atEnd();
        }
        if (read.isTowardsUnit() && read.microseconds >= m_options.from) {
            *record = read;
            m_hasChunks = true;
            return Chunk;
        }
        if (isLineChange(read) && read.microseconds >= m_options.from && !m_options.isFast) {
            *record = read;
            return LineChange;
        }
    }
    return Later;
}

double ReplayLog::progress() const
{
    const qint64 size = m_reader ? m_reader->size() : 0;
    return size > 0 ? double(m_reader->position()) / double(size) : m_reader ? 0 : 1;
}

// A log without a chunk would begin anew for ever.
ReplayLog::Result ReplayLog::atEnd()
{
    if (m_isFirstTime) {
        m_unread = m_reader->skipped();
        m_error = m_reader->error();
    }
    m_isFirstTime = false;
    QString error;
    const bool goesOn = m_options.loops && m_hasChunks && m_error.isEmpty();
    if (goesOn && open(&error)) {
        return StartOver;
    }
    m_error = goesOn ? error : m_error;
    m_reader.reset();
    return End;
}
