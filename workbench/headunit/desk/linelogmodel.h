#ifndef LINELOGMODEL_H
#define LINELOGMODEL_H

#include "linerecord.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <deque>

class LineRecorder;

/// The line's latest records as a table: time, direction, bytes. It follows the recorder until it is paused; what came
/// meanwhile is there once it goes on.
class LineLogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, DirectionColumn, BytesColumn, ColumnCount };
    static constexpr int MostRows = 5000;

    /// \a recorder is not owned and must outlive the model.
    explicit LineLogModel(LineRecorder *recorder, QObject *parent = nullptr);

    void setPaused(bool isPaused);
    bool isPaused() const { return m_isPaused; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// A row as the log's file has it: "(1.042000) < 2e2101007e".
    QString line(int row) const;

private:
    void take(const LineRecord &record);
    void showWaiting();
    QString text(const LineRecord &record, int column) const;

    std::deque<LineRecord> m_records;
    std::deque<LineRecord> m_waiting; // came since the table was last changed
    QTimer m_timer;
    bool m_isPaused = false;
};

#endif // LINELOGMODEL_H
