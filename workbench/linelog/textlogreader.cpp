#include "textlogreader.h"

bool TextLogReader::read(LineRecord *record)
{
    QByteArray line;
    for (;;) {
        switch (m_source.next(&line)) {
        case LineSource::End:
            m_error = m_source.error();
            return false;
        case LineSource::TooLong:
            skip("lines of more than 64 KiB");
            continue;
        case LineSource::Line:
            break;
        }
        LineRecord found;
        switch (take(line, &found)) {
        case Record:
            *record = found;
            return true;
        case Unread:
            skip(m_source.isWhole() ? "lines that hold no record" : "last line, cut in the middle");
            break;
        case Comment:
            break;
        }
    }
}
