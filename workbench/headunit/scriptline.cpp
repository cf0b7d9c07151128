#include "scriptline.h"

bool ScriptLine::split(const QString &line, QStringList *words)
{
    words->clear();
    bool isQuoted = false;
    bool isInWord = false;
    for (int i = 0; i < line.size(); ++i) {
        QChar c = line.at(i);
        if (!isQuoted && c.isSpace()) {
            isInWord = false;
            continue;
        }
        if (!isInWord) {
            words->append(QString(""));
            isInWord = true;
        }
        if (c == '"') {
            isQuoted = !isQuoted;
            continue;
        }
        const bool isEscape = isQuoted && c == '\\' && i + 1 < line.size();
        if (isEscape && (line.at(i + 1) == '"' || line.at(i + 1) == '\\')) {
            c = line.at(++i);
        }
        words->last().append(c);
    }
    return !isQuoted;
}
