#include "linelogreader.h"

namespace {

const int LongestText = 4096; // characters of a state

// What a state says stands in one line of a log, of a table, of a terminal.
void flatten(QString *text)
{
    for (QChar &character : *text) {
        if (character.category() == QChar::Other_Control) {
            character = ' ';
        }
    }
    text->truncate(LongestText);
    if (!text->isEmpty() && text->at(text->size() - 1).isHighSurrogate()) {
        text->chop(1);
    }
    *text = text->simplified();
}

} // namespace

void LineLogReader::prepare()
{
    m_hasFirst = next(&m_first);
}

bool LineLogReader::next(LineRecord *record)
{
    if (m_hasFirst) {
        m_hasFirst = false;
        *record = m_first;
        return true;
    }
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
