#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QStringList>

#include <CLI/CLI.hpp>

/// The options of one sub-command, read as the program's own are:
///
///     CommandLine line("convert", "Turns one log into another.");
///     line.app.add_option("IN", in)->required();
///     int exitCode = 0;
///     if (!line.read(words, &exitCode)) {
///         return exitCode;
///     }
class CommandLine
{
public:
    /// \a name: of the sub-command; \a description: what its help begins with.
    CommandLine(const char *name, const char *description);

    /// Reads \a words. False when there is nothing to carry out: help was asked for and is written (\a
    /// exitCode 0), or the words are wrong, and the reason and the usage are (2).
    bool read(const QStringList &words, int *exitCode);

    /// The words are wrong for a reason that the library does not know: says so, with the usage. Gives
    /// Command::WrongUsage.
    int refuse(const QString &problem) const;
    /// "headunit NAME: PROBLEM" on standard error; gives Command::FoundSomething.
    int complain(const QString &problem) const;

    CLI::App app;
};

#endif // COMMANDLINE_H
