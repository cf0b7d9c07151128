#include "gpiooperater.h"

#include "orbhost_p.h"
#include "orbtrace.h"

GPIOOperater::GPIOOperater(int line) : m_line(line) {}

void GPIOOperater::setDirection(const QString &direction)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("GPIOOperater", "setDirection", QVariantList() << m_line << direction);
    }
    if (m_line < 0 || (direction != "in" && direction != "out")) {
        return;
    }
    OrbHostPrivate::GpioLine state = OrbHostPrivate::get()->gpioLines.value(m_line);
    state.direction = direction;
    OrbHostPrivate::get()->setGpioLine(m_line, state);
}

QString GPIOOperater::direction() const
{
    return OrbHostPrivate::get()->gpioLines.value(m_line).direction;
}

void GPIOOperater::setValue(int value)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("GPIOOperater", "setValue", QVariantList() << m_line << value);
    }
    if (m_line < 0) {
        return;
    }
    OrbHostPrivate::GpioLine state = OrbHostPrivate::get()->gpioLines.value(m_line);
    state.value = value ? 1 : 0;
    OrbHostPrivate::get()->setGpioLine(m_line, state);
}

int GPIOOperater::value() const
{
    return OrbHostPrivate::get()->gpioLines.value(m_line).value;
}
