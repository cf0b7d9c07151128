#ifndef KEYTESTERCARD_H
#define KEYTESTERCARD_H

#include "panelcard.h"

struct KeyStroke;
class KeyWatch;
class QLabel;
class QPushButton;
class QTableWidget;

/// The key tester: what was pressed lately, in the car or on the unit, for how long, and what became of it; and in words
/// which keys never came up.
class KeyTesterCard : public PanelCard
{
    Q_OBJECT

public:
    /// \a watch is not owned and must outlive the card.
    explicit KeyTesterCard(KeyWatch *watch, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setTexts();
    void look();
    void showStroke(int row, const KeyStroke &stroke);
    void showChosen();
    void copyTables();

    KeyWatch *m_watch;
    QLabel *m_alarm;
    QLabel *m_hint;
    QTableWidget *m_table;
    QLabel *m_chosen;
    QPushButton *m_copy;
};

#endif // KEYTESTERCARD_H
