#ifndef BITGRIDPICTURE_H
#define BITGRIDPICTURE_H

#include "bitgrid.h"

/// The grid of BitGrid: a line for each data byte with its eight bits, each run in one frame, and its effects beside it.
class BitGridPicture : public QWidget
{
    Q_OBJECT

public:
    explicit BitGridPicture(QWidget *parent = nullptr);

    /// \a bytes: the package's data. It is as high as all that needs at the present width.
    void setRuns(const QByteArray &bytes, const QVector<BitGrid::Run> &runs);
    const QVector<BitGrid::Run> &runs() const { return m_runs; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    QString textOf(const BitGrid::Run &run) const;
    QRect cell(int top, int bit) const;
    void paintByte(QPainter *painter, int byte) const;
    void paintRun(QPainter *painter, const BitGrid::Run &run, int top) const;

    QByteArray m_data;
    QVector<BitGrid::Run> m_runs;
    QVector<QRect> m_texts; // of the runs
    QVector<int> m_tops;    // of the bytes
};

#endif // BITGRIDPICTURE_H
