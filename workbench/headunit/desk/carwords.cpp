#include "carwords.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <algorithm>

namespace {

// What a name does not say by itself.
const QHash<QString, QString> &exceptions()
{
    static const QHash<QString, QString> texts = {{"ac", "A/C"},
                                                  {"C", "°C"},
                                                  {"esc", "ESC"},
                                                  {"F", "°F"},
                                                  {"hangup", "Hang up"},
                                                  {"startstop", "Start-stop"},
                                                  {"view360", "360 view"},
                                                  {"ac_max", "A/C max"},
                                                  {"pa", "PA"},
                                                  {"sos", "SOS"},
                                                  {"wish_am", "Wish AM"},
                                                  {"wish_aux", "Wish AUX"},
                                                  {"wish_bluetooth", "Wish Bluetooth"},
                                                  {"wish_cd", "Wish CD"},
                                                  {"wish_fm", "Wish FM"},
                                                  {"wish_usb", "Wish USB"}};
    return texts;
}

// Where the number at the end of "volume_up_2" or "key_1b" begins, with its underscore; the length of a name
// without one.
int numberAt(const QString &name)
{
    const int at = name.lastIndexOf(QLatin1Char('_'));
    return at > 0 && at + 1 < name.size() && name.at(at + 1).isDigit() ? at : name.size();
}

// Units ("km/h", "mpg(UK)") and numbers stay as they are.
bool standsForItself(const QString &name)
{
    static const QStringList units = {"bar", "gal(UK)", "gal(US)", "km",      "km/h",    "km/L", "L/100km",
                                      "kPa", "L",       "mi",      "mpg(UK)", "mpg(US)", "mph",  "psi"};
    return units.contains(name) ||
           !std::any_of(name.begin(), name.end(), [](QChar c) { return c.isLetter(); });
}

QString sentence(QString name)
{
    name.replace(QLatin1Char('_'), QLatin1Char(' '));
    return name.left(1).toUpper() + name.mid(1);
}

} // namespace

QString CarWords::text(const QString &name)
{
    const int number = numberAt(name);
    const QString word = name.left(number);
    if (standsForItself(word)) {
        return name;
    }
    const QString english = exceptions().value(word, sentence(word));
    const QString text = QCoreApplication::translate("CarWords", english.toUtf8().constData());
    return number == name.size() ? text : text + QLatin1Char(' ') + name.mid(number + 1);
}

QString CarWords::groupText(const QString &group)
{
    QStringList words;
    for (const QString &word : group.split(QLatin1Char('.'))) {
        words << text(word);
    }
    return words.join(QStringLiteral(" · "));
}

QString CarWords::propertyText(const QString &name)
{
    return text(name.mid(name.lastIndexOf(QLatin1Char('.')) + 1));
}
