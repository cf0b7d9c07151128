#include "commandline.h"

#include "command.h"

#include <cstdio>

CommandLine::CommandLine(const char *name, const char *description)
    : app(description, std::string("headunit ") + name)
{
    app.get_formatter()->column_width(34);
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

bool CommandLine::read(const QStringList &words, int *exitCode)
{
    std::vector<std::string> backwards; // the library takes them from the back
    for (int i = int(words.size()) - 1; i >= 0; --i) {
        backwards.push_back(words.at(i).toStdString());
    }
    try {
        app.parse(backwards);
    } catch (const CLI::CallForHelp &) {
        std::fputs(app.help().c_str(), stdout);
        *exitCode = Command::Fine;
        return false;
    } catch (const CLI::ParseError &problem) {
        *exitCode = refuse(QString::fromStdString(problem.what()));
        return false;
    }
    return true;
}

int CommandLine::refuse(const QString &problem) const
{
    complain(problem);
    std::fputs(app.help().c_str(), stderr);
    return Command::WrongUsage;
}

int CommandLine::complain(const QString &problem) const
{
    std::fprintf(stderr, "%s: %s\n", app.get_name().c_str(), problem.toLocal8Bit().constData());
    return Command::FoundSomething;
}
