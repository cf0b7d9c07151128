#ifndef PANELCARD_H
#define PANELCARD_H

#include <QFrame>

class QLabel;
class QVBoxLayout;

/// A card of the side panel: a heading and what is put below it.
class PanelCard : public QFrame
{
    Q_OBJECT

public:
    explicit PanelCard(const QString &title, QWidget *parent = nullptr);

    void setTitle(const QString &title);
    QVBoxLayout *rows() const { return m_rows; }

private:
    QLabel *m_title;
    QVBoxLayout *m_rows;
};

#endif // PANELCARD_H
