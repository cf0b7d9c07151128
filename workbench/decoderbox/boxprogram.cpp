#include "boxprogram.h"

#include "boxcatalog.h"
#include "boxlibrary.h"
#include "boxscript.h"
#include "decoderbox.h"
#include "quitonsignals.h"
#include "scenarioplayer.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

#include <unistd.h>

namespace {

void print(FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stream);
}

void listBoxes()
{
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        print(stdout, QString("%1 %2 %3 %4")
                          .arg(row.type)
                          .arg(row.className, row.car, row.makeSpeaker ? "box" : "none"));
    }
}

} // namespace

BoxProgram::BoxProgram(QObject *parent) : QObject(parent) {}

BoxProgram::~BoxProgram() = default;

bool BoxProgram::begin(const QStringList &arguments, int *exitCode)
{
    QCommandLineParser parser;
    int type = 0;
    *exitCode = WrongUsage;
    if (!readOptions(&parser, arguments, &type)) {
        return false;
    }
    *exitCode = CannotRun;
    if (parser.isSet("help") || parser.isSet("list")) {
        *exitCode = Fine;
        if (parser.isSet("help")) {
            print(stdout, parser.helpText());
        } else {
            listBoxes();
        }
        return false;
    }
    QString error;
    m_box.reset(parser.isSet("box") ? BoxLibrary::createBox(parser.value("box"), nullptr, &error)
                                    : BoxCatalog::createBox(type, nullptr, &error));
    if (m_box) {
        prepareLine(parser);
    }
    if (!m_box || !m_box->open(parser.value("link"), &error)) {
        print(stderr, "decoderbox: " + error);
        return false;
    }
    if (!openLog(parser.value("log")) || !openScenario(parser.value("scenario"))) {
        return false;
    }
    // A box that is stopped by a signal still takes its link away.
    quitOnSignals(this);
    print(stdout, m_box->portPath());
    return openScript(parser.value("script"));
}

void BoxProgram::prepareLine(const QCommandLineParser &parser)
{
    if (parser.isSet("unpaced")) {
        m_box->setUnpaced();
    }
    if (parser.isSet("seed")) {
        m_box->faults()->setSeed(parser.value("seed").toUInt());
    }
}

bool BoxProgram::readOptions(QCommandLineParser *parser, const QStringList &arguments, int *type)
{
    parser->setApplicationDescription(
        "A virtual CAN decoder box on a pseudo-terminal, whose path is the first line "
        "of output.");
    parser->addOptions({{{"h", "help"}, "Shows this."},
                        {"list", "Lists all types: number, class, car, and box or none."},
                        {"type", "CAN-bus type by number or class name.", "N|CLASS"},
                        {"link", "Keeps a link of this name to the pseudo-terminal.", "PATH"},
                        {"box", "Somebody else's box in its place: its shared library.", "LIB"},
                        {"scenario", "Plays a drive when the unit opens the port.", "FILE"},
                        {"log", "Writes one line per package each way; - is stderr.", "FILE"},
                        {"script", "Takes orders, one a line; - is stdin.", "FILE"},
                        {"seed", "Begins the chances of the line's faults at this number.", "N"},
                        {"unpaced", "Bytes take no time on the line."}});
    QString error;
    bool isSeed = true;
    if (!parser->parse(arguments)) {
        error = parser->errorText();
    } else if (parser->isSet("seed") && (parser->value("seed").toUInt(&isSeed), !isSeed)) {
        error = "--seed takes a number, not '" + parser->value("seed") + "'";
    } else if (!parser->positionalArguments().isEmpty()) {
        error = "what is '" + parser->positionalArguments().first() + "'?";
    } else if (!parser->isSet("help") && !parser->isSet("list")) {
        *type = BoxCatalog::typeFromText(parser->value("type"));
        error = *type != 0 ? QString()
                           : QString("--type takes a number or a class name of --list, not '%1'")
                                 .arg(parser->value("type"));
    }
    if (!error.isEmpty()) {
        print(stderr, "decoderbox: " + error + "\n\n" + parser->helpText());
    }
    return error.isEmpty();
}

bool BoxProgram::openLog(const QString &path)
{
    if (path.isEmpty()) {
        return true;
    }
    m_log.setFileName(path);
    const bool ok = path == "-" ? m_log.open(stderr, QIODevice::WriteOnly)
                                : m_log.open(QIODevice::WriteOnly | QIODevice::Truncate);
    if (!ok) {
        print(stderr, QString("decoderbox: %1: %2").arg(path, m_log.errorString()));
        return false;
    }
    connect(m_box.get(), &DecoderBox::logLine, this, [this](const QString &line) {
        m_log.write(line.toUtf8() + '\n');
        m_log.flush();
    });
    return true;
}

bool BoxProgram::openScenario(const QString &path)
{
    if (path.isEmpty()) {
        return true;
    }
    Scenario scenario;
    QString error;
    if (!scenario.load(path, *m_box, &error)) {
        print(stderr, "decoderbox: " + error);
        return false;
    }
    ScenarioPlayer *player = new ScenarioPlayer(m_box.get(), scenario, this);
    connect(m_box.get(), &DecoderBox::unitCame, player, [player] {
        if (!player->isPlaying()) {
            player->play();
        }
    });
    connect(player, &ScenarioPlayer::finished, this, [](bool byOrder) {
        if (byOrder) {
            QCoreApplication::quit();
        }
    });
    return true;
}

bool BoxProgram::openScript(const QString &path)
{
    if (path.isEmpty()) {
        return true;
    }
    m_script.setFileName(path);
    if (path != "-" && !m_script.open(QIODevice::ReadOnly)) {
        print(stderr, QString("decoderbox: %1: %2").arg(path, m_script.errorString()));
        return false;
    }
    BoxScript *script = new BoxScript(m_box.get(), path == "-" ? STDIN_FILENO : m_script.handle(), this);
    connect(script, &BoxScript::answered, this, [](const QString &line) { print(stdout, line); });
    connect(script, &BoxScript::finished, this, [] { QCoreApplication::quit(); });
    return true;
}
