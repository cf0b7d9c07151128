#ifndef GPIOOPERATER_H
#define GPIOOPERATER_H

#include "orbglobal.h"

#include <QString>

/// One GPIO line of the head unit. The object is a handle: several may name the same line, and a line keeps
/// its state when the handle goes. Off the unit the lines live in memory.
class ORB_EXPORT GPIOOperater
{
public:
    /// \a line: number of the line, 0 and up. A line below 0 is none: setting it does nothing.
    explicit GPIOOperater(int line);

    int line() const { return m_line; }

    /// "in" or "out"; any other text is ignored. A line starts as "in".
    void setDirection(const QString &direction);
    QString direction() const;

    /// 0 or 1 (anything but 0 counts as 1). A line starts as 0.
    void setValue(int value);
    int value() const;

private:
    int m_line;
};

#endif // GPIOOPERATER_H
