#include "gpiooperater.h"

#include "orbhost_p.h"
#include "orbtrace.h"

#include <QDebug>
#include <QDir>
#include <QFile>

namespace {

QString lineFolder(int line)
{
    return OrbHostPrivate::get()->gpioRoot + "/gpio" + QString::number(line);
}

/// Writes as the kernel's GPIO files want it: at once, to a file that is there.
bool writeExisting(const QString &path, const QByteArray &text)
{
    QFile file(path);
    if (file.exists() && file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
        file.write(text) == text.size()) {
        return true;
    }
    qDebug("GPIO: cannot write \"%s\" to %s", text.constData(), qPrintable(path));
    return false;
}

/// Writes to a file of \a line, if there is a GPIO root; the line is exported first when it is not there yet.
void writeLineFile(int line, const char *name, const QByteArray &text)
{
    const QString root = OrbHostPrivate::get()->gpioRoot;
    if (root.isEmpty()) {
        return;
    }
    if (QDir(lineFolder(line)).exists() || writeExisting(root + "/export", QByteArray::number(line))) {
        writeExisting(lineFolder(line) + '/' + name, text);
    }
}

} // namespace

GPIOOperater::GPIOOperater(int line) : m_line(line) {}

void GPIOOperater::setDirection(const QString &direction)
{
    if (OrbTrace::listener) {
        OrbTrace::listener->called("GPIOOperater", "setDirection", QVariantList() << m_line << direction);
    }
    if (m_line < 0 || (direction != "in" && direction != "out")) {
        return;
    }
    writeLineFile(m_line, "direction", direction.toLatin1());
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
    writeLineFile(m_line, "value", value ? "1" : "0");
    OrbHostPrivate::GpioLine state = OrbHostPrivate::get()->gpioLines.value(m_line);
    state.value = value ? 1 : 0;
    OrbHostPrivate::get()->setGpioLine(m_line, state);
}

int GPIOOperater::value() const
{
    // What an input is at, only its file knows.
    QFile file(lineFolder(m_line) + "/value");
    if (!OrbHostPrivate::get()->gpioRoot.isEmpty() && direction() == "in" && file.open(QIODevice::ReadOnly)) {
        return file.read(1) == "1" ? 1 : 0;
    }
    return OrbHostPrivate::get()->gpioLines.value(m_line).value;
}
