#ifndef AIRCONDITIONDLG_H
#define AIRCONDITIONDLG_H

#include "orbdialog.h"

/// The climate display: an overlay at the foot of the screen. Each setter changes what it shows at once;
/// showing and hiding is the caller's, with setVisible; the user may put it away with a tap. Objects may be
/// built before there is a screen.
class ORB_EXPORT AirConditionDlg : public OrbDialog
{
    Q_OBJECT

public:
    explicit AirConditionDlg(QWidget *parent = nullptr);
    ~AirConditionDlg() override;

    /// Whether the car has an electric auxiliary heater, whose mark is then drawn. Starts as true.
    void setPTCModeVisible(bool visible);

    /// Ends of the temperature scale in degrees Celsius; a text outside is shown all the same, with the scale
    /// full or empty. Ignored when \a minimum is not below \a maximum.
    void setTemperatureRange(double minimum, double maximum);

    /// Climate control on or off; off draws everything dimmed.
    void setAirConditionEnable(bool on);

    /// The compressor ("A/C").
    void setACEnable(bool on);

    void setAutoModeEnable(bool on);

    /// Air distribution as bits: 4 windscreen, 2 face, 1 feet; 0 none. Other bits are ignored. Ends the
    /// defrosting mark.
    void setWindDirectEx(int direction);

    /// Air distribution as a mode; 0xFF: chosen by the car. Others are taken as setWindDirectEx takes them.
    void setWindDirect(int direction);

    /// Fan speed 0 to 8; 0xFF: chosen by the car. Other values count as full. The display has seven steps until the
    /// car tells its eighth.
    void setAirVolume(int level);

    /// 0 outside air, 1 recirculation, 0xFF chosen by the car. Other values count as 1.
    void setCirculationMode(int mode);

    /// Windscreen defrosting is on, until the next setWindDirectEx or setWindDirect.
    void setDefrostingMode();

    /// Temperatures as they are to be shown ("21.5°C", "72°F", "LO", "HI"); an empty text shows nothing.
    void setTemperature(const QString &left, const QString &right);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void showNews();

private:
    Q_DISABLE_COPY(AirConditionDlg)
    class Private;
    Private *d;
};

#endif // AIRCONDITIONDLG_H
