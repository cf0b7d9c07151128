#include "carsettings.h"

namespace {

CarProperty onOff(const char *name, bool isOn = false)
{
    return {name, CarProperty::Switch, 0, 0, 0, "", {}, isOn ? "on" : "off"};
}

CarProperty choice(const char *name, const QStringList &choices, int initial = 0)
{
    return {name, CarProperty::Choice, 0, 0, 0, "", choices, choices.at(initial)};
}

CarProperty number(const QString &name, int minimum, int maximum, int step, const char *unit, int initial)
{
    return {name, CarProperty::Integer,    double(minimum), double(maximum), double(step), unit,
            {},   QString::number(initial)};
}

CarProperty percent(const char *name, int initial)
{
    return number(name, 0, 100, 10, "%", initial);
}

CarProperty list(const char *name, int minimum, int maximum, int most)
{
    return {name, CarProperty::NumberList, double(minimum), double(maximum), double(most), "", {}, ""};
}

QVector<CarProperty> trip(const QString &name, const char *distance, const char *consumption, int speed,
                          int minutes)
{
    return {{name + ".distance", CarProperty::Real, 0, 999999, 1, "km", {}, distance},
            {name + ".consumption", CarProperty::Real, 0, 99.9, 0.1, "L/100km", {}, consumption},
            number(name + ".speed", 0, 400, 1, "km/h", speed),
            number(name + ".time", 0, 65535, 1, "min", minutes)};
}

QVector<CarProperty> drivingData()
{
    return QVector<CarProperty>()
           << number("trip.range", 0, 2000, 10, "km", 520)
           << CarProperty{"trip.consumption", CarProperty::Real, 0, 99.9, 0.1, "L/100km", {}, "0"}
           << CarProperty{"trip.average.consumption", CarProperty::Real, 0, 99.9, 0.1, "L/100km", {}, "6.8"}
           << CarProperty{"trip.average.speed", CarProperty::Real, 0, 400, 0.1, "km/h", {}, "52.5"}
           << CarProperty{"trip.average.distance", CarProperty::Real, 0, 13107, 0.1, "km", {}, "734.2"}
           << trip("trip.since_start", "0", "0", 0, 0) << trip("trip.since_refuel", "182.4", "6.4", 54, 203)
           << trip("trip.long_term", "12873.6", "6.9", 48, 16092);
}

// The warning stands before the states, and so is taken back before the states are told again: a unit that
// hears of a warning shows it in place of the states.
QVector<CarProperty> tyres()
{
    const QStringList states = {"normal", "low", "high"};
    return {onOff("tyres.warning.front_left"),
            onOff("tyres.warning.front_right"),
            onOff("tyres.warning.rear_left"),
            onOff("tyres.warning.rear_right"),
            choice("tyres.message", {"normal", "check", "low", "loss"}),
            choice("tyres.front_left", states),
            choice("tyres.front_right", states),
            choice("tyres.rear_left", states),
            choice("tyres.rear_right", states)};
}

QVector<CarProperty> messagesAndService()
{
    return {onOff("startstop.active", true),
            list("startstop.reasons", 0, 33, 6),
            list("reports.codes", 0, 65535, 20),
            list("consumers.active", 1, 18, 3),
            {"service.vehicle_number", CarProperty::Text, 0, 17, 0, "", {}, "WVWZZZ00000000042"},
            onOff("service.known", true),
            number("service.inspection.days", -3000, 3000, 10, "d", 214),
            number("service.inspection.distance", -60000, 60000, 100, "km", 11800),
            number("service.oil.days", -3000, 3000, 10, "d", 152),
            number("service.oil.distance", -60000, 60000, 100, "km", 8300),
            onOff("service.wiper_position")};
}

QVector<CarProperty> amplifier()
{
    return {number("amplifier.volume", 0, 40, 1, "", 12),
            number("amplifier.bass", -5, 5, 1, "", 0),
            number("amplifier.treble", -5, 5, 1, "", 0),
            number("amplifier.balance", -5, 5, 1, "", 0),
            number("amplifier.fader", -5, 5, 1, "", 0),
            number("amplifier.surround", -5, 5, 1, "", 0),
            number("amplifier.speed_volume", 0, 5, 1, "", 2),
            onOff("amplifier.centerpoint"),
            onOff("amplifier.driver_stage")};
}

QVector<CarProperty> parkingPicture()
{
    return {choice("parking_picture.buttons",
                   {"none", "pa", "perpendicular", "parallel", "arrows", "cancel", "introduction"}),
            choice("parking_picture.camera", {"front", "rear"}),
            number("parking_picture.message", 0, 0x4F, 1, "", 0), // the box's number
            onOff("parking_picture.grey.up"),
            onOff("parking_picture.grey.down"),
            onOff("parking_picture.grey.left"),
            onOff("parking_picture.grey.right"),
            onOff("parking_picture.grey.down_right"),
            onOff("parking_picture.grey.down_left"),
            onOff("assist.lane_departure", true),
            onOff("assist.blind_spot", true),
            onOff("assist.moving_object")};
}

// Beside the settings that a Volkswagen has: those of cars whose boxes tell them one by one, or all at once.
QVector<CarProperty> options()
{
    const QStringList levels = {"low", "middle", "high"};
    return {choice("options.display.language", {"chinese", "english"}),
            choice("options.display.warning_volume", levels, 1),
            choice("options.display.indicator_volume", {"1", "2", "3"}, 1),
            number("options.display.style", 1, 4, 1, "", 1),
            number("options.display.night_brightness", 0, 100, 5, "%", 50),
            onOff("options.display.eco", true),
            onOff("options.climate.auto_compressor", true),
            choice("options.climate.auto_recirculation", {"auto", "by_hand"}),
            choice("options.climate.comfort_curve", {"slow", "normal", "fast"}, 1),
            onOff("options.climate.ioniser"),
            choice("options.climate.ioniser_mode", {"off", "relax", "clean"}),
            onOff("options.climate.ioniser_at_start"),
            onOff("options.climate.fresh_air_cycle"),
            onOff("options.seat.auto_heating_driver"),
            onOff("options.seat.auto_heating_passenger"),
            onOff("options.seat.welcome"),
            onOff("options.seat.key_position"),
            number("options.assist.speed_limit", 0, 200, 10, "km/h", 120),
            onOff("options.assist.blind_spot", true),
            number("options.remote.power_time", 0, 30, 1, "min", 10),
            number("options.remote.start_time", 0, 30, 1, "min", 10),
            choice("options.remote.unlock", {"all", "front_left"}),
            onOff("options.remote.window_and_roof"),
            choice("options.drive.steering_mode", {"sport", "standard", "comfort"}, 1),
            onOff("options.opening.speed_lock", true),
            onOff("options.opening.auto_unlock", true),
            onOff("options.opening.lock_sound"),
            onOff("options.wipers.front_service"),
            onOff("options.wipers.rear_reversing", true),
            choice("options.light.follow_me", {"off", "dipped", "dipped_and_fog"}),
            onOff("options.light.turning_fog"),
            onOff("options.light.daytime", true),
            choice("options.light.sensor", levels, 1),
            onOff("options.light.cabin", true),
            onOff("options.light.welcome", true),
            onOff("options.mirrors.fold"),
            choice("options.parking.way", {"parallel", "perpendicular", "angled"}),
            onOff("options.parking.front", true),
            onOff("options.parking.rear", true),
            onOff("options.parking.side"),
            onOff("options.camera.smart_entry", true),
            onOff("options.camera.first_forward"),
            onOff("options.camera.start_animation", true),
            onOff("options.camera.left_indicator"),
            onOff("options.camera.right_indicator"),
            onOff("options.camera.steering_wheel"),
            onOff("options.camera.forward_gear")};
}

QVector<CarProperty> driving()
{
    return {choice("settings.esc", {"off", "activated", "sport"}, 1),
            onOff("settings.tyres.speed_warning"),
            number("settings.tyres.speed", 20, 240, 10, "", 120), // in the unit of settings.units.speed
            choice("settings.tyres.load", {"comfort", "standard", "full"}, 1),
            onOff("settings.assist.lane", true),
            onOff("settings.assist.lane_keeping"),
            onOff("settings.assist.driver_alert", true),
            onOff("settings.assist.front", true),
            onOff("settings.assist.advance_warning"),
            onOff("settings.assist.distance_warning"),
            onOff("settings.assist.last_distance"),
            choice("settings.assist.drive_program", {"eco", "normal", "sport"}, 1),
            choice("settings.assist.distance", {"very_close", "close", "far", "very_far"}, 2),
            onOff("settings.assist.hill_descent"),
            onOff("settings.parking.active", true),
            onOff("settings.parking.automatic"),
            onOff("settings.parking.brake"),
            number("settings.parking.front_volume", 1, 9, 1, "", 5),
            number("settings.parking.front_tone", 1, 9, 1, "", 5),
            number("settings.parking.rear_volume", 1, 9, 1, "", 5),
            number("settings.parking.rear_tone", 1, 9, 1, "", 5),
            onOff("settings.parking.radar_sound", true)};
}

QVector<CarProperty> lightAndMirrors()
{
    return {choice("settings.light.switch_on", {"early", "medium", "late"}, 1),
            onOff("settings.light.rain", true),
            onOff("settings.light.lane_change", true),
            onOff("settings.light.daytime", true),
            percent("settings.light.instruments", 70),
            number("settings.light.coming_home", 0, 30, 5, "s", 15),
            number("settings.light.leaving_home", 0, 30, 5, "s", 10),
            choice("settings.light.traffic", {"right", "left"}),
            number("settings.light.distance", 0, 7, 1, "", 0),
            percent("settings.light.doors", 40),
            percent("settings.light.footwell", 50),
            onOff("settings.light.motorway"),
            onOff("settings.light.dynamic"),
            percent("settings.light.head", 60),
            percent("settings.light.front", 60),
            percent("settings.light.all", 60),
            choice("settings.light.colour", {"off", "white", "orange", "blue"}, 1),
            onOff("settings.mirrors.synchronous"),
            onOff("settings.mirrors.lower_reversing", true),
            onOff("settings.mirrors.rain_wiping", true),
            onOff("settings.mirrors.rear_wiping", true),
            onOff("settings.mirrors.fold")};
}

QVector<CarProperty> openingAndDisplay()
{
    return {choice("settings.opening.convenience", {"off", "driver", "all"}, 1),
            choice("settings.opening.doors", {"side", "single", "all"}, 2),
            onOff("settings.opening.auto_lock", true),
            onOff("settings.opening.tailgate"),
            onOff("settings.opening.confirmation", true),
            onOff("settings.opening.front_window"),
            onOff("settings.opening.rear_window"),
            onOff("settings.opening.sunroof"),
            onOff("settings.display.consumption", true),
            onOff("settings.display.average_consumption", true),
            onOff("settings.display.convenience"),
            onOff("settings.display.eco_tips"),
            onOff("settings.display.time", true),
            onOff("settings.display.distance", true),
            onOff("settings.display.average_speed", true),
            onOff("settings.display.speed"),
            onOff("settings.display.speed_warning"),
            onOff("settings.display.oil_temperature")};
}

QVector<CarProperty> unitsAndProfiles()
{
    return {choice("settings.units.distance", {"km", "mi"}),
            choice("settings.units.speed", {"km/h", "mph"}),
            choice("settings.units.volume", {"L", "gal(UK)", "gal(US)"}),
            choice("settings.units.consumption", {"mpg(UK)", "L/100km", "mpg(US)", "km/L"}, 1),
            choice("settings.units.pressure", {"bar", "psi", "kPa"}),
            onOff("settings.seat.remote_key", true),
            onOff("settings.seat.memory"),
            choice("settings.drive.mode",
                   {"normal", "sport", "eco", "individual", "snow", "offroad", "offroad_individual"}),
            choice("settings.drive.steering", {"normal", "sport"}),
            choice("settings.drive.engine", {"normal", "sport", "eco"}),
            choice("settings.drive.climate", {"normal", "eco"}),
            choice("settings.drive.lighting", {"normal", "sport", "eco"}),
            choice("settings.drive.offroad_climate", {"normal", "eco"})};
}

} // namespace

QVector<CarProperty> carSettings()
{
    return drivingData() + amplifier() + parkingPicture() + options() + tyres() + messagesAndService() +
           driving() + lightAndMirrors() + openingAndDisplay() + unitsAndProfiles();
}
