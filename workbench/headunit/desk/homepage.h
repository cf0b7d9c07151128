#ifndef HOMEPAGE_H
#define HOMEPAGE_H

#include <QWidget>

class CarView;
class Launcher;
class MediaCard;

/// What the unit shows when no window is in front: the launcher, what plays, and the car.
class HomePage : public QWidget
{
    Q_OBJECT

public:
    explicit HomePage(QWidget *parent = nullptr);

    Launcher *launcher() const { return m_launcher; }
    MediaCard *mediaCard() const { return m_mediaCard; }
    CarView *carView() const { return m_carView; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Launcher *m_launcher;
    MediaCard *m_mediaCard;
    CarView *m_carView;
};

#endif // HOMEPAGE_H
