#include "logcommand.h"

#include "boxcatalog.h"
#include "commandapplication.h"
#include "commandline.h"
#include "headunitprogram.h"
#include "loginspection.h"
#include "probestart.h"

#include "orbapplication.h"

LogCommand::LogCommand(CommandLine *line) : m_line(line)
{
    line->add("LOG", &m_log, "a log of a serial line, in any format that convert reads").required();
    line->add("--can-bus-type", &m_type, "the decoder, when the log does not say it: number or class name")
        .valueName("N|CLASS");
    line->add("--pattern", &m_pattern, "how to read a line of the log, as for replay").valueName("REGEX");
    line->add("--plugin", &m_plugin, "another build of the plug-in").valueName("PATH");
}

int LogCommand::run(const std::function<void(LogInspection *)> &prepare,
                    const std::function<int(LogInspection *)> &answer) const
{
    ReplayOptions log;
    log.log = m_log;
    log.pattern = m_pattern;
    const int type = m_type.isEmpty() ? ReplayLog::typeOf(log) : BoxCatalog::typeFromText(m_type);
    if (!m_type.isEmpty() && type == 0) {
        m_line->complain(QString("there is no CAN-bus type '%1'").arg(m_type));
        return CommandLine::WrongUsage;
    }
    if (type == 0) {
        m_line->complain("the log does not say which type it came from: --can-bus-type is needed");
        return CommandLine::WrongUsage;
    }
    QString error;
    const std::unique_ptr<OrbApplication> application = CommandApplication::makeUnit(&error);
    if (!application) {
        return m_line->complain(error);
    }
    QApplication::setQuitOnLastWindowClosed(false);
    const QString plugin = HeadUnitProgram::pluginPath(m_plugin);
    const auto steps = m_readsScreens ? ProbeStart::screenSteps(plugin, type) : QVector<ScreenPath::Step>();
    LogInspection inspection(qMax(type, 0), log);
    if (m_readsScreens) {
        inspection.readScreens(steps);
    }
    prepare(&inspection);
    if (!inspection.run(plugin, &error)) {
        return m_line->complain(error);
    }
    const int exitCode = answer(&inspection);
    const QStringList problems = inspection.problems();
    for (const QString &problem : problems) {
        m_line->complain("in the log: " + problem);
    }
    return problems.isEmpty() ? exitCode : CommandLine::FoundSomething;
}
