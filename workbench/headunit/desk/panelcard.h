#ifndef PANELCARD_H
#define PANELCARD_H

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// A card of the side panel: a heading and what is put below it.
class PanelCard : public QFrame
{
    Q_OBJECT

public:
    explicit PanelCard(const QString &title, QWidget *parent = nullptr);

    void setTitle(const QString &title);
    QVBoxLayout *rows() const { return m_rows; }

    /// A row of \a left and \a right, equally wide; for a layout to take.
    static QHBoxLayout *pair(QWidget *left, QWidget *right);
    /// A label for what came over the line: plain text, wrapped.
    static QLabel *plainLabel(const char *objectName);
    /// A button of the panel's size and looks.
    static QPushButton *chip(const QString &text = QString());

private:
    QLabel *m_title;
    QVBoxLayout *m_rows;
};

#endif // PANELCARD_H
