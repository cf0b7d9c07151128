#ifndef KEYCARD_H
#define KEYCARD_H

#include <QWidget>

class UnitControls;

/// The key that arrived last, from the unit, the wheel or the car's panel, and what it has done. Its frame is
/// lit while the key is held: one that stays lit was never released.
class KeyCard : public QWidget
{
    Q_OBJECT

public:
    /// \a controls: whose key it shows; not owned, must outlive the card.
    explicit KeyCard(const UnitControls *controls, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPlayer(QPainter *painter, const QRect &place) const;

    const UnitControls *m_controls;
};

#endif // KEYCARD_H
