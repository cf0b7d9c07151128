#ifndef RATESTABLE_H
#define RATESTABLE_H

#include <QElapsedTimer>
#include <QTableWidget>

class Inspection;

/// The commands on a line: how often each came, how often it changed, how often it was bad.
class RatesTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit RatesTable(QWidget *parent = nullptr);

    /// Of the command, and of the four numbers behind it.
    void setHeadings(const QStringList &headings);
    /// Shows what came on \a inspection's line, at most about once a second; in between it does nothing.
    void showRates(const Inspection &inspection);

Q_SIGNALS:
    /// Somebody wants to see the packages of a command only: \a words of a filter.
    void filterWanted(const QString &words);

private:
    QElapsedTimer m_age;
};

#endif // RATESTABLE_H
