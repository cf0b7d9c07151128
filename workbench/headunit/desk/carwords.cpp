#include "carwords.h"

#include <QCoreApplication>
#include <QHash>

namespace {

struct Word
{
    const char *name;
    const char *text;
};

const Word words[] = {
    {"ac", QT_TRANSLATE_NOOP("CarWords", "A/C")},
    {"angle", QT_TRANSLATE_NOOP("CarWords", "Angle")},
    {"auto", QT_TRANSLATE_NOOP("CarWords", "Auto")},
    {"back", QT_TRANSLATE_NOOP("CarWords", "Back")},
    {"bar", QT_TRANSLATE_NOOP("CarWords", "bar")},
    {"box", QT_TRANSLATE_NOOP("CarWords", "Box")},
    {"call", QT_TRANSLATE_NOOP("CarWords", "Call")},
    {"camera", QT_TRANSLATE_NOOP("CarWords", "Camera")},
    {"car_type", QT_TRANSLATE_NOOP("CarWords", "Car type")},
    {"circulation", QT_TRANSLATE_NOOP("CarWords", "Circulation")},
    {"climate", QT_TRANSLATE_NOOP("CarWords", "Climate")},
    {"C", QT_TRANSLATE_NOOP("CarWords", "°C")},
    {"comfort", QT_TRANSLATE_NOOP("CarWords", "Comfort")},
    {"consumption", QT_TRANSLATE_NOOP("CarWords", "Consumption")},
    {"defrost", QT_TRANSLATE_NOOP("CarWords", "Defrost")},
    {"doors", QT_TRANSLATE_NOOP("CarWords", "Doors")},
    {"down", QT_TRANSLATE_NOOP("CarWords", "Down")},
    {"early", QT_TRANSLATE_NOOP("CarWords", "Early")},
    {"eco", QT_TRANSLATE_NOOP("CarWords", "Eco")},
    {"enter", QT_TRANSLATE_NOOP("CarWords", "Enter")},
    {"F", QT_TRANSLATE_NOOP("CarWords", "°F")},
    {"factory", QT_TRANSLATE_NOOP("CarWords", "Factory screen")},
    {"fan", QT_TRANSLATE_NOOP("CarWords", "Fan")},
    {"fan_auto", QT_TRANSLATE_NOOP("CarWords", "Fan auto")},
    {"fault", QT_TRANSLATE_NOOP("CarWords", "Fault")},
    {"firmware", QT_TRANSLATE_NOOP("CarWords", "Firmware")},
    {"forward", QT_TRANSLATE_NOOP("CarWords", "Forward")},
    {"front_left", QT_TRANSLATE_NOOP("CarWords", "Front left")},
    {"front_right", QT_TRANSLATE_NOOP("CarWords", "Front right")},
    {"function_call", QT_TRANSLATE_NOOP("CarWords", "Function call")},
    {"function_hangup", QT_TRANSLATE_NOOP("CarWords", "Function hang up")},
    {"function_next", QT_TRANSLATE_NOOP("CarWords", "Function next")},
    {"function_previous", QT_TRANSLATE_NOOP("CarWords", "Function previous")},
    {"gear", QT_TRANSLATE_NOOP("CarWords", "Gear")},
    {"hangup", QT_TRANSLATE_NOOP("CarWords", "Hang up")},
    {"home", QT_TRANSLATE_NOOP("CarWords", "Home")},
    {"illumination", QT_TRANSLATE_NOOP("CarWords", "Illumination")},
    {"in", QT_TRANSLATE_NOOP("CarWords", "In")},
    {"indicator", QT_TRANSLATE_NOOP("CarWords", "Indicator")},
    {"left", QT_TRANSLATE_NOOP("CarWords", "Left")},
    {"light", QT_TRANSLATE_NOOP("CarWords", "Light")},
    {"mode", QT_TRANSLATE_NOOP("CarWords", "Mode")},
    {"mute", QT_TRANSLATE_NOOP("CarWords", "Mute")},
    {"next", QT_TRANSLATE_NOOP("CarWords", "Next")},
    {"none", QT_TRANSLATE_NOOP("CarWords", "None")},
    {"normal", QT_TRANSLATE_NOOP("CarWords", "Normal")},
    {"off", QT_TRANSLATE_NOOP("CarWords", "Off")},
    {"out", QT_TRANSLATE_NOOP("CarWords", "Out")},
    {"phone", QT_TRANSLATE_NOOP("CarWords", "Phone")},
    {"play", QT_TRANSLATE_NOOP("CarWords", "Play")},
    {"power", QT_TRANSLATE_NOOP("CarWords", "Power")},
    {"previous", QT_TRANSLATE_NOOP("CarWords", "Previous")},
    {"radar.front", QT_TRANSLATE_NOOP("CarWords", "Radar, front")},
    {"radar.rear", QT_TRANSLATE_NOOP("CarWords", "Radar, rear")},
    {"radar_maxima", QT_TRANSLATE_NOOP("CarWords", "Radar maxima")},
    {"rear_left", QT_TRANSLATE_NOOP("CarWords", "Rear left")},
    {"rear_right", QT_TRANSLATE_NOOP("CarWords", "Rear right")},
    {"reverse", QT_TRANSLATE_NOOP("CarWords", "Reverse gear")},
    {"rewind", QT_TRANSLATE_NOOP("CarWords", "Rewind")},
    {"right", QT_TRANSLATE_NOOP("CarWords", "Right")},
    {"screen", QT_TRANSLATE_NOOP("CarWords", "Screen")},
    {"service", QT_TRANSLATE_NOOP("CarWords", "Service")},
    {"settings", QT_TRANSLATE_NOOP("CarWords", "Settings")},
    {"show", QT_TRANSLATE_NOOP("CarWords", "Show")},
    {"steering", QT_TRANSLATE_NOOP("CarWords", "Steering")},
    {"to_face", QT_TRANSLATE_NOOP("CarWords", "To face")},
    {"to_feet", QT_TRANSLATE_NOOP("CarWords", "To feet")},
    {"to_window", QT_TRANSLATE_NOOP("CarWords", "To window")},
    {"trip", QT_TRANSLATE_NOOP("CarWords", "Trip")},
    {"tune_knob_left", QT_TRANSLATE_NOOP("CarWords", "Tune knob left")},
    {"tune_knob_right", QT_TRANSLATE_NOOP("CarWords", "Tune knob right")},
    {"tyres", QT_TRANSLATE_NOOP("CarWords", "Tyres")},
    {"unit", QT_TRANSLATE_NOOP("CarWords", "Unit")},
    {"up", QT_TRANSLATE_NOOP("CarWords", "Up")},
    {"vehicle_number", QT_TRANSLATE_NOOP("CarWords", "Vehicle number")},
    {"version", QT_TRANSLATE_NOOP("CarWords", "Version")},
    {"view360", QT_TRANSLATE_NOOP("CarWords", "360 view")},
    {"voice", QT_TRANSLATE_NOOP("CarWords", "Voice")},
    {"volume_down", QT_TRANSLATE_NOOP("CarWords", "Volume down")},
    {"volume_knob_down", QT_TRANSLATE_NOOP("CarWords", "Volume knob down")},
    {"volume_knob_up", QT_TRANSLATE_NOOP("CarWords", "Volume knob up")},
    {"volume_up", QT_TRANSLATE_NOOP("CarWords", "Volume up")},
};

const QHash<QString, const char *> &textsByName()
{
    static const QHash<QString, const char *> texts = [] {
        QHash<QString, const char *> result;
        for (const Word &word : words) {
            result.insert(QLatin1String(word.name), word.text);
        }
        return result;
    }();
    return texts;
}

/// Where the number at the end of "volume_up_2" begins, with its underscore; the length of a name without
/// one.
int numberAt(const QString &name)
{
    int at = name.size();
    while (at > 0 && name.at(at - 1).isDigit()) {
        --at;
    }
    return at < name.size() && at > 1 && name.at(at - 1) == QLatin1Char('_') ? at - 1 : name.size();
}

QString readable(QString name)
{
    name.replace(QLatin1Char('.'), QLatin1Char(' '));
    name.replace(QLatin1Char('_'), QLatin1Char(' '));
    return name.left(1).toUpper() + name.mid(1);
}

} // namespace

QString CarWords::text(const QString &name)
{
    const int number = numberAt(name);
    const QString word = name.left(number);
    const char *known = textsByName().value(word);
    const QString text = known ? QCoreApplication::translate("CarWords", known) : readable(word);
    return number == name.size() ? text : text + QLatin1Char(' ') + name.mid(number + 1);
}

QString CarWords::propertyText(const QString &name)
{
    return text(name.mid(name.lastIndexOf(QLatin1Char('.')) + 1));
}
