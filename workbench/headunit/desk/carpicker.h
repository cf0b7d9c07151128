#ifndef CARPICKER_H
#define CARPICKER_H

#include <QDialog>

class QComboBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

/// Asks which car the unit is in and what it talks to, when nobody has said so on the command line.
class CarPicker : public QDialog
{
    Q_OBJECT

public:
    /// \a type: the CAN-bus type that is chosen at first, 0 for none. \a ports: serial devices to choose from; others
    /// may be typed.
    CarPicker(int type, const QStringList &ports, QWidget *parent = nullptr);

    /// The chosen type; 0 for none.
    int canBusType() const;
    /// The serial device; empty for a virtual box.
    QString port() const;

private:
    void addCars(int type);
    void showMatching(const QString &words);
    void showChoice();

    QLineEdit *m_search;
    QListWidget *m_cars;
    QComboBox *m_line;
    QPushButton *m_start;
};

#endif // CARPICKER_H
