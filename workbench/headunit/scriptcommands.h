#ifndef SCRIPTCOMMANDS_H
#define SCRIPTCOMMANDS_H

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVector>

#include <functional>
#include <memory>

class CallWatch;
class DecoderBox;
class Expectation;
class HeadUnit;
class QWidget;

/// The commands of a script, one at a time: what each takes, and what it does to the unit.
class ScriptCommands : public QObject
{
    Q_OBJECT

public:
    enum Outcome {
        Failed,  ///< error() says why; nothing happened
        Done,    ///< result() stands
        Posted,  ///< it acts from the event loop; result() stands when that has gone round
        Waits,   ///< nothing goes on for waitMs()
        Expects, ///< decided() comes; then result() stands, or error() when the expectation was not met
        Ends     ///< the script is over
    };

    /// A command as a reader sees it.
    struct Syntax
    {
        QString name;
        QString arguments;
        QString help;
    };
    /// All of them, in the order in which they should be told.
    static QVector<Syntax> syntax();

    /// \a unit, \a box (null for none) and \a watch must outlive the object.
    ScriptCommands(HeadUnit *unit, DecoderBox *box, CallWatch *watch, QObject *parent = nullptr);
    ~ScriptCommands() override;

    /// Carries out the command \a words: its name and its arguments, at least one word.
    Outcome carryOut(const QStringList &words);

    const QVariantList &result() const { return m_result; }
    const QString &error() const { return m_error; }
    int waitMs() const { return m_waitMs; }

Q_SIGNALS:
    void decided();

private:
    /// Arguments are numbers first, texts behind them.
    struct Row
    {
        const char *name;
        const char *arguments;
        const char *help;
        int minNumbers;
        int maxNumbers;
        int minTexts;
        int maxTexts;
        Outcome (ScriptCommands::*handler)();
    };

    static const QVector<Row> &rows();
    bool readArguments(const Row &row, const QStringList &arguments);
    quint32 number(int index) const { return m_numbers.value(index, 0); }
    QString text(int index) const { return m_texts.value(index); }

    Outcome appEvent();
    Outcome show();
    Outcome notify();
    Outcome state();
    Outcome key();
    Outcome mode();
    Outcome disk();
    Outcome tag();
    Outcome product();
    Outcome front();
    Outcome language();
    Outcome windows();
    Outcome open();
    Outcome textOf();
    Outcome styleOf();
    Outcome click();
    Outcome check();
    Outcome listRows();
    Outcome row();
    Outcome wait();
    Outcome screenshot();
    Outcome save();
    Outcome quit();
    Outcome expect();
    Outcome set();
    Outcome press();
    Outcome orderBox();
    Outcome list();
    Outcome help();

    Outcome order(const QString &line);
    bool listProperties();
    bool listKeys();
    Outcome fail(const QString &error);
    Outcome done(const QVariant &result);
    Outcome postedIf(bool ok) const { return ok ? Posted : Failed; }
    Outcome post(const std::function<void()> &effect);

    HeadUnit *m_unit;
    DecoderBox *m_box;
    CallWatch *m_watch;
    std::unique_ptr<Expectation> m_expectation; // under way
    QVector<quint32> m_numbers;
    QStringList m_texts;
    QVariantList m_result;
    QString m_error;
    int m_waitMs = 0;
};

#endif // SCRIPTCOMMANDS_H
