#ifndef FIGURELABEL_H
#define FIGURELABEL_H

#include <QLabel>

/// Shows a number with its unit ("520 km") for reading at a glance: the number large, the unit small on the
/// same base line. Shrinks until both fit. The text stays plain; number and unit are parted by its first
/// blank.
class FigureLabel : public QLabel
{
    Q_OBJECT

public:
    explicit FigureLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// Width of the whole text with the number \a size pixels high.
    int widthAt(int size) const;
    QFont fontOf(int size) const;
};

#endif // FIGURELABEL_H
