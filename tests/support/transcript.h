#ifndef TRANSCRIPT_H
#define TRANSCRIPT_H

#include "golden.h"

#include <QRegularExpression>

#include <functional>

namespace TestSupport {

/// Plays the text \a file: each line "> ORDER" is given to \a act, and the lines that it returns are what
/// must stand below it. "== TITLE" begins a new case and is given to \a act as well; lines with "#" and empty
/// ones are for the reader. Returns the whole text as it should be, for COMPARE_WITH_GOLDEN. A new case is
/// written as orders alone; ORB_REWRITE_GOLDEN=1 then fills in what came of them.
inline QStringList play(const QString &file, const std::function<QStringList(const QString &)> &act)
{
    QStringList lines;
    for (const QString &line : QString::fromUtf8(contentOf(file)).trimmed().split('\n')) {
        if (line.startsWith("> ")) {
            lines << line << act(line.mid(2));
        } else if (line.startsWith("== ")) {
            lines << line << act(line);
        } else if (line.isEmpty() || line.startsWith('#')) {
            lines << line;
        }
    }
    return lines;
}

/// A recorded call for a reader: "key 1000072 press, last 1" with the key's number in hexadecimal, and the
/// climate display's calls without their class. Others stay as they are.
inline QString readable(QString call)
{
    static const QRegularExpression key("^OrbApplication\\.simulateKey\\((\\d+),(\\w+),(\\w+),(\\d)\\)$");
    const QRegularExpressionMatch match = key.match(call);
    if (!match.hasMatch()) {
        return call.remove("AirConditionDlg.");
    }
    const QString phase = match.captured(2) == "false" ? "release" : "press";
    return QString("key %1 %2, last %3")
        .arg(match.captured(1).toInt(), 0, 16)
        .arg(match.captured(3) == "true" ? "held" : phase, match.captured(4));
}

} // namespace TestSupport

/// Fails unless playing the text \a name in the folder of the test gives that text.
#define COMPARE_WITH_TRANSCRIPT(name, act)                                                                   \
    COMPARE_WITH_GOLDEN(name, TestSupport::play(QString(GOLDEN_FOLDER "/" name), act))

#endif // TRANSCRIPT_H
