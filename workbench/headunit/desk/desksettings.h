#ifndef DESKSETTINGS_H
#define DESKSETTINGS_H

#include <QSettings>

/// The file in which the desk keeps what it remembers for its user.
class DeskSettings : public QSettings
{
public:
    DeskSettings() : QSettings(IniFormat, UserScope, QStringLiteral("orb-canbus"), QStringLiteral("headunit"))
    {}
};

#endif // DESKSETTINGS_H
