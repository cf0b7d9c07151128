#include "hostilecommand.h"

#include "boxprogram.h"
#include "command.h"
#include "commandapplication.h"
#include "commandline.h"
#include "headunitoptions.h"
#include "headunitprogram.h"
#include "quitonsignals.h"
#include "unitrun.h"

#include "orbapplication.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#include <errno.h>

namespace {

// What the words may name.
struct NamedFile
{
    const char *name;
    const char *content;
};
const NamedFile NamedFiles[] = {
    {"a.orblog",
     "# orblog 1\n# type 7 CanBus_Raise_Honda\n# line 38400 8N1\n"
     "(0.100000) < 2e20020101db\n(0.101000) > ff\n(0.200000) ! 2e2e\n(0.300000) < 2e20020100dc\n"},
    {"a.hex", "0.1 RX 2E 20 02 01 01 DB\n0.2 TX FF\n"},
    {"a.scn", "1.0 doors.front_left on\n2.0 climate.left 20.5\n"},
    {"a.script", "help\nquit\n"},
};

// A command has read its words, and would begin with what takes an application.
struct Begun
{};

void layOut()
{
    const QDir folder;
    for (const QFileInfo &entry :
         folder.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System)) {
        if (entry.isDir() && !entry.isSymLink()) {
            QDir(entry.filePath()).removeRecursively();
        } else {
            QFile::remove(entry.filePath());
        }
    }
    for (const NamedFile &named : NamedFiles) {
        QFile file(named.name);
        if (!file.open(QIODevice::WriteOnly) || file.write(named.content) < 0) {
            std::abort();
        }
    }
}

QStringList split(QByteArray text)
{
    QStringList words;
    for (const QByteArray &word : text.replace('/', '_').split('\0')) {
        words << QString::fromUtf8(word);
    }
    return words;
}

// While it lives, the process is in a folder of its own, which holds what the words may name and nothing else.
class OwnFolder
{
public:
    OwnFolder() : m_before(QDir::currentPath())
    {
        static const QTemporaryDir folder;
        if (!QDir::setCurrent(folder.path())) {
            qFatal("no folder");
        }
        layOut();
    }
    ~OwnFolder() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY(OwnFolder)

private:
    const QString m_before;
};

// While it lives, what the program prints goes nowhere; a sanitizer's report does not come this way.
class Quiet
{
public:
    Quiet()
    {
        static std::FILE *const nowhere = std::fopen("/dev/null", "w");
        stdout = nowhere;
        stderr = nowhere;
    }
    ~Quiet()
    {
        stdout = m_output;
        stderr = m_errors;
    }
    Q_DISABLE_COPY(Quiet)

private:
    std::FILE *const m_output = stdout;
    std::FILE *const m_errors = stderr;
};

} // namespace

// ------------------------------------------------------------------------------ what stands in for the programs' own

std::unique_ptr<QCoreApplication> CommandApplication::make()
{
    throw Begun();
}

std::unique_ptr<OrbApplication> CommandApplication::makeUnit(QString *)
{
    throw Begun();
}

QString HeadUnitProgram::pluginPath(const QString &)
{
    return "no-plugin";
}

int runUnit(const QStringList &arguments, const UnitCommand *command)
{
    HeadUnitOptions options;
    QString error;
    if (options.parse(arguments, &error, command)) {
        return CommandLine::Fine;
    }
    return error.isEmpty() ? -1 : int(CommandLine::WrongUsage);
}

// The signals are libFuzzer's.
void quitOnSignals(QObject *) {}

bool isQuitAsked()
{
    return false;
}

// Sheets are written by children.
extern "C" pid_t fork()
{
    errno = EAGAIN;
    return -1;
}

// ---------------------------------------------------------------------------------------------------------- reading

void HostileCommand::readHeadUnit(const QByteArray &text)
{
    QStringList words = split(text);
    const Command *const command = Command::find(words.takeFirst());
    if (!command) {
        return;
    }
    const OwnFolder folder;
    int exitCode = CommandLine::Fine;
    {
        const Quiet quiet;
        try {
            exitCode = command->run(words);
        } catch (const Begun &) {
        }
    }
    if (exitCode < CommandLine::Fine || exitCode > CommandLine::WrongUsage) {
        std::fprintf(stderr, "an exit code that means nothing: %d\n", exitCode);
        std::abort();
    }
}

void HostileCommand::readDecoderBox(const QByteArray &text)
{
    const OwnFolder folder;
    const Quiet quiet;
    BoxProgram program;
    int exitCode = 0;
    program.begin(QStringList("decoderbox") + split(text), &exitCode);
}
