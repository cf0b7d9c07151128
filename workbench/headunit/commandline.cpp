#include "commandline.h"

#include <CLI/CLI.hpp>

#include <cstdio>

CommandLine::Option &CommandLine::Option::valueName(const char *name)
{
    m_option->type_name(name);
    return *this;
}

CommandLine::Option &CommandLine::Option::required()
{
    m_option->required();
    return *this;
}

CommandLine::Option &CommandLine::Option::mayLackValue()
{
    m_option->expected(0, 1);
    return *this;
}

CommandLine::Option &CommandLine::Option::range(int least, int most)
{
    m_option->check(CLI::Range(least, most));
    return *this;
}

CommandLine::Option &CommandLine::Option::range(double least, double most)
{
    m_option->check(CLI::Range(least, most));
    return *this;
}

CommandLine::Option &CommandLine::Option::check(const Complaint &complaint)
{
    m_option->check([complaint](const std::string &value) {
        return complaint(QString::fromStdString(value)).toStdString();
    });
    return *this;
}

CommandLine::Option &CommandLine::Option::separator(char sign)
{
    m_option->delimiter(sign);
    return *this;
}

CommandLine::Option &CommandLine::Option::needs(const Option &other)
{
    m_option->needs(other.m_option);
    return *this;
}

CommandLine::Option &CommandLine::Option::excludes(const Option &other)
{
    m_option->excludes(other.m_option);
    return *this;
}

CommandLine::Option &CommandLine::Option::hidden()
{
    m_option->group(std::string());
    return *this;
}

CommandLine::CommandLine(const char *name, const char *description)
    : m_app(new CLI::App(description, name ? std::string("headunit ") + name : "headunit"))
{
    m_app->get_formatter()->column_width(34);
    m_app->option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

CommandLine::~CommandLine() {}

CommandLine::Option CommandLine::add(const char *name, QString *value, const char *help)
{
    const auto take = [value](const std::string &text) { *value = QString::fromStdString(text); };
    return Option(m_app->add_option_function<std::string>(name, take, help));
}

CommandLine::Option CommandLine::add(const char *name, int *value, const char *help)
{
    return Option(m_app->add_option(name, *value, help));
}

CommandLine::Option CommandLine::add(const char *name, quint32 *value, const char *help)
{
    return Option(m_app->add_option(name, *value, help));
}

CommandLine::Option CommandLine::add(const char *name, double *value, const char *help)
{
    return Option(m_app->add_option(name, *value, help));
}

CommandLine::Option CommandLine::addFlag(const char *name, bool *value, const char *help)
{
    return Option(m_app->add_flag(name, *value, help));
}

CommandLine::Option CommandLine::addList(const char *name, QStringList *values, const char *help)
{
    const auto take = [values](const std::vector<std::string> &texts) {
        values->clear();
        for (const std::string &text : texts) {
            *values << QString::fromStdString(text);
        }
    };
    return Option(m_app->add_option_function<std::vector<std::string>>(name, take, help)
                      ->take_all()
                      ->allow_extra_args(false));
}

void CommandLine::setVersion(const QString &version)
{
    m_app->set_version_flag("--version", version.toStdString(), "prints the version");
}

CommandLine::Outcome CommandLine::parse(const QStringList &words, QString *problem)
{
    std::vector<std::string> backwards; // the library takes them from the back
    for (int i = int(words.size()) - 1; i >= 0; --i) {
        backwards.push_back(words.at(i).toStdString());
    }
    try {
        m_app->parse(backwards);
    } catch (const CLI::CallForHelp &) {
        return HelpWanted;
    } catch (const CLI::CallForVersion &) {
        return VersionWanted;
    } catch (const CLI::ParseError &error) {
        *problem = QString::fromStdString(error.what());
        return Wrong;
    }
    return Taken;
}

bool CommandLine::read(const QStringList &words, int *exitCode)
{
    QString problem;
    switch (parse(words, &problem)) {
    case Wrong:
        *exitCode = refuse(problem);
        return false;
    case HelpWanted:
    case VersionWanted: // nobody but the program has one
        std::fputs(qPrintable(help()), stdout);
        *exitCode = Fine;
        return false;
    case Taken:
        break;
    }
    return true;
}

bool CommandLine::isGiven(const char *name) const
{
    return m_app->count(name) > 0;
}

QString CommandLine::help() const
{
    return QString::fromStdString(m_app->help());
}

int CommandLine::refuse(const QString &problem) const
{
    complain(problem);
    std::fputs(qPrintable(help()), stderr);
    return WrongUsage;
}

int CommandLine::complain(const QString &problem) const
{
    std::fprintf(stderr, "%s: %s\n", m_app->get_name().c_str(), problem.toLocal8Bit().constData());
    return FoundSomething;
}
