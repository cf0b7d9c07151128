#include "carwords.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

namespace {

struct Word
{
    const char *name;
    const char *text;
};

const Word Words[] = {
    {"ac", QT_TRANSLATE_NOOP("CarWords", "A/C")},
    {"activated", QT_TRANSLATE_NOOP("CarWords", "Activated")},
    {"active", QT_TRANSLATE_NOOP("CarWords", "Active")},
    {"advance_warning", QT_TRANSLATE_NOOP("CarWords", "Advance warning")},
    {"all", QT_TRANSLATE_NOOP("CarWords", "All")},
    {"angle", QT_TRANSLATE_NOOP("CarWords", "Angle")},
    {"application", QT_TRANSLATE_NOOP("CarWords", "Application")},
    {"application_none", QT_TRANSLATE_NOOP("CarWords", "Application none")},
    {"assist", QT_TRANSLATE_NOOP("CarWords", "Assist")},
    {"auto", QT_TRANSLATE_NOOP("CarWords", "Auto")},
    {"auto_lock", QT_TRANSLATE_NOOP("CarWords", "Auto lock")},
    {"automatic", QT_TRANSLATE_NOOP("CarWords", "Automatic")},
    {"average_consumption", QT_TRANSLATE_NOOP("CarWords", "Average consumption")},
    {"average_speed", QT_TRANSLATE_NOOP("CarWords", "Average speed")},
    {"back", QT_TRANSLATE_NOOP("CarWords", "Back")},
    {"backwards", QT_TRANSLATE_NOOP("CarWords", "Backwards")},
    {"beyond", QT_TRANSLATE_NOOP("CarWords", "Beyond the end")},
    {"blue", QT_TRANSLATE_NOOP("CarWords", "Blue")},
    {"box", QT_TRANSLATE_NOOP("CarWords", "Box")},
    {"brake", QT_TRANSLATE_NOOP("CarWords", "Brake")},
    {"C", QT_TRANSLATE_NOOP("CarWords", "°C")},
    {"call", QT_TRANSLATE_NOOP("CarWords", "Call")},
    {"camera", QT_TRANSLATE_NOOP("CarWords", "Camera")},
    {"car_type", QT_TRANSLATE_NOOP("CarWords", "Car type")},
    {"check", QT_TRANSLATE_NOOP("CarWords", "Check")},
    {"circulation", QT_TRANSLATE_NOOP("CarWords", "Circulation")},
    {"climate", QT_TRANSLATE_NOOP("CarWords", "Climate")},
    {"close", QT_TRANSLATE_NOOP("CarWords", "Close")},
    {"codes", QT_TRANSLATE_NOOP("CarWords", "Codes")},
    {"colour", QT_TRANSLATE_NOOP("CarWords", "Colour")},
    {"comfort", QT_TRANSLATE_NOOP("CarWords", "Comfort")},
    {"coming_home", QT_TRANSLATE_NOOP("CarWords", "Coming home")},
    {"confirmation", QT_TRANSLATE_NOOP("CarWords", "Confirmation")},
    {"consumers", QT_TRANSLATE_NOOP("CarWords", "Consumers")},
    {"consumption", QT_TRANSLATE_NOOP("CarWords", "Consumption")},
    {"convenience", QT_TRANSLATE_NOOP("CarWords", "Convenience")},
    {"cursor_down", QT_TRANSLATE_NOOP("CarWords", "Cursor down")},
    {"cursor_left", QT_TRANSLATE_NOOP("CarWords", "Cursor left")},
    {"cursor_right", QT_TRANSLATE_NOOP("CarWords", "Cursor right")},
    {"cursor_up", QT_TRANSLATE_NOOP("CarWords", "Cursor up")},
    {"days", QT_TRANSLATE_NOOP("CarWords", "Days")},
    {"daytime", QT_TRANSLATE_NOOP("CarWords", "Daytime")},
    {"defrost", QT_TRANSLATE_NOOP("CarWords", "Defrost")},
    {"digit", QT_TRANSLATE_NOOP("CarWords", "Digit")},
    {"display", QT_TRANSLATE_NOOP("CarWords", "Display")},
    {"distance", QT_TRANSLATE_NOOP("CarWords", "Distance")},
    {"distance_warning", QT_TRANSLATE_NOOP("CarWords", "Distance warning")},
    {"doors", QT_TRANSLATE_NOOP("CarWords", "Doors")},
    {"down", QT_TRANSLATE_NOOP("CarWords", "Down")},
    {"drive", QT_TRANSLATE_NOOP("CarWords", "Drive")},
    {"drive_program", QT_TRANSLATE_NOOP("CarWords", "Drive program")},
    {"driver", QT_TRANSLATE_NOOP("CarWords", "Driver")},
    {"driver_alert", QT_TRANSLATE_NOOP("CarWords", "Driver alert")},
    {"dynamic", QT_TRANSLATE_NOOP("CarWords", "Dynamic")},
    {"early", QT_TRANSLATE_NOOP("CarWords", "Early")},
    {"eco", QT_TRANSLATE_NOOP("CarWords", "Eco")},
    {"eco_tips", QT_TRANSLATE_NOOP("CarWords", "Eco tips")},
    {"engine", QT_TRANSLATE_NOOP("CarWords", "Engine")},
    {"enter", QT_TRANSLATE_NOOP("CarWords", "Enter")},
    {"esc", QT_TRANSLATE_NOOP("CarWords", "ESC")},
    {"F", QT_TRANSLATE_NOOP("CarWords", "°F")},
    {"factory", QT_TRANSLATE_NOOP("CarWords", "Factory screen")},
    {"fan", QT_TRANSLATE_NOOP("CarWords", "Fan")},
    {"fan_auto", QT_TRANSLATE_NOOP("CarWords", "Fan auto")},
    {"far", QT_TRANSLATE_NOOP("CarWords", "Far")},
    {"fault", QT_TRANSLATE_NOOP("CarWords", "Fault")},
    {"firmware", QT_TRANSLATE_NOOP("CarWords", "Firmware")},
    {"fold", QT_TRANSLATE_NOOP("CarWords", "Fold")},
    {"footwell", QT_TRANSLATE_NOOP("CarWords", "Footwell")},
    {"forward", QT_TRANSLATE_NOOP("CarWords", "Forward")},
    {"front", QT_TRANSLATE_NOOP("CarWords", "Front")},
    {"front_left", QT_TRANSLATE_NOOP("CarWords", "Front left")},
    {"front_right", QT_TRANSLATE_NOOP("CarWords", "Front right")},
    {"front_tone", QT_TRANSLATE_NOOP("CarWords", "Front tone")},
    {"front_volume", QT_TRANSLATE_NOOP("CarWords", "Front volume")},
    {"front_window", QT_TRANSLATE_NOOP("CarWords", "Front window")},
    {"full", QT_TRANSLATE_NOOP("CarWords", "Full")},
    {"function_call", QT_TRANSLATE_NOOP("CarWords", "Function call")},
    {"function_forward", QT_TRANSLATE_NOOP("CarWords", "Function forward")},
    {"function_hangup", QT_TRANSLATE_NOOP("CarWords", "Function hang up")},
    {"function_next", QT_TRANSLATE_NOOP("CarWords", "Function next")},
    {"function_previous", QT_TRANSLATE_NOOP("CarWords", "Function previous")},
    {"function_rewind", QT_TRANSLATE_NOOP("CarWords", "Function rewind")},
    {"gear", QT_TRANSLATE_NOOP("CarWords", "Gear")},
    {"hangup", QT_TRANSLATE_NOOP("CarWords", "Hang up")},
    {"head", QT_TRANSLATE_NOOP("CarWords", "Head")},
    {"high", QT_TRANSLATE_NOOP("CarWords", "High")},
    {"hill_descent", QT_TRANSLATE_NOOP("CarWords", "Hill descent")},
    {"home", QT_TRANSLATE_NOOP("CarWords", "Home")},
    {"illumination", QT_TRANSLATE_NOOP("CarWords", "Illumination")},
    {"in", QT_TRANSLATE_NOOP("CarWords", "In")},
    {"indicator", QT_TRANSLATE_NOOP("CarWords", "Indicator")},
    {"individual", QT_TRANSLATE_NOOP("CarWords", "Individual")},
    {"inspection", QT_TRANSLATE_NOOP("CarWords", "Inspection")},
    {"instruments", QT_TRANSLATE_NOOP("CarWords", "Instruments")},
    {"key", QT_TRANSLATE_NOOP("CarWords", "Key")},
    {"known", QT_TRANSLATE_NOOP("CarWords", "Known")},
    {"lane", QT_TRANSLATE_NOOP("CarWords", "Lane")},
    {"lane_change", QT_TRANSLATE_NOOP("CarWords", "Lane change")},
    {"lane_keeping", QT_TRANSLATE_NOOP("CarWords", "Lane keeping")},
    {"last_distance", QT_TRANSLATE_NOOP("CarWords", "Last distance")},
    {"late", QT_TRANSLATE_NOOP("CarWords", "Late")},
    {"leaving_home", QT_TRANSLATE_NOOP("CarWords", "Leaving home")},
    {"left", QT_TRANSLATE_NOOP("CarWords", "Left")},
    {"light", QT_TRANSLATE_NOOP("CarWords", "Light")},
    {"lighting", QT_TRANSLATE_NOOP("CarWords", "Lighting")},
    {"load", QT_TRANSLATE_NOOP("CarWords", "Load")},
    {"long_term", QT_TRANSLATE_NOOP("CarWords", "Long term")},
    {"loss", QT_TRANSLATE_NOOP("CarWords", "Loss")},
    {"low", QT_TRANSLATE_NOOP("CarWords", "Low")},
    {"lower_reversing", QT_TRANSLATE_NOOP("CarWords", "Lower reversing")},
    {"medium", QT_TRANSLATE_NOOP("CarWords", "Medium")},
    {"memory", QT_TRANSLATE_NOOP("CarWords", "Memory")},
    {"message", QT_TRANSLATE_NOOP("CarWords", "Message")},
    {"mirrors", QT_TRANSLATE_NOOP("CarWords", "Mirrors")},
    {"mode", QT_TRANSLATE_NOOP("CarWords", "Mode")},
    {"motorway", QT_TRANSLATE_NOOP("CarWords", "Motorway")},
    {"mute", QT_TRANSLATE_NOOP("CarWords", "Mute")},
    {"next", QT_TRANSLATE_NOOP("CarWords", "Next")},
    {"none", QT_TRANSLATE_NOOP("CarWords", "None")},
    {"normal", QT_TRANSLATE_NOOP("CarWords", "Normal")},
    {"off", QT_TRANSLATE_NOOP("CarWords", "Off")},
    {"offroad", QT_TRANSLATE_NOOP("CarWords", "Off-road")},
    {"offroad_climate", QT_TRANSLATE_NOOP("CarWords", "Off-road climate")},
    {"offroad_individual", QT_TRANSLATE_NOOP("CarWords", "Off-road individual")},
    {"oil", QT_TRANSLATE_NOOP("CarWords", "Oil")},
    {"oil_temperature", QT_TRANSLATE_NOOP("CarWords", "Oil temperature")},
    {"opening", QT_TRANSLATE_NOOP("CarWords", "Opening")},
    {"orange", QT_TRANSLATE_NOOP("CarWords", "Orange")},
    {"out", QT_TRANSLATE_NOOP("CarWords", "Out")},
    {"panel", QT_TRANSLATE_NOOP("CarWords", "Key")},
    {"parking", QT_TRANSLATE_NOOP("CarWords", "Parking")},
    {"phone", QT_TRANSLATE_NOOP("CarWords", "Phone")},
    {"play", QT_TRANSLATE_NOOP("CarWords", "Play")},
    {"power", QT_TRANSLATE_NOOP("CarWords", "Power")},
    {"pressure", QT_TRANSLATE_NOOP("CarWords", "Pressure")},
    {"previous", QT_TRANSLATE_NOOP("CarWords", "Previous")},
    {"radar", QT_TRANSLATE_NOOP("CarWords", "Radar")},
    {"radar_maxima", QT_TRANSLATE_NOOP("CarWords", "Radar maxima")},
    {"radar_sound", QT_TRANSLATE_NOOP("CarWords", "Radar sound")},
    {"rain", QT_TRANSLATE_NOOP("CarWords", "Rain")},
    {"rain_wiping", QT_TRANSLATE_NOOP("CarWords", "Rain wiping")},
    {"range", QT_TRANSLATE_NOOP("CarWords", "Range")},
    {"rear", QT_TRANSLATE_NOOP("CarWords", "Rear")},
    {"rear_left", QT_TRANSLATE_NOOP("CarWords", "Rear left")},
    {"rear_right", QT_TRANSLATE_NOOP("CarWords", "Rear right")},
    {"rear_tone", QT_TRANSLATE_NOOP("CarWords", "Rear tone")},
    {"rear_volume", QT_TRANSLATE_NOOP("CarWords", "Rear volume")},
    {"rear_window", QT_TRANSLATE_NOOP("CarWords", "Rear window")},
    {"rear_wiping", QT_TRANSLATE_NOOP("CarWords", "Rear wiping")},
    {"reasons", QT_TRANSLATE_NOOP("CarWords", "Reasons")},
    {"remote_key", QT_TRANSLATE_NOOP("CarWords", "Remote key")},
    {"reports", QT_TRANSLATE_NOOP("CarWords", "Reports")},
    {"reverse", QT_TRANSLATE_NOOP("CarWords", "Reverse gear")},
    {"rewind", QT_TRANSLATE_NOOP("CarWords", "Rewind")},
    {"right", QT_TRANSLATE_NOOP("CarWords", "Right")},
    {"screen", QT_TRANSLATE_NOOP("CarWords", "Screen")},
    {"seat", QT_TRANSLATE_NOOP("CarWords", "Seat")},
    {"service", QT_TRANSLATE_NOOP("CarWords", "Service")},
    {"settings", QT_TRANSLATE_NOOP("CarWords", "Settings")},
    {"show", QT_TRANSLATE_NOOP("CarWords", "Show")},
    {"side", QT_TRANSLATE_NOOP("CarWords", "Side")},
    {"since_refuel", QT_TRANSLATE_NOOP("CarWords", "Since refuelling")},
    {"since_start", QT_TRANSLATE_NOOP("CarWords", "Since start")},
    {"single", QT_TRANSLATE_NOOP("CarWords", "Single")},
    {"snow", QT_TRANSLATE_NOOP("CarWords", "Snow")},
    {"speed", QT_TRANSLATE_NOOP("CarWords", "Speed")},
    {"speed_warning", QT_TRANSLATE_NOOP("CarWords", "Speed warning")},
    {"sport", QT_TRANSLATE_NOOP("CarWords", "Sport")},
    {"standard", QT_TRANSLATE_NOOP("CarWords", "Standard")},
    {"startstop", QT_TRANSLATE_NOOP("CarWords", "Start-stop")},
    {"steering", QT_TRANSLATE_NOOP("CarWords", "Steering")},
    {"stop", QT_TRANSLATE_NOOP("CarWords", "Stop")},
    {"sunroof", QT_TRANSLATE_NOOP("CarWords", "Sunroof")},
    {"switch_on", QT_TRANSLATE_NOOP("CarWords", "Switch on")},
    {"synchronous", QT_TRANSLATE_NOOP("CarWords", "Synchronous")},
    {"tailgate", QT_TRANSLATE_NOOP("CarWords", "Tailgate")},
    {"time", QT_TRANSLATE_NOOP("CarWords", "Time")},
    {"to_face", QT_TRANSLATE_NOOP("CarWords", "To face")},
    {"to_feet", QT_TRANSLATE_NOOP("CarWords", "To feet")},
    {"to_window", QT_TRANSLATE_NOOP("CarWords", "To window")},
    {"traffic", QT_TRANSLATE_NOOP("CarWords", "Traffic")},
    {"trip", QT_TRANSLATE_NOOP("CarWords", "Trip")},
    {"tune_knob_left", QT_TRANSLATE_NOOP("CarWords", "Tune knob left")},
    {"tune_knob_right", QT_TRANSLATE_NOOP("CarWords", "Tune knob right")},
    {"twice", QT_TRANSLATE_NOOP("CarWords", "Twice")},
    {"tyres", QT_TRANSLATE_NOOP("CarWords", "Tyres")},
    {"unit", QT_TRANSLATE_NOOP("CarWords", "Unit")},
    {"units", QT_TRANSLATE_NOOP("CarWords", "Units")},
    {"up", QT_TRANSLATE_NOOP("CarWords", "Up")},
    {"vehicle_number", QT_TRANSLATE_NOOP("CarWords", "Vehicle number")},
    {"version", QT_TRANSLATE_NOOP("CarWords", "Version")},
    {"very_close", QT_TRANSLATE_NOOP("CarWords", "Very close")},
    {"very_far", QT_TRANSLATE_NOOP("CarWords", "Very far")},
    {"view360", QT_TRANSLATE_NOOP("CarWords", "360 view")},
    {"voice", QT_TRANSLATE_NOOP("CarWords", "Voice")},
    {"volume", QT_TRANSLATE_NOOP("CarWords", "Volume")},
    {"volume_down", QT_TRANSLATE_NOOP("CarWords", "Volume down")},
    {"volume_knob_down", QT_TRANSLATE_NOOP("CarWords", "Volume knob down")},
    {"volume_knob_up", QT_TRANSLATE_NOOP("CarWords", "Volume knob up")},
    {"volume_up", QT_TRANSLATE_NOOP("CarWords", "Volume up")},
    {"warning", QT_TRANSLATE_NOOP("CarWords", "Warning")},
    {"white", QT_TRANSLATE_NOOP("CarWords", "White")},
    {"wiper_position", QT_TRANSLATE_NOOP("CarWords", "Wiper position")},
};

const QHash<QString, const char *> &textsByName()
{
    static const QHash<QString, const char *> texts = [] {
        QHash<QString, const char *> result;
        for (const Word &word : Words) {
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

/// Units ("km/h", "mpg(UK)") stay as they are.
QString readable(QString name)
{
    static const QStringList units = {"bar", "gal(UK)", "gal(US)", "km",      "km/h", "km/L",
                                      "kPa", "mi",      "mpg(UK)", "mpg(US)", "mph",  "psi"};
    if (units.contains(name)) {
        return name;
    }
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
