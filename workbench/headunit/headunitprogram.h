#ifndef HEADUNITPROGRAM_H
#define HEADUNITPROGRAM_H

#include "headunitoptions.h"

#include "junitreport.h"

#include <QFile>
#include <QObject>
#include <QTemporaryDir>

#include <memory>

class CallWatch;
class DecoderBox;
class HeadUnit;
class LineOutput;
class ReplayRun;
class ScenarioPlayer;
class ScriptRunner;
class TraceWriter;
class QWidget;

/// The program `headunit`: one unit as its command line says, with or without a window, a virtual box, a
/// trace and a script. Needs the OrbApplication, and goes before it.
class HeadUnitProgram : public QObject
{
    Q_OBJECT

public:
    explicit HeadUnitProgram(const HeadUnitOptions &options, QObject *parent = nullptr);
    ~HeadUnitProgram() override;

    /// Sets everything up and loads the plug-in. The application's event loop does the rest and ends with
    /// the program's work. False, with one sentence in \a error, when the unit cannot run.
    bool begin(QString *error);

    /// The plug-in at \a asked; when that is empty, the one that lies where this program's own build or installation
    /// puts it.
    static QString pluginPath(const QString &asked = QString());

private:
    bool openTrace(QString *error);
    void configureUnit();
    bool startRecorder(QString *error);
    void watchLine();
    bool openBox(QString *error);
    bool openReplay(QString *error);
    void endReplay();
    bool openScenario(QString *error);
    bool hasAnEnd(QString *error) const;
    void playOnce();
    void giveUpWaiting();
    void openScreen();
    bool openScript(QString *error);
    void startScript();
    void failStrictly(int line, const QString &command, const QString &reason);

    HeadUnitOptions m_options;
    QFile m_traceFile;
    QFile m_scriptFile;
    std::unique_ptr<LineOutput> m_output;
    std::unique_ptr<TraceWriter> m_writer;
    std::unique_ptr<QTemporaryDir> m_lineFolder; // of the link that stays when the box's line comes back
    std::unique_ptr<DecoderBox> m_box;
    std::unique_ptr<ReplayRun> m_replay;
    JUnitReport m_report;
    ScenarioPlayer *m_player = nullptr;
    bool m_hasPlayed = false;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<HeadUnit> m_unit;
    std::unique_ptr<CallWatch> m_watch;
    std::unique_ptr<ScriptRunner> m_script;
};

#endif // HEADUNITPROGRAM_H
