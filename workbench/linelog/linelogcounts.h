#ifndef LINELOGCOUNTS_H
#define LINELOGCOUNTS_H

#include <QString>
#include <QVector>

/// What was left out or changed, by its name, with the places of the first few. Needs little room, however much is
/// counted: names are one of a few constants.
class LineLogCounts
{
public:
    struct Entry
    {
        QString what;          ///< "lines that hold no record"
        qint64 count = 0;      ///< how many of them
        QVector<qint64> lines; ///< where the first ones were, from 1: a line or, in a binary file, a block
    };

    /// Counts \a count of \a what; \a line is its place, 0 for none.
    void add(const QString &what, qint64 line = 0, qint64 count = 1);

    /// In the order in which each was first counted.
    const QVector<Entry> &entries() const { return m_entries; }
    bool isEmpty() const { return m_entries.isEmpty(); }
    /// Sum of all counts.
    qint64 total() const;
    /// How many of \a what.
    qint64 of(const QString &what) const;
    /// One line an entry, without its end: "3 lines that hold no record (lines 4, 5, 9)".
    QStringList texts() const;

private:
    QVector<Entry> m_entries;
};

#endif // LINELOGCOUNTS_H
