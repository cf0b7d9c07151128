#ifndef LINESTRIP_H
#define LINESTRIP_H

#include "linestatus.h"

#include <QTimer>
#include <QWidget>

class QPushButton;

/// The line's health, always in sight below the unit: car, port and state, what there is to count, and a button that
/// saves the last minute.
class LineStrip : public QWidget
{
    Q_OBJECT

public:
    /// \a car: as it is called, empty for a unit without one.
    explicit LineStrip(const QString &car, QWidget *parent = nullptr);

    void setStatus(const LineStatus &status);

    /// Shows \a sentence for a while in place of what there is to count.
    void setNote(const QString &sentence);

    /// "Toyota · /dev/ttyUSB0 · talking".
    QString text() const;

Q_SIGNALS:
    void saveWanted();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setTexts();

    QString m_car;
    LineStatus m_status;
    QString m_note;
    QTimer m_noteTimer;
    QPushButton *m_save;
};

#endif // LINESTRIP_H
