#ifndef CALLSMODEL_H
#define CALLSMODEL_H

#include <QAbstractListModel>

#include <deque>

class InspectionModel;

/// The calls that the plug-in made lately, in order, each with the row that caused it.
class CallsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr int MostCalls = 20000;

    /// The calls of the rows that \a rows shows; it is not owned and must outlive the model.
    explicit CallsModel(const InspectionModel *rows, QObject *parent = nullptr);

    /// The inspection's number of the row that caused call \a row.
    qint64 numberOf(int row) const { return m_calls[size_t(row)].number; }
    /// The first call of the inspection's row \a number, -1 for none.
    int rowOf(qint64 number) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Call
    {
        qint64 number;
        int index; // among the row's calls
    };

    void take();
    void startOver();

    const InspectionModel *m_rows;
    std::deque<Call> m_calls;
    qint64 m_next = 0; // number of the first row that was not looked at
};

#endif // CALLSMODEL_H
