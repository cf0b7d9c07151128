#ifndef PROBEUNIT_H
#define PROBEUNIT_H

#include "callwatch.h"
#include "headunit.h"
#include "screenreader.h"
#include "screentour.h"
#include "terminalpair.h"
#include "unitscreen.h"

#include <QTemporaryDir>
#include <QVector>

#include <functional>

/// A unit with the real plug-in that many packages are tried on: the process forks, and the child does what the
/// packages bring about and tells its calls. A package that kills the plug-in, or that opens a dialog, takes a
/// child along and no more. Needs an OrbApplication on the virtual clock, and nothing else that runs in the
/// process.
class ProbeUnit
{
public:
    /// Whole frames, fed one after the other; the last one is what is asked about.
    using Packages = ScreenTour::Packages;

    /// What came of a trial.
    struct Trial
    {
        bool isFramed = false;          ///< the decoder's framer took the last package
        bool hasDialog = false;         ///< a dialog waits for an answer
        QString end;                    ///< "signal 11" of a plug-in that did not survive it
        QVector<CallWatch::Call> calls; ///< those that the last package caused, without the line's
        QMap<QString, QString> values;  ///< what the car has told by name, so far
        QMap<QString, QString> texts;   ///< what the plug-in's windows show other than at start
    };

    ProbeUnit();
    ~ProbeUnit();

    /// Starts the plug-in \a plugin with the decoder of \a type, feeds it \a greeting, the packages with which
    /// a box begins, and lets it settle. False, with one sentence in \a error, when it does not run.
    /// Opens all of the plug-in's screens, so that they show what packages bring.
    bool start(const QString &plugin, int type, const Packages &greeting, QString *error);

    /// From now on trials begin with the screens turned to where the button  number of screens()->turns() turns
    /// them; -1: as they were opened.
    void turnTo(int number);

    /// Each of \a trials in the state in which the unit started: a fork each.
    QVector<Trial> tryFresh(const QVector<Packages> &trials);
    /// \a trials one behind the other: each has to begin with packages that bring about its state. A fork for all
    /// that go well, and one more where a text or value may be what an earlier trial left behind.
    QVector<Trial> tryInTurn(const QVector<Packages> &trials);

    /// What the unit wants to say to its box from \a act on, for \a ms, in a child: packages as they are queued.
    Packages sentAfter(const std::function<void(HeadUnit *)> &act, int ms);
    /// What \a report writes in a child, \a ms after \a act began there, also when that waits in a dialog. Empty when
    /// the plug-in did not survive it.
    QByteArray observe(const std::function<void()> &act, int ms,
                       const std::function<void(QDataStream *)> &report);
    /// Lets \a ms pass for good, and takes what the screens then show for the state in which trials begin.
    void settle(int ms);

    /// What was queued for the box since a child's act began.
    Packages sent() const;
    /// What the screens show other than at start.
    ScreenReader::Texts changedTexts() { return m_reader.changes(); }
    /// The screens that were opened.
    const ScreenTour &screens() const { return *m_tour; }
    /// Finds out what each tap on them says; after all trials.
    void tapAll();
    /// What it wanted to say by the end of start().
    const Packages &sentAtStart() const { return m_sentAtStart; }

    /// What the plug-in's windows show when a trial begins: "MenuWindow.title" to its text.
    const QMap<QString, QString> &textsAtStart() const
    {
        return m_turn < 0 ? m_reader.remembered() : m_turnedTexts;
    }

    /// Trials so far.
    int trialCount() const { return m_trialCount; }

private:
    class ValueWatch;

    /// What screens show and values say, other than when the unit started.
    struct Shown
    {
        ScreenReader::Texts texts;
        ScreenReader::Texts values;
    };

    int runChild(const QVector<Packages> &trials, int from, QVector<Trial> *results);
    void play(const Packages &packages, int from, int result);
    void tell(const QByteArray &package, int result);
    Shown shown();
    bool isLeftBehind(const Shown &now) const;
    void turn();
    void drainLine();

    QTemporaryDir m_settings;
    TerminalPair m_line;
    std::unique_ptr<ValueWatch> m_values;
    std::unique_ptr<UnitScreen> m_screen;
    std::unique_ptr<CallWatch> m_watch;
    std::unique_ptr<HeadUnit> m_unit;
    Packages m_sentAtStart;
    std::unique_ptr<ScreenTour> m_tour;
    ScreenReader m_reader;
    int m_turn = -1;
    ScreenReader::Texts m_turnedTexts;
    // Of a child.
    bool m_isInDialog = false;
    bool m_isFirst = true; // trial in this child
    Shown m_clean;         // before the last package of the first trial,
    Shown m_before;        // and of this one
    int m_trialCount = 0;
};

#endif // PROBEUNIT_H
