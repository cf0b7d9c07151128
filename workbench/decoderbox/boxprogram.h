#ifndef BOXPROGRAM_H
#define BOXPROGRAM_H

#include <QFile>
#include <QObject>

#include <memory>

class DecoderBox;
class QCommandLineParser;

/// The program `decoderbox`: one box, on its own, as its command line says.
class BoxProgram : public QObject
{
    Q_OBJECT

public:
    enum ExitCode { Fine = 0, CannotRun = 1, WrongUsage = 2 };

    explicit BoxProgram(QObject *parent = nullptr);
    ~BoxProgram() override;

    /// Reads \a arguments, the program's name first, opens the box and prints the device's path as the first
    /// line on stdout. False when the program has to end at once, with \a exitCode; the reason is on stderr
    /// then.
    bool begin(const QStringList &arguments, int *exitCode);

private:
    bool readOptions(QCommandLineParser *parser, const QStringList &arguments, int *type);
    void prepareLine(const QCommandLineParser &parser);
    bool openLog(const QString &path);
    bool openScenario(const QString &path);
    bool openScript(const QString &path);

    std::unique_ptr<DecoderBox> m_box;
    QFile m_log;
    QFile m_script;
};

#endif // BOXPROGRAM_H
