#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QStringList>

#include <functional>
#include <memory>

namespace CLI {
class App;
class Option;
} // namespace CLI

/// What the program, or one of its sub-commands, takes on the command line:
///
///     QString in;
///     CommandLine line("convert", "Turns one log into another.");
///     line.add("IN", &in, "the log").required();
///     int exitCode = 0;
///     if (!line.read(words, &exitCode)) {
///         return exitCode;
///     }
///
/// What is given more than once counts the last time. The library that reads the words is this class's own affair: to
/// compile it takes longer than any source of the bench.
class CommandLine
{
public:
    /// Why \a value is none; empty when it is one.
    using Complaint = std::function<QString(const QString &value)>;

    /// One option; a name without dashes is a place on the line. Belongs to its line.
    class Option
    {
    public:
        /// What the help calls the value.
        Option &valueName(const char *name);
        Option &required();
        /// The value may be missing: then it is empty.
        Option &mayLackValue();
        /// The limits count as inside.
        Option &range(int least, int most);
        Option &range(double least, double most);
        Option &check(const Complaint &complaint);
        /// What stands between values in one word.
        Option &separator(char sign);
        Option &needs(const Option &other);
        Option &excludes(const Option &other);
        /// The help does not tell of it.
        Option &hidden();

    private:
        friend class CommandLine;
        explicit Option(CLI::Option *option) : m_option(option) {}

        CLI::Option *m_option;
    };

    /// What all sub-commands end with.
    enum ExitCode {
        Fine = 0,
        FoundSomething = 1, ///< what was looked for is not in order, or the command could not do its work
        WrongUsage = 2
    };
    enum Outcome { Taken, HelpWanted, VersionWanted, Wrong };

    /// \a name: of the sub-command, null for the program's own line; \a description: what the help begins with.
    CommandLine(const char *name, const char *description);
    ~CommandLine();

    /// \a value keeps what it is while the option is not given, and must outlive the line.
    Option add(const char *name, QString *value, const char *help);
    Option add(const char *name, int *value, const char *help);
    Option add(const char *name, quint32 *value, const char *help);
    Option add(const char *name, double *value, const char *help);
    Option addFlag(const char *name, bool *value, const char *help);
    /// All values, of an option that may be repeated.
    Option addList(const char *name, QStringList *values, const char *help);
    /// --version is answered with \a version.
    void setVersion(const QString &version);

    /// Reads \a words. \a problem is set when they are wrong.
    Outcome parse(const QStringList &words, QString *problem);
    /// The same for a sub-command. False when there is nothing to carry out: help was asked for and is written (\a
    /// exitCode 0), or the words are wrong, and the reason and the usage are (2).
    bool read(const QStringList &words, int *exitCode);
    /// Whether the words that were read have the option \a name.
    bool isGiven(const char *name) const;
    QString help() const;

    /// The words are wrong for a reason that the library does not know: says so, with the usage. Gives WrongUsage.
    int refuse(const QString &problem) const;
    /// "headunit NAME: PROBLEM" on standard error; gives FoundSomething.
    int complain(const QString &problem) const;

private:
    std::unique_ptr<CLI::App> m_app;
};

#endif // COMMANDLINE_H
