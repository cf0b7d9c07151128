#include "hostiletext.h"

#include "boxcatalog.h"
#include "callwatch.h"
#include "decoderbox.h"
#include "headunit.h"
#include "headunitoptions.h"
#include "hostilecommand.h"
#include "inspectionfilter.h"
#include "orbhost.h"
#include "orbiniconfig.h"
#include "scenario.h"
#include "scriptcommands.h"
#include "scriptline.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

const int MostLines = 30;

void expect(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

QString pathOf(const char *name)
{
    return QDir(OrbHost::instance()->settingsDir()).filePath(name);
}

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(OrbHost::instance()->settingsDir());
    QFile file(path);
    expect(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "no room");
}

// The box of a car is made once: orders change what its car says, not what it understands.
DecoderBox *boxOf(int type)
{
    static QHash<int, DecoderBox *> boxes;
    const QVector<BoxCatalog::Row> &rows = BoxCatalog::rows();
    const int row = type % int(rows.size());
    if (!boxes.contains(row)) {
        QString error;
        boxes.insert(row, BoxCatalog::createBox(rows.at(row).type, nullptr, &error));
        expect(boxes.value(row) || !error.isEmpty(), "no box, and no reason");
    }
    return boxes.value(row);
}

void readDrive(const DecoderBox &box, const QByteArray &text)
{
    write(pathOf("drive.scn"), text);
    Scenario scenario;
    QString error;
    const bool isRead = scenario.load(pathOf("drive.scn"), box, &error);
    expect(isRead || (!error.isEmpty() && scenario.steps.isEmpty()), "a drive half read");
    for (int i = 1; i < scenario.steps.size(); ++i) {
        expect(scenario.steps.at(i).ms >= scenario.steps.at(i - 1).ms, "a drive whose time goes back");
    }
}

void readOrder(DecoderBox *box, const QByteArray &text)
{
    BoxCommand command;
    QString error;
    const bool isRead = command.parse(QString::fromUtf8(text), *box, &error);
    expect(isRead || !error.isEmpty(), "an order refused without a reason");
    if (isRead) {
        command.carryOut(box);
    }
}

// Without a plug-in: what a line does is done to the framework alone.
void playScript(DecoderBox *box, const QByteArray &text)
{
    HeadUnit unit;
    CallWatch watch(nullptr);
    ScriptCommands commands(&unit, box, &watch);
    int played = 0;
    for (const QByteArray &line : text.split('\n')) {
        QStringList words;
        const bool isSplit = ScriptLine::split(QString::fromUtf8(line), &words);
        // Files stay where they are.
        if (!isSplit || words.isEmpty() || words.first() == "screenshot" || words.first() == "save") {
            continue;
        }
        const ScriptCommands::Outcome outcome = commands.carryOut(words);
        expect(outcome != ScriptCommands::Failed || !commands.error().isEmpty(),
               "a line failed without a reason");
        if (outcome == ScriptCommands::Ends || ++played == MostLines) {
            break;
        }
    }
    QCoreApplication::processEvents();
    OrbHost::instance()->setLanguage("en");
}

void readSettings(const QByteArray &text)
{
    write(pathOf("any.ini"), text);
    QFile::remove(pathOf("any.ini.bak"));
    const QString value = QString::fromUtf8(text.left(40));
    const QString key = QString::fromUtf8(text.right(12));
    bool isWritten = false;
    {
        OrbIniConfig config("any.ini", "CarSetting");
        config.value("80").toInt();
        isWritten = config.setValue(key, value);
    }
    OrbIniConfig again("any.ini", "CarSetting");
    expect(!isWritten || again.value(key).toString() == value, "a setting reads as something else");
    QDir(OrbHost::instance()->settingsDir()).removeRecursively();
}

void readCommandLine(const QByteArray &text)
{
    QStringList arguments("headunit");
    for (const QByteArray &word : text.split('\0')) {
        arguments << QString::fromUtf8(word);
    }
    HeadUnitOptions options;
    QString error;
    expect(options.parse(arguments, &error) || !error.isEmpty(), "a command line refused without a reason");
}

} // namespace

void HostileText::read(Kind kind, int type, const QByteArray &text)
{
    DecoderBox *const box = boxOf(type);
    QString error;
    switch (kind) {
    case Drive:
        if (box) {
            readDrive(*box, text);
        }
        break;
    case BoxOrder:
        if (box) {
            readOrder(box, text);
        }
        break;
    case Script:
        playScript(box, text);
        break;
    case Settings:
        readSettings(text);
        break;
    case CommandLine:
        readCommandLine(text);
        break;
    case Filter:
        expect(InspectionFilter().parse(QString::fromUtf8(text), &error) || !error.isEmpty(),
               "a filter refused without a reason");
        break;
    case SubCommand:
        HostileCommand::readHeadUnit(text);
        break;
    case BoxCommandLine:
        HostileCommand::readDecoderBox(text);
        break;
    case Kinds:
        break;
    }
}
