#include "headunitprogram.h"

#include "boxcatalog.h"
#include "boxlibrary.h"
#include "boxpage.h"
#include "callwatch.h"
#include "decoderbox.h"
#include "deskmemory.h"
#include "deskwindow.h"
#include "headunit.h"
#include "keywatch.h"
#include "lineinspector.h"
#include "lineoutput.h"
#include "linereporter.h"
#include "linetrace.h"
#include "quitonsignals.h"
#include "replayrun.h"
#include "scenarioplayer.h"
#include "scriptrunner.h"
#include "sidepanel.h"
#include "tracewriter.h"
#include "unitscreen.h"

#include "orbapplication.h"
#include "orbhost.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cstdio>

#include <unistd.h>

namespace {

constexpr int LastPackagesMs = 500; // what the end of a scenario has brought about is still on its way
const int LongestStart = 60000;     // ms of the virtual clock until the unit opens the box's port

// A path on the command line: relative ones are relative to the current folder, "-" is \a standard.
bool open(QFile *file, const QString &path, QFile::OpenMode mode, int standard, QString *error)
{
    file->setFileName(path);
    const bool ok = path == "-" ? file->open(standard, mode) : file->open(mode);
    if (!ok) {
        *error = QString("%1: %2").arg(path, file->errorString());
    }
    return ok;
}

// Writes nothing that stays: the folder is made when there is something to keep.
bool canKeepSettings(const QString &path, QString *error)
{
    QFileInfo folder(QDir(path).absolutePath());
    while (!folder.exists() && !folder.isSymLink() && !folder.isRoot()) {
        folder.setFile(folder.absolutePath());
    }
    QTemporaryFile probe(folder.absoluteFilePath() + "/.headunit-XXXXXX");
    const bool ok = folder.isDir() && probe.open();
    if (!ok) {
        *error = QString("settings cannot be kept in %1: %2")
                     .arg(path,
                          folder.isDir() ? probe.errorString() : folder.absoluteFilePath() + " is no folder");
    }
    return ok;
}

// The plug-in goes on in silence.
void sayWhyNoDecoder(const HeadUnitOptions &options)
{
    const uint lastType = uint(BoxCatalog::rows().last().type);
    const QVariant port = options.productValues.value("CANPortName");
    QString reason;
    QString list;
    if (options.canBusType() > lastType) {
        list = "; the types are" + BoxCatalog::list();
        reason = QString("CAN-bus type %1 is none of 1 to %2").arg(options.canBusType()).arg(lastType);
    } else if (port.isValid() && port.toString().isEmpty()) {
        reason = "the port has no name";
    }
    if (!reason.isEmpty()) {
        std::fprintf(stderr, "headunit: %s, the unit runs without a decoder%s\n", qPrintable(reason),
                     qPrintable(list));
    }
}

} // namespace

HeadUnitProgram::HeadUnitProgram(const HeadUnitOptions &options, QObject *parent)
    : QObject(parent), m_options(options)
{}

HeadUnitProgram::~HeadUnitProgram()
{
    if (const DeskWindow *desk = qobject_cast<DeskWindow *>(m_window.get())) {
        DeskMemory().store(desk, int(m_options.canBusType()));
    }
    // The window shows the unit, and the plug-in's windows lie in it.
    m_script.reset();
    if (m_unit) {
        m_unit->unloadPlugin();
    }
    m_window.reset();
    m_replay.reset();
    m_watch.reset();
    OrbTrace::setListener(nullptr);
    if (m_report.isOpen() && !m_report.write(m_options.script)) {
        std::fprintf(stderr, "headunit: %s could not be written\n", qPrintable(m_options.junit));
    }
}

bool HeadUnitProgram::begin(QString *error)
{
    quitOnSignals(this);
    if (!openTrace(error) || !openScript(error)) {
        return false;
    }
    if (!m_options.settingsDir.isEmpty() && !canKeepSettings(m_options.settingsDir, error)) {
        return false;
    }
    configureUnit();
    if (!openBox(error) || !hasAnEnd(error)) {
        return false;
    }
    m_unit.reset(new HeadUnit);
    if (!startRecorder(error)) {
        return false;
    }
    if (m_replay) {
        m_replay->begin(m_unit->lineRecorder());
    }
    watchLine();
    openScreen();
    if (!m_unit->loadPlugin(pluginPath(m_options.plugin), error)) {
        return false;
    }
    startScript();
    return true;
}

QString HeadUnitProgram::pluginPath(const QString &asked)
{
    if (!asked.isEmpty()) {
        return asked;
    }
    const QDir folder(QCoreApplication::applicationDirPath());
    const QString installed = folder.filePath(HEADUNIT_INSTALLED_PLUGIN);
    const QString built = folder.filePath(HEADUNIT_BUILT_PLUGIN);
    return QDir::cleanPath(QFileInfo::exists(installed) ? installed : built);
}

