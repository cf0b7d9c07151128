#ifndef TYRESLOT_H
#define TYRESLOT_H

#include <QWidget>

/// The place of one tyre's label, which it keeps while the label is hidden. Shows "--" as long as the car has
/// told nothing of the tyre.
class TyreSlot : public QWidget
{
    Q_OBJECT

public:
    explicit TyreSlot(QWidget *parent = nullptr);

    /// Unknown until told otherwise.
    void setKnown(bool known);
    bool isKnown() const { return m_known; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_known;
};

#endif // TYRESLOT_H
