#ifndef INSPECTION_H
#define INSPECTION_H

#include "inspectionrow.h"

#include "lineframer.h"
#include "linerecord.h"

#include <QHash>
#include <QMap>
#include <QSet>

#include <deque>
#include <memory>

class PackageValues;

/// Puts together what passed over the unit's line and what the plug-in did about it: a row for each package, with the
/// bits that changed, the time of its acknowledgement and the calls that it caused. It asks no clock and knows no
/// screen; whoever feeds it says when things happened.
///
/// A package causes the calls that the plug-in makes from the moment at which it takes the package from its framer until
/// its hold on the package is over, see taken() and done().
class Inspection
{
public:
    static constexpr int MostRows = 100000; ///< older ones go

    /// How often a command came.
    struct Rate
    {
        static constexpr int Span = 5; ///< seconds over which perSecond() counts

        QString name;
        qint64 count = 0;
        qint64 changes = 0; ///< of them, that differed from the one before
        qint64 bad = 0;
        qint64 first = 0; ///< microseconds
        qint64 last = 0;

        /// Packages a second in the last seconds before \a now, in microseconds.
        double perSecond(qint64 now) const;
        void note(qint64 microseconds);

    private:
        int m_counts[Span + 1] = {};
        qint64 m_second = 0; // the one that is being counted
    };
    struct Command
    {
        bool isTowardsUnit;
        quint8 command;

        bool operator<(const Command &other) const
        {
            return isTowardsUnit != other.isTowardsUnit ? isTowardsUnit : command < other.command;
        }
    };

    /// For the decoder of CAN-bus type \a type: that says how packages look and what they are called. With a type of
    /// which nobody knows that, all bytes are noise.
    explicit Inspection(int type);
    ~Inspection();

    /// Takes the next record of the line. Its time is not before the last one's.
    void feed(const LineRecord &record);
    /// Only time has passed: it is \a microseconds now.
    void pass(qint64 microseconds);
    /// Moves the time on to \a microseconds, for what is told from now on.
    void setNow(qint64 microseconds) { m_now = qMax(m_now, microseconds); }
    /// The latest time that it was told, in microseconds.
    qint64 now() const { return m_now; }

    /// The plug-in takes \a frame from its framer. What it calls from now on belongs to this package.
    void taken(const QByteArray &frame);
    /// A key of the unit goes down, is held, or comes up (1, 2, 0). What the plug-in calls belongs to it.
    void unitKey(quint32 code, int phase);
    /// The plug-in has made \a call.
    void called(const QString &call);
    /// The row to which calls belong at the moment, of a package that was taken before this framer was sure of it with
    /// nothing but its bytes and calls; null for none.
    const InspectionRow *current() const;
    /// What is called from now on belongs to nothing, and is a row of its own.
    void done();

    /// The rows that are kept have the numbers from firstNumber() to endNumber() - 1; a row keeps its number.
    qint64 firstNumber() const { return m_firstNumber; }
    qint64 endNumber() const { return m_firstNumber + qint64(m_rows.size()); }
    const InspectionRow &row(qint64 number) const { return m_rows[size_t(number - m_firstNumber)]; }
    void clear();

    const QMap<Command, Rate> &rates() const { return m_rates; }
    int type() const { return m_type; }
    /// Null for a type of which nobody knows what packages mean.
    PackageValues *values() const { return m_values.get(); }

private:
    struct History
    {
        QByteArray data;
        bool isExplained = false;
    };

    void drain(LineFramer *framer, bool isTowardsUnit);
    void addPiece(const LinePiece &piece, bool isTowardsUnit);
    void compare(InspectionRow *row);
    void acknowledge(bool isTowardsUnit, qint64 microseconds);
    void addNoise(const QByteArray &bytes, qint64 microseconds, bool isTowardsUnit);
    void append(const InspectionRow &row);
    QString nameOf(quint8 command, bool isTowardsUnit);

    const int m_type;
    std::unique_ptr<PackageValues> m_values;
    std::unique_ptr<LineFramer> m_framers[2]; // to the box, to the unit; null without a frame
    qint64 m_now = 0;

    std::deque<InspectionRow> m_rows;
    qint64 m_firstNumber = 0;
    QMap<Command, History> m_histories;
    QMap<Command, Rate> m_rates;
    QMap<Command, QString> m_names;
    QByteArray m_badBytes[2];           // of the last bad package: they come again as noise
    std::deque<qint64> m_unanswered[2]; // numbers of packages
    std::deque<qint64> m_untaken;       // of packages that the plug-in has not taken yet
    std::deque<InspectionRow> m_early;  // taken by the plug-in before this framer was sure of them
    qint64 m_current = -1;              // number of the row that calls belong to; -1 for none
    bool m_isCurrentEarly = false;      // it is the last of m_early
};

#endif // INSPECTION_H
