#ifndef INSPECTIONMODEL_H
#define INSPECTIONMODEL_H

#include "inspectionfilter.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <deque>

class Inspection;
class LineInspector;

/// The rows of an inspection that a filter lets through, as a table. It follows the line while it is awake and not
/// paused; what came meanwhile is there afterwards. A row is shown when all that it has caused at once is known.
class InspectionModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        TimeColumn,
        DirectionColumn,
        SubjectColumn,
        BytesColumn,
        AnswerColumn,
        CausedColumn,
        ColumnCount
    };

    /// \a inspector is not owned and must outlive the model.
    explicit InspectionModel(LineInspector *inspector, QObject *parent = nullptr);

    /// What \a row is about, in the user's language; commands keep the virtual box's words.
    static QString subject(const InspectionRow &row);

    const Inspection &inspection() const;

    void setFilter(const InspectionFilter &filter);
    void setPaused(bool isPaused);
    /// Whether somebody looks.
    void setAwake(bool isAwake);
    /// Takes what came since it was last asked; by itself it does so three times a second.
    void look();

    /// The row with the inspection's number \a number is the first row from the top that is not older; rowCount() when
    /// all are.
    int rowOf(qint64 number) const;
    /// The inspection's number of row \a row.
    qint64 numberOf(int row) const { return m_numbers[size_t(row)]; }
    /// The next row from \a from on, going on at the other end, of which any word holds \a text; -1 for none.
    int find(const QString &text, int from, bool isBackwards) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// The rows, or what they count, are others than before.
    void looked();

private:
    void drop();
    void take(qint64 end);

    LineInspector *m_inspector;
    InspectionFilter m_filter;
    std::deque<qint64> m_numbers; // of the rows that are shown, in order
    qint64 m_next = 0;            // the first row that was not looked at
    qint64 m_ripe = 0;            // rows before this one are some time old
    QTimer m_timer;
    bool m_isPaused = false;
};

#endif // INSPECTIONMODEL_H
