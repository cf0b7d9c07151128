#ifndef COMMAND_H
#define COMMAND_H

#include <QStringList>
#include <QVector>

/// A sub-command of the program: `headunit NAME ...`. The first word of the command line names it, so that
/// `headunit` without one takes its options as ever. Each has a file pair of its own in this folder, a row in
/// all(), and keeps to the exit codes of CommandLine.
struct Command
{
    const char *name;
    const char *summary; ///< one line for the program's help
    /// Carries it out: \a words are what stands behind NAME. There is no application object yet. Answers the
    /// program's exit code.
    int (*run)(const QStringList &words);

    static const QVector<Command> &all();
    /// Null when none has the name.
    static const Command *find(const QString &name);
};

#endif // COMMAND_H
