#ifndef LINEPAGE_H
#define LINEPAGE_H

#include "linestatus.h"

#include <QWidget>

class LineLogModel;
class LineRecorder;
class PanelCard;
class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

/// The line to the box, real or virtual: how it is, a word to the box, and what passes over it.
class LinePage : public QWidget
{
    Q_OBJECT

public:
    /// \a recorder is not owned and must outlive the page.
    explicit LinePage(LineRecorder *recorder, QWidget *parent = nullptr);

    void setStatus(const LineStatus &status);
    /// Shows \a card above the others, and owns it.
    void addCard(QWidget *card);
    /// What became of the last wish, in one sentence.
    void setAnswer(const QString &sentence);

Q_SIGNALS:
    void helloWanted();
    void saveWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void addLogCard();
    void copyRows();
    void setTexts();
    void showStatus();

    LineStatus m_status;
    LineLogModel *m_model;
    QSortFilterProxyModel *m_filtered;

    PanelCard *m_stateCard;
    QLabel *m_state;
    QLabel *m_counts;
    QLabel *m_answer;
    QPushButton *m_hello;
    QPushButton *m_save;
    PanelCard *m_logCard;
    QLineEdit *m_filter;
    QTableView *m_table;
    bool m_followsNewest = true;
    QPushButton *m_pause;
    QPushButton *m_copy;
};

#endif // LINEPAGE_H