// A script is answered on standard output when nobody asked for the trace.
bool HeadUnitProgram::openTrace(QString *error)
{
    const bool isTraced = !m_options.trace.isEmpty();
    if (isTraced || !m_options.script.isEmpty()) {
        const QString path = isTraced ? m_options.trace : QString("-");
        const QFile::OpenMode mode = QFile::WriteOnly | QFile::Truncate | QFile::Unbuffered;
        if (!open(&m_traceFile, path, mode, STDOUT_FILENO, error)) {
            return false;
        }
        m_output.reset(new LineOutput(m_traceFile.handle()));
        if (m_options.virtualStart.isValid()) {
            m_output->waitForReader();
        }
    }
    m_writer.reset(new TraceWriter(m_output.get(), m_options.tracesValues));
    if (isTraced) {
        OrbTrace::setListener(m_writer.get());
    }
    if (!m_options.script.isEmpty()) {
        m_watch.reset(new CallWatch(OrbTrace::listener));
    }
    return true;
}

void HeadUnitProgram::configureUnit()
{
    OrbHost *host = OrbHost::instance();
    const QDir folder(QCoreApplication::applicationDirPath());
    for (const char *translations : {HEADUNIT_INSTALLED_TRANSLATIONS, HEADUNIT_BUILT_TRANSLATIONS}) {
        if (folder.exists(translations)) {
            host->addTranslationDir(folder.absoluteFilePath(translations));
        }
    }
    for (auto i = m_options.tags.cbegin(); i != m_options.tags.cend(); ++i) {
        host->setTag(i.key(), i.value());
    }
    for (auto i = m_options.productValues.cbegin(); i != m_options.productValues.cend(); ++i) {
        host->setProductValue(i.key(), i.value());
    }
    for (auto i = m_options.factorySettings.cbegin(); i != m_options.factorySettings.cend(); ++i) {
        host->setFactorySetting(i.key(), i.value());
    }
    if (!m_options.settingsDir.isEmpty()) {
        host->setSettingsDir(m_options.settingsDir);
    }
    sayWhyNoDecoder(m_options);
}

void HeadUnitProgram::watchLine()
{
    LineHealth *health = m_unit->lineHealth();
    health->setType(int(m_options.canBusType()));
    health->setPort(m_options.canBusType() == 0
                        ? QString()
                        : OrbApplication::instance()->getOrbProductValue("CANPortName").toString());
    if (m_options.tracesLine) {
        LineReporter *reporter = new LineReporter(health, m_box.get(), m_unit.get());
        new LineTrace(reporter, m_writer.get(), reporter);
    }
    if (m_options.tracesKeys) {
        LineInspector *inspector = new LineInspector(int(m_options.canBusType()), m_unit.get());
        inspector->follow(m_unit.get());
        (new KeyWatch(inspector, inspector))->trace(m_writer.get());
    }
}

bool HeadUnitProgram::startRecorder(QString *error)
{
    LineRecorder *recorder = m_unit->lineRecorder();
    recorder->setType(int(m_options.canBusType()));
    recorder->saveAtBadPackage(m_options.saveBad);
    connect(recorder, &LineRecorder::fileFailed, this,
            [](const QString &problem) { std::fprintf(stderr, "headunit: %s\n", qPrintable(problem)); });
    const bool isWanted = !m_options.record.isEmpty() || !m_options.saveBad.isEmpty();
    if (isWanted && !SerialTap::isWired()) {
        *error = "the serial library that this program was built with cannot be listened to";
        return false;
    }
    return m_options.record.isEmpty() || recorder->startFile(m_options.record, error);
}

bool HeadUnitProgram::openBox(QString *error)
{
    if (m_options.replay) {
        return openReplay(error);
    }
    if (!m_options.hasDecoderBox) {
        return true;
    }
    m_box.reset(m_options.boxLibrary.isEmpty()
                    ? BoxCatalog::createBox(int(m_options.canBusType()), nullptr, error)
                    : BoxLibrary::createBox(m_options.boxLibrary, nullptr, error));
    if (!m_box) {
        return false;
    }
    if (m_options.isUnpaced) {
        m_box->setUnpaced();
    }
    if (m_options.hasSeed) {
        m_box->faults()->setSeed(m_options.seed);
    }
    m_lineFolder.reset(new QTemporaryDir);
    const QString link = m_lineFolder->filePath("box");
    if (!m_box->open(link, error)) {
        return false;
    }
    OrbHost::instance()->setProductValue("CANPortName", link);
    return m_options.scenario.isEmpty() || openScenario(error);
}

bool HeadUnitProgram::openReplay(QString *error)
{
    m_replay.reset(new ReplayRun(*m_options.replay, int(m_options.canBusType())));
    if (!m_replay->open(error)) {
        return false;
    }
    OrbHost::instance()->setProductValue("CANPortName", m_replay->portPath());
    connect(m_replay.get(), &ReplayRun::finished, this,
            [this] { QTimer::singleShot(LastPackagesMs, this, &HeadUnitProgram::endReplay); });
    return true;
}

