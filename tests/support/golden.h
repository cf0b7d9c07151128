#ifndef GOLDEN_H
#define GOLDEN_H

#include "testfiles.h"

#include <QStringList>

namespace TestSupport {

/// Compares \a lines with the text file \a path as a whole. Empty when they are the same, else the first
/// lines that differ ("-" the file's, "+" the test's). With ORB_REWRITE_GOLDEN=1 in the environment the file
/// is written anew instead; what then differs is to be read in the version control before it is committed.
inline QString goldenDifference(const QString &path, const QStringList &lines)
{
    const QByteArray actual = lines.join('\n').toUtf8() + '\n';
    if (qEnvironmentVariableIsSet("ORB_REWRITE_GOLDEN")) {
        writeFile(path, actual);
    }
    const QByteArray golden = contentOf(path);
    if (golden == actual) {
        return QString();
    }
    const QStringList expected = QString::fromUtf8(golden).split('\n');
    int first = 0;
    while (first < lines.size() && expected.value(first) == lines.at(first)) {
        ++first;
    }
    QString difference =
        QString("%1, line %2 (ORB_REWRITE_GOLDEN=1 writes it anew)\n").arg(path).arg(first + 1);
    return difference + "- " + expected.mid(first, 4).join("\n- ") + "\n+ " +
           lines.mid(first, 4).join("\n+ ");
}

} // namespace TestSupport

/// Fails unless \a lines are the text of the file \a name in the folder of the test.
#define COMPARE_WITH_GOLDEN(name, lines)                                                                     \
    do {                                                                                                     \
        const QString difference = TestSupport::goldenDifference(QString(GOLDEN_FOLDER "/" name), lines);    \
        QVERIFY2(difference.isEmpty(), qPrintable(difference));                                              \
    } while (false)

#endif // GOLDEN_H
