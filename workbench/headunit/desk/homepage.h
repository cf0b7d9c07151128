#ifndef HOMEPAGE_H
#define HOMEPAGE_H

#include <QWidget>

class CarView;
class Launcher;
class UnitControls;

/// What the unit shows when no window is in front: the launcher, the last key, and the car.
class HomePage : public QWidget
{
    Q_OBJECT

public:
    /// \a controls: whose last key is shown; not owned, must outlive the page.
    explicit HomePage(const UnitControls *controls, QWidget *parent = nullptr);

    Launcher *launcher() const { return m_launcher; }
    CarView *carView() const { return m_carView; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Launcher *m_launcher;
    CarView *m_carView;
};

#endif // HOMEPAGE_H
