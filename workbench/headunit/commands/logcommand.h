#ifndef LOGCOMMAND_H
#define LOGCOMMAND_H

#include "commandline.h"

#include <functional>

class LogInspection;

/// What sub-commands have in common that run the plug-in on a log and tell what came of it, without a window and on the
/// virtual clock.
class LogCommand
{
public:
    /// Adds LOG and the options that say how it is run to \a line, which must outlive it.
    explicit LogCommand(CommandLine *line);

    /// From run() on, the unit's screens are open, and rows say what packages change on them.
    void readScreens() { m_readsScreens = true; }
    /// Runs the plug-in on the log: \a prepare is called before, \a answer, which gives the exit code, when it is over.
    int run(const std::function<void(LogInspection *)> &prepare,
            const std::function<int(LogInspection *)> &answer) const;

private:
    CommandLine *m_line;
    QString m_log;
    QString m_pattern;
    QString m_type;
    QString m_plugin;
    bool m_readsScreens = false;
};

#endif // LOGCOMMAND_H
