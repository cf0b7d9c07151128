#ifndef FILTERBAR_H
#define FILTERBAR_H

#include "inspectionfilter.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

/// Where somebody says which rows of an inspection are to be seen: in words, by two switches, or by a filter that was
/// kept under a name. Kept filters are those of all bars, and of later runs.
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    /// \a isWide: all in one line, rather than below each other.
    explicit FilterBar(bool isWide, QWidget *parent = nullptr);

    /// Filters by \a words from now on.
    void setWords(const QString &words);

Q_SIGNALS:
    /// Another filter is wanted. One that cannot be read is not told; the bar says why.
    void filterChanged(const InspectionFilter &filter);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setTexts();
    void apply();
    void keep();
    void forget();
    void listKept();
    void choose(int index);

    QComboBox *m_words;
    QPushButton *m_keep;
    QPushButton *m_forget;
    QPushButton *m_unexplained;
    QPushButton *m_changing;
    QLabel *m_problem;
};

#endif // FILTERBAR_H
