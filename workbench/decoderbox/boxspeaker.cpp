#include "boxspeaker.h"

namespace {

bool isOneOf(const QString &property, const QStringList &names)
{
    for (const QString &name : names) {
        if (name.endsWith('.') ? property.startsWith(name) : property == name) {
            return true;
        }
    }
    return false;
}

} // namespace

bool BoxReport::isAbout(const QString &property) const
{
    return isOneOf(property, concerns);
}

BoxSpeaker::BoxSpeaker(SimulatedCar *car, const FrameFormat &format, QObject *parent)
    : QObject(parent), m_car(car), m_format(format)
{}

BoxPackage BoxSpeaker::reportPackage(int index) const
{
    const BoxReport &report = m_reports.at(index);
    return {report.command, report.data(*m_car)};
}

const BoxKey *BoxSpeaker::findKey(const QString &name) const
{
    for (const BoxKey &key : m_keys) {
        if (key.name == name) {
            return &key;
        }
    }
    return nullptr;
}

QVector<BoxPackage> BoxSpeaker::keyPackages(const BoxKey &key, KeyState state) const
{
    return {{key.command, QByteArray().append(char(key.code)).append(char(state))}};
}

BoxPackage BoxSpeaker::knobPackage(const BoxKey &key, int count) const
{
    return {key.command, QByteArray().append(char(key.code)).append(char(count))};
}

BoxPackage BoxSpeaker::touchPackage(Touch, int, int) const
{
    return {};
}

QStringList BoxSpeaker::properties() const
{
    QStringList result;
    for (const CarProperty &property : CarProperty::all()) {
        bool counts = isOneOf(property.name, m_moreProperties);
        for (const BoxReport &report : m_reports) {
            counts = counts || report.isAbout(property.name);
        }
        if (counts) {
            result << property.name;
        }
    }
    return result;
}

BoxSpeaker::Understanding BoxSpeaker::receive(const BoxPackage &package, QString *meaning)
{
    const auto command = m_commands.constFind(package.command);
    if (command == m_commands.constEnd()) {
        *meaning = "unknown command " + hex(package.command);
        return UnknownCommand;
    }
    if (package.n() < command->minimum) {
        *meaning = QString("command %1 with too little data").arg(hex(package.command));
        return TooShort;
    }
    *meaning = command->handler(package);
    return Understood;
}

void BoxSpeaker::addCommand(quint8 command, int minimum, const Handler &handler)
{
    m_commands.insert(command, {minimum, handler});
}

void BoxSpeaker::answerWith(const QString &property)
{
    for (int i = 0; i < m_reports.size(); ++i) {
        if (m_reports.at(i).isAbout(property)) {
            Q_EMIT reportDue(i);
        }
    }
}

QString BoxSpeaker::observe(const QString &topic, const QString &value)
{
    Q_EMIT observed(topic, value);
    return topic + ' ' + value;
}

QString BoxSpeaker::hex(int value, int digits)
{
    return "0x" + QString::number(value, 16).rightJustified(digits, '0');
}
