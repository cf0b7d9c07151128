#ifndef FIGURELABEL_H
#define FIGURELABEL_H

#include <QLabel>
#include <QList>

/// Shows a number with its unit ("520 km") for reading at a glance: the number large at the left, the unit small,
/// either at the right edge on the number's base line or below the number. The text stays plain; number and unit
/// are parted by its first blank.
class FigureLabel : public QLabel
{
    Q_OBJECT

public:
    explicit FigureLabel(QWidget *parent = nullptr);

    /// \a example: a number as wide as they usually get. A narrower one is drawn no larger, so that the size
    /// does not change with every value. \a unit: the same for the unit.
    void setUsual(const QString &example, const QString &unit);

    enum UnitPlace { Beside, Below };

    /// The largest size of the number, in pixels, at which it has room with its unit at \a place.
    int fittingSize(UnitPlace place) const;

    /// Draws the number \a pixels high, and the unit at \a place.
    void setFigureSize(int pixels, UnitPlace place);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont fontOf(int pixels) const;
    int figureWidth(int pixels) const;
    /// Room that the unit at \a place takes from the number.
    QSize unitRoom(UnitPlace place) const;

    QString m_usualFigure;
    QString m_usualUnit;
    int m_size;
    UnitPlace m_unitPlace;
};

/// Gives its labels one size: the largest at which all of them fit, with their units all at the same place.
class FigureGroup : public QObject
{
    Q_OBJECT

public:
    explicit FigureGroup(QObject *parent = nullptr);

    /// The group must not be used any more once \a label is gone.
    void add(FigureLabel *label);

    /// To be called when a text has changed: the labels are measured before the next one is painted.
    void textChanged();
    /// Measures them now.
    void fit();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int fittingSize(FigureLabel::UnitPlace place) const;

    QList<FigureLabel *> m_labels;
    bool m_isStale;
};

#endif // FIGURELABEL_H