// A script, and a window, go on without the log.
void HeadUnitProgram::endReplay()
{
    const QByteArray text = m_options.replay->asJson ? m_replay->json() : m_replay->summary().toLocal8Bit();
    const bool isTraceOnOutput = m_output && m_traceFile.handle() == STDOUT_FILENO;
    std::fprintf(isTraceOnOutput ? stderr : stdout, "%s\n", text.constData());
    std::fflush(stdout);
    if (m_options.isHeadless && m_options.script.isEmpty()) {
        QCoreApplication::exit(m_replay->isFine() ? 0 : 1);
    }
}

// Read before anything else starts, played when the unit has opened its port.
bool HeadUnitProgram::openScenario(QString *error)
{
    Scenario scenario;
    if (!scenario.load(m_options.scenario, *m_box, error)) {
        return false;
    }
    m_player = new ScenarioPlayer(m_box.get(), scenario, m_box.get());
    connect(m_box.get(), &DecoderBox::unitCame, this, &HeadUnitProgram::playOnce);
    if (m_options.isHeadless && m_options.script.isEmpty()) {
        connect(m_player, &ScenarioPlayer::finished, this,
                [] { QTimer::singleShot(LastPackagesMs, qApp, &QCoreApplication::quit); });
        if (m_options.virtualStart.isValid()) {
            QTimer::singleShot(LongestStart, this, &HeadUnitProgram::giveUpWaiting);
        }
    }
    return true;
}

// Where nothing waits in real time a run without an end would keep the processor busy for ever.
bool HeadUnitProgram::hasAnEnd(QString *error) const
{
    const bool hasEnd = !m_options.virtualStart.isValid() || !m_options.script.isEmpty() ||
                        (m_player && !m_player->isEndless()) ||
                        (m_options.replay && !m_options.replay->loops);
    if (!hasEnd) {
        *error = "under the virtual clock this would never end: it takes a script, or a scenario with an end";
    }
    return hasEnd;
}

void HeadUnitProgram::giveUpWaiting()
{
    if (!m_hasPlayed) {
        std::fprintf(stderr,
                     "headunit: the unit has not opened the box's port in %d s, the drive cannot begin\n",
                     LongestStart / 1000);
        QCoreApplication::exit(1);
    }
}

void HeadUnitProgram::playOnce()
{
    disconnect(m_box.get(), &DecoderBox::unitCame, this, &HeadUnitProgram::playOnce);
    m_hasPlayed = true;
    // On the desk the panel plays it, where it can be seen and stopped.
    if (DeskWindow *desk = qobject_cast<DeskWindow *>(m_window.get())) {
        desk->sidePanel()->boxPage()->play(m_options.scenario);
    } else {
        m_player->play();
    }
}

void HeadUnitProgram::openScreen()
{
    // Headless there is nothing that could act by itself, and the unit ends by order only.
    QApplication::setQuitOnLastWindowClosed(!m_options.isHeadless);
    if (m_options.isHeadless) {
        m_window.reset(new UnitScreen(m_options.screenSize));
        m_window->setUpdatesEnabled(false); // nobody looks; a screenshot paints all the same
    } else {
        DeskWindow *desk = new DeskWindow(m_unit.get(), m_box.get(), m_options.screenSize);
        m_window.reset(desk);
        if (m_replay) {
            desk->showReplay(m_replay->replayer());
        }
        DeskMemory().restore(desk);
    }
    m_window->show();
}

bool HeadUnitProgram::openScript(QString *error)
{
    return m_options.script.isEmpty() ||
           (open(&m_scriptFile, m_options.script, QFile::ReadOnly | QFile::Unbuffered, STDIN_FILENO, error) &&
            (m_options.junit.isEmpty() || m_report.open(m_options.junit, error)));
}

void HeadUnitProgram::startScript()
{
    if (!m_scriptFile.isOpen()) {
        return;
    }
    const ScriptRunner::Surroundings surroundings = {m_unit.get(), m_box.get(), m_watch.get(), m_writer.get(),
                                                     m_report.isOpen() ? &m_report : nullptr};
    m_script.reset(new ScriptRunner(m_scriptFile.handle(), surroundings, m_options.isStrict));
    connect(m_script.get(), &ScriptRunner::finished, qApp, &QCoreApplication::quit);
    connect(m_script.get(), &ScriptRunner::failed, this, &HeadUnitProgram::failStrictly);
}

void HeadUnitProgram::failStrictly(int line, const QString &command, const QString &reason)
{
    std::fprintf(stderr, "headunit: %s:%d: %s: %s\n", qPrintable(m_options.script), line, qPrintable(command),
                 qPrintable(reason));
    QCoreApplication::exit(1);
}
