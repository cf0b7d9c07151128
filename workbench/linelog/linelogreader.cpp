#include "linelogreader.h"

namespace {

const int LongestText = 4096; // characters of a state

// What a state says stands in one line of a log, of a table, of a terminal.
void flatten(QString *text)
{
    text->truncate(LongestText);
    for (QChar &character : *text) {
        if (character.category() == QChar::Other_Control) {
            character = ' ';
        }
    }
    *text = text->trimmed();
}

} // namespace

bool LineLogReader::next(LineRecord *record)
{
    LineRecord found;
    if (!read(&found)) {
        return false;
    }
    if (found.kind == LineRecord::State) {
        flatten(&found.text);
    }
    if (found.microseconds < m_last) {
        skip("times that run backwards, set to the one before");
        found.microseconds = m_last;
    }
    m_last = found.microseconds;
    *record = found;
    return true;
}
