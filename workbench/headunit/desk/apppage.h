#ifndef APPPAGE_H
#define APPPAGE_H

#include "carstate.h"

#include <QPixmap>
#include <QWidget>

class CarView;

/// The page of an application that has no window on the unit: a camera, or a screen of the car itself. It
/// shows whose it is; for the camera around the car, the car.
class AppPage : public QWidget
{
    Q_OBJECT

public:
    explicit AppPage(QWidget *parent = nullptr);

    /// \a appId 0 leaves the page without an application.
    void setApplication(uint appId, const QString &title, const QPixmap &icon);
    uint appId() const { return m_appId; }
    QString title() const { return m_title; }
    void setCarState(const CarState &state);
    /// See CarView::setDoubt().
    void setDoubt(const QString &doubt);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    uint m_appId = 0;
    QString m_title;
    QPixmap m_icon;
    CarView *m_carView;
};

#endif // APPPAGE_H
