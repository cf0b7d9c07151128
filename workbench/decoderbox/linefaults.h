#ifndef LINEFAULTS_H
#define LINEFAULTS_H

#include <QByteArray>
#include <QRandomGenerator>
#include <QString>
#include <QVector>

/// What goes wrong on a box's line: with the next package, or with each by chance. The chances come from a
/// seed, so that the same drive meets the same faults each time.
class LineFaults
{
public:
    enum Kind { Flip, Corrupt, Drop, Double, Cut, Stall, Garbage, Length, Late };

    struct Row
    {
        Kind kind;
        const char *name;
        const char *amount; ///< what is to be told with it: "N" bytes, "MS", or empty for nothing
        const char *help;
    };
    /// All kinds, in the order of the enumerators.
    static const QVector<Row> &rows();

    /// A package on its way.
    struct Spoilt
    {
        QByteArray bytes;
        int pauseAt = 0; ///< after so many of them nothing comes for pauseMs
        int pauseMs = 0;
        QString what; ///< ", byte 3 corrupt" for the log; empty when nothing is wrong with it
    };

    LineFaults();

    /// The chances begin anew.
    void setSeed(quint32 seed) { m_random.seed(seed); }

    /// Has \a kind strike once, at the next package (Late: at the next acknowledgement). \a amount: bytes or
    /// ms, for the kinds that have one.
    void strikeNext(Kind kind, int amount = 0);
    /// Has \a kind strike with a chance of \a percent (0 to 100) each time.
    void setRate(Kind kind, int amount, double percent);
    /// Nothing is wrong any more.
    void clear();

    /// What becomes of \a frame, of at least 4 bytes, whose length byte is at \a lengthAt.
    Spoilt spoil(const QByteArray &frame, int lengthAt);
    /// By how many ms an acknowledgement that is due now comes late.
    int lateness();
    QByteArray noise(int count);

private:
    struct State
    {
        bool isNext = false;
        int nextAmount = 0;
        double percent = 0;
        int amount = 0;
    };

    bool strikes(Kind kind, int *amount);
    int place(const QByteArray &frame);
    void spoilByte(Kind kind, int lengthAt, QByteArray *bytes, QString *what);

    QVector<State> m_states;
    QRandomGenerator m_random;
};

#endif // LINEFAULTS_H
