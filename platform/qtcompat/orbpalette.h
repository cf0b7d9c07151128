#ifndef ORBPALETTE_H
#define ORBPALETTE_H

#include <QColor>

/// Colours of the unit's screens for what is painted by hand; skin.qss states the same for what Qt draws.
namespace OrbPalette {

inline QColor ground()
{
    return QColor(0x0E, 0x11, 0x16);
}
inline QColor panel()
{
    return QColor(0x17, 0x1C, 0x24);
}
inline QColor raised()
{
    return QColor(0x23, 0x2B, 0x36);
}
inline QColor line()
{
    return QColor(0x2A, 0x32, 0x3E);
}
inline QColor text()
{
    return QColor(0xF2, 0xF5, 0xF8);
}
inline QColor dim()
{
    return QColor(0x8A, 0x94, 0xA3);
}
inline QColor accent()
{
    return QColor(0x2E, 0xA8, 0xFF);
}
inline QColor warning()
{
    return QColor(0xFF, 0xB0, 0x20);
}
inline QColor error()
{
    return QColor(0xFF, 0x5A, 0x52);
}

} // namespace OrbPalette

#endif // ORBPALETTE_H
