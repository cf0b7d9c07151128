#ifndef LINEPAGE_H
#define LINEPAGE_H

#include "linestatus.h"

#include <QWidget>

class InspectorView;
class LineInspector;
class PanelCard;
class QLabel;
class QPushButton;

/// The line to the box, real or virtual: how it is, a word to the box, and what passes over it.
class LinePage : public QWidget
{
    Q_OBJECT

public:
    /// \a inspector is not owned and must outlive the page.
    explicit LinePage(LineInspector *inspector, QWidget *parent = nullptr);

    void setStatus(const LineStatus &status);
    /// Shows \a card above the others, and owns it.
    void addCard(QWidget *card);
    /// What became of the last wish, in one sentence.
    void setAnswer(const QString &sentence);
    /// Shows the inspector in a window of its own.
    void openInspector();

Q_SIGNALS:
    void helloWanted();
    void saveWanted();
    /// Somebody wants to know, here or in the inspector's window, what the bits of a package of the box do: \a frame is whole, of CAN-bus type \a type.
    void packageChosen(int type, const QByteArray &frame);

protected:
    void changeEvent(QEvent *event) override;

private:
    void setTexts();
    void showStatus();

    LineStatus m_status;
    LineInspector *m_inspector;

    PanelCard *m_stateCard;
    QLabel *m_state;
    QLabel *m_counts;
    QLabel *m_answer;
    QPushButton *m_hello;
    QPushButton *m_save;
    PanelCard *m_logCard;
    InspectorView *m_view;
    InspectorView *m_window = nullptr; // made when it is first wanted
};

#endif // LINEPAGE_H
