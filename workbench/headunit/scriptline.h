#ifndef SCRIPTLINE_H
#define SCRIPTLINE_H

#include <QStringList>

/// One line of a script: words between blanks. Double quotes hold blanks in a word, or in a part of it
/// (string="two words"); inside them a backslash stands before a quote or a backslash that is meant.
namespace ScriptLine {

/// False when a quote is left open.
bool split(const QString &line, QStringList *words);

} // namespace ScriptLine

#endif // SCRIPTLINE_H
