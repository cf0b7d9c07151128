#include "carproperty.h"

#include <QHash>

#include <cmath>

namespace {

bool readSwitch(const QString &text, QVariant *result)
{
    static const QStringList on = {"on", "true", "yes", "1"};
    static const QStringList off = {"off", "false", "no", "0"};
    const QString lower = text.toLower();
    if (!on.contains(lower) && !off.contains(lower)) {
        return false;
    }
    *result = on.contains(lower);
    return true;
}

bool readNumber(const CarProperty &property, const QString &text, QVariant *result)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!ok || !std::isfinite(number) || number < property.minimum || number > property.maximum) {
        return false;
    }
    if (property.kind == CarProperty::Integer && number != std::floor(number)) {
        return false;
    }
    *result = property.kind == CarProperty::Integer ? QVariant(int(number)) : QVariant(number);
    return true;
}

bool readTemperature(const CarProperty &property, const QString &text, QVariant *result)
{
    const QString upper = text.toUpper();
    if (upper == "LO" || upper == "HI") {
        *result = upper;
        return true;
    }
    return readNumber(property, text, result);
}

bool readText(const CarProperty &property, const QString &text, QVariant *result)
{
    if (text.size() > property.maximum || QString::fromLatin1(text.toLatin1()) != text) {
        return false;
    }
    *result = text;
    return true;
}

bool readNumberList(const CarProperty &property, const QString &text, QVariant *result)
{
    if (text.isEmpty() || text == "-") {
        *result = QString();
        return true;
    }
    const QStringList parts = text.split(',');
    QStringList numbers;
    for (const QString &part : parts) {
        bool ok = false;
        const int number = part.trimmed().toInt(&ok);
        if (!ok || number < property.minimum || number > property.maximum) {
            return false;
        }
        numbers << QString::number(number);
    }
    if (numbers.size() > property.step) {
        return false;
    }
    *result = numbers.join(',');
    return true;
}

} // namespace

QString CarProperty::group() const
{
    return name.contains('.') ? name.section('.', 0, -2) : name;
}

QString CarProperty::takes() const
{
    const QString range = QString("%1 to %2").arg(minimum).arg(maximum);
    switch (kind) {
    case Switch:
        return "on or off";
    case Integer:
        return "a whole number from " + range;
    case Real:
        return "a number from " + range;
    case Temperature:
        return "a number from " + range + ", LO or HI";
    case Choice:
        return "one of " + choices.join(", ");
    case Text:
        return QString("a Latin-1 text of at most %1 characters").arg(maximum);
    case NumberList:
        return QString("at most %1 numbers from %2 with commas between").arg(step).arg(range);
    }
    return QString();
}

bool CarProperty::read(const QVariant &value, QVariant *result, QString *error) const
{
    const QString given = value.toString();
    bool fits = false;
    switch (kind) {
    case Switch:
        fits = readSwitch(given, result);
        break;
    case Integer:
    case Real:
        fits = readNumber(*this, given, result);
        break;
    case Temperature:
        fits = readTemperature(*this, given, result);
        break;
    case Choice:
        fits = choices.contains(given);
        if (fits) {
            *result = given;
        }
        break;
    case Text:
        fits = readText(*this, given, result);
        break;
    case NumberList:
        fits = readNumberList(*this, given, result);
        break;
    }
    if (!fits) {
        *error = QString("'%1' takes %2, not '%3'").arg(name, takes(), given);
    }
    return fits;
}

QString CarProperty::text(const QVariant &value) const
{
    if (kind == Switch) {
        return value.toBool() ? "on" : "off";
    }
    return value.toString();
}

const CarProperty *CarProperty::find(const QString &name)
{
    static const QHash<QString, int> places = [] {
        QHash<QString, int> result;
        for (int i = 0; i < all().size(); ++i) {
            result.insert(all().at(i).name, i);
        }
        return result;
    }();
    const auto place = places.constFind(name);
    return place == places.constEnd() ? nullptr : &all().at(*place);
}
