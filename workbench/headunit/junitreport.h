#ifndef JUNITREPORT_H
#define JUNITREPORT_H

#include <QSaveFile>
#include <QString>
#include <QVector>

/// What became of a script's lines, as a JUnit file: one test case a line.
class JUnitReport
{
public:
    enum Outcome {
        Passed,
        Failed, ///< an expectation that was not met
        Broken  ///< a line that could not be carried out
    };

    /// Makes the file \a path beside its place; false, with one sentence in \a error, when it cannot be made.
    bool open(const QString &path, QString *error);
    bool isOpen() const { return m_file.isOpen(); }

    /// \a line counts from 1; \a message says what is wrong, empty when nothing is.
    void add(int line, const QString &command, double seconds, Outcome outcome, const QString &message);

    /// Writes the file for the suite \a name and puts it in its place. False when the disk does not take it.
    bool write(const QString &name);

private:
    struct Case
    {
        QString name;
        double seconds;
        Outcome outcome;
        QString message;
    };

    int count(Outcome outcome) const;

    QSaveFile m_file;
    QVector<Case> m_cases;
};

#endif // JUNITREPORT_H
