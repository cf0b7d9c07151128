#ifndef CLIMATEPAINTER_H
#define CLIMATEPAINTER_H

#include <QCoreApplication>
#include <QFont>
#include <QRect>
#include <QRegion>
#include <QString>

class QPainter;
class QPixmap;

/// What the climate display shows.
struct ClimateState
{
    enum { ChosenByCar = -1 };

    ClimateState();

    /// \a bits: 4 windscreen, 2 face, 1 feet, or ChosenByCar. Ends the defrosting mark.
    void setDirection(int bits);

    bool heaterMark;
    double minimum; ///< ends of the temperature scale in degrees Celsius
    double maximum;
    bool on;
    bool compressor;
    bool automatic;
    bool defrosting;
    int direction;
    int fan;         ///< 0 to fanLevels, or ChosenByCar
    int fanLevels;   ///< 7, or 8 in a car that was seen to have so many
    int circulation; ///< 0 outside, 1 recirculation, or ChosenByCar
    QString left;
    QString right;
};

/// How far along the scale from \a minimum to \a maximum (degrees Celsius) a temperature text lies, 0 to 1:
/// a number in °C or °F, "LO" 0, "HI" 1; -1 for a text that is none of these.
double scalePosition(const QString &text, double minimum, double maximum);

/// Paints a ClimateState: the two temperatures outside, fan, air distribution and marks between them.
class ClimatePainter
{
    Q_DECLARE_TR_FUNCTIONS(AirConditionDlg)

public:
    ClimatePainter(QPainter *painter, const QRect &room, const QFont &base);

    /// Paints what of \a state lies in \a region.
    void paint(const ClimateState &state, const QRegion &region);

    /// Where in \a room the two states look different.
    static QRegion difference(const ClimateState &before, const ClimateState &after, const QRect &room);

private:
    void paintGround();
    void paintTemperature(const QRect &room, const QString &text, double position);
    void paintScale(const QRect &room, double position);
    void paintFan(const QRect &room, const ClimateState &state);
    void paintFanBars(const QRect &room, int level, int levels);
    void paintDirection(const QRect &room, const ClimateState &state);
    void paintMark(int mark, const QRect &room, const ClimateState &state);
    void paintChip(const QRect &room, bool lit, const QString &text);
    void paintIconChip(const QRect &room, bool lit, const char *icon);
    void paintFitted(const QRect &room, const QString &text, int largest, int weight, int alignment);
    void paintIcon(const QRect &room, const QPixmap &icon, qreal opacity);

    QPainter *m_painter;
    QRect m_room;
    QFont m_base;
    qreal m_opacity;
};

#endif // CLIMATEPAINTER_H
