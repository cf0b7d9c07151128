#ifndef CLIMATENEWS_H
#define CLIMATENEWS_H

#include "airconditiondlg.h"

#include <QByteArray>

/// When the climate display comes up by itself: at the first package, and at each one that says something new. Boxes
/// that repeat themselves all the time must not bring back what the driver has put away.
class ClimateNews
{
public:
    /// Shows \a dialog, or hides it when the car's climate is not \a on, if \a climate is not what it was.
    void show(AirConditionDlg *dialog, const QByteArray &climate, bool on)
    {
        if (climate != m_last) {
            m_last = climate;
            dialog->setVisible(on);
        }
    }

private:
    QByteArray m_last;
};

#endif // CLIMATENEWS_H
