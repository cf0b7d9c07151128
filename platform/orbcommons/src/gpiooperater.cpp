#include "gpiooperater.h"

#include "orbhost_p.h"
#include "orbtrace.h"

#include <QDebug>
#include <QDir>
#include <QFile>

namespace {

/// Writes \a text to \a path as the kernel's GPIO files want it: one unbuffered write to a file that is
/// there.
void writeGpioFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        file.write(text) != text.size())
        qDebug("GPIO: cannot write \"%s\" to %s", text.constData(), qPrintable(path));
}

/// Path of \a file of \a line below the GPIO root; the line is exported first when it is not there yet. Empty
/// without a root.
QString gpioFile(int line, const char *file)
{
    const QString &root = OrbHostPrivate::get()->gpioRoot;
    if (root.isEmpty())
        return QString();
    const QString folder = root + "/gpio" + QString::number(line);
    if (!QDir(folder).exists())
        writeGpioFile(root + "/export", QByteArray::number(line));
    return folder + '/' + file;
}

} // namespace

GPIOOperater::GPIOOperater(int line) : m_line(line) {}

void GPIOOperater::setDirection(const QString &direction)
{
    if (OrbTrace::listener)
        OrbTrace::listener->called("GPIOOperater", "setDirection", QVariantList() << m_line << direction);
    if (m_line < 0 || (direction != "in" && direction != "out"))
        return;
    const QString path = gpioFile(m_line, "direction");
    if (!path.isEmpty())
        writeGpioFile(path, direction.toLatin1());
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
    if (OrbTrace::listener)
        OrbTrace::listener->called("GPIOOperater", "setValue", QVariantList() << m_line << value);
    if (m_line < 0)
        return;
    const QString path = gpioFile(m_line, "value");
    if (!path.isEmpty())
        writeGpioFile(path, value ? "1" : "0");
    OrbHostPrivate::GpioLine state = OrbHostPrivate::get()->gpioLines.value(m_line);
    state.value = value ? 1 : 0;
    OrbHostPrivate::get()->setGpioLine(m_line, state);
}

int GPIOOperater::value() const
{
    return OrbHostPrivate::get()->gpioLines.value(m_line).value;
}
