#include "volkswagensettings.h"

namespace {
const int None = 0;
}

const QVector<VolkswagenSetting> &VolkswagenSetting::all()
{
    static const QVector<VolkswagenSetting> settings = {
        // item, property, page, byte, lowest bit, width, scale, bias
        {16, "settings.esc", 0x10, 1, 0, 8, 1, 0},

        {32, "settings.tyres.speed_warning", 0x20, 1, 0, 1, 1, 0},
        {None, "settings.units.speed", 0x20, 1, 1, 1, 1, 0},
        {33, "settings.tyres.speed", 0x20, 2, 0, 8, 1, 0},
        {35, "settings.tyres.load", 0x20, 3, 0, 8, 1, 0},

        {48, "settings.assist.lane", 0x30, 1, 0, 1, 1, 0},
        {49, "settings.assist.driver_alert", 0x30, 1, 1, 1, 1, 0},
        {54, "settings.assist.lane_keeping", 0x30, 2, 0, 1, 1, 0},

        {50, "settings.assist.last_distance", 0x31, 1, 0, 1, 1, 0},
        {51, "settings.assist.front", 0x31, 1, 1, 1, 1, 0},
        {52, "settings.assist.advance_warning", 0x31, 1, 2, 1, 1, 0},
        {53, "settings.assist.distance_warning", 0x31, 1, 3, 1, 1, 0},
        {55, "settings.assist.drive_program", 0x31, 2, 0, 2, 1, 1},
        {56, "settings.assist.distance", 0x31, 2, 4, 4, 1, 0},
        {57, "settings.assist.hill_descent", 0x31, 3, 0, 1, 1, 0},

        {64, "settings.parking.automatic", 0x40, 1, 0, 1, 1, 0},
        {69, "settings.parking.active", 0x40, 1, 1, 1, 1, 0},
        {58, "settings.parking.brake", 0x40, 1, 2, 1, 1, 0},
        {65, "settings.parking.front_volume", 0x40, 2, 0, 4, 1, 0},
        {66, "settings.parking.front_tone", 0x40, 2, 4, 4, 1, 0},
        {67, "settings.parking.rear_volume", 0x40, 3, 0, 4, 1, 0},
        {68, "settings.parking.rear_tone", 0x40, 3, 4, 4, 1, 0},
        {171, "settings.parking.radar_sound", None, 0, 0, 0, 1, 0},

        {80, "settings.light.switch_on", 0x50, 1, 0, 3, 1, 0},
        {81, "settings.light.rain", 0x50, 1, 4, 1, 1, 0},
        {82, "settings.light.lane_change", 0x50, 1, 5, 1, 1, 0},
        {200, "settings.light.daytime", 0x50, 1, 6, 1, 1, 0},
        {83, "settings.light.instruments", 0x50, 2, 0, 8, 1, 0},
        {84, "settings.light.coming_home", 0x50, 3, 0, 8, 1, 0},
        {85, "settings.light.leaving_home", 0x50, 4, 0, 8, 1, 0},

        {86, "settings.light.traffic", 0x51, 1, 0, 1, 1, 0},
        {95, "settings.light.distance", 0x51, 1, 1, 3, 1, 0},
        {87, "settings.light.doors", 0x51, 2, 0, 8, 1, 0},
        {88, "settings.light.footwell", 0x51, 3, 0, 8, 1, 0},
        {89, "settings.light.motorway", 0x51, 4, 0, 1, 1, 0},
        {90, "settings.light.dynamic", 0x51, 4, 1, 1, 1, 0},

        {91, "settings.light.head", 0x52, 1, 0, 8, 1, 0},
        {92, "settings.light.front", 0x52, 2, 0, 8, 1, 0},
        {94, "settings.light.colour", 0x52, 3, 0, 8, 1, 0},
        {93, "settings.light.all", 0x52, 4, 0, 8, 1, 0},

        {96, "settings.mirrors.synchronous", 0x60, 1, 0, 1, 1, 0},
        {97, "settings.mirrors.lower_reversing", 0x60, 1, 1, 1, 1, 0},
        {98, "settings.mirrors.rain_wiping", 0x60, 1, 2, 1, 1, 0},
        {99, "settings.mirrors.rear_wiping", 0x60, 1, 3, 1, 1, 0},
        {100, "settings.mirrors.fold", 0x60, 1, 4, 1, 1, 0},

        {112, "settings.opening.convenience", 0x70, 1, 0, 3, 1, 0},
        {113, "settings.opening.doors", 0x70, 1, 4, 3, 1, 0},
        {114, "settings.opening.auto_lock", 0x70, 2, 0, 1, 1, 0},
        {116, "settings.opening.tailgate", 0x70, 2, 1, 1, 1, 0},
        {102, "settings.opening.front_window", 0x70, 2, 2, 1, 1, 0},
        {103, "settings.opening.rear_window", 0x70, 2, 3, 1, 1, 0},
        {104, "settings.opening.sunroof", 0x70, 2, 4, 1, 1, 0},
        {201, "settings.opening.confirmation", 0x70, 3, 0, 1, 1, 0},

        {128, "settings.display.consumption", 0x80, 1, 0, 1, 1, 0},
        {129, "settings.display.average_consumption", 0x80, 1, 1, 1, 1, 0},
        {130, "settings.display.convenience", 0x80, 1, 2, 1, 1, 0},
        {131, "settings.display.eco_tips", 0x80, 1, 3, 1, 1, 0},
        {132, "settings.display.time", 0x80, 1, 4, 1, 1, 0},
        {133, "settings.display.distance", 0x80, 1, 5, 1, 1, 0},
        {134, "settings.display.average_speed", 0x80, 1, 6, 1, 1, 0},
        {135, "settings.display.speed", 0x80, 1, 7, 1, 1, 0},
        {136, "settings.display.speed_warning", 0x80, 2, 0, 1, 1, 0},
        {137, "settings.display.oil_temperature", 0x80, 2, 1, 1, 1, 0},

        {144, "settings.units.distance", 0x90, 1, 0, 1, 1, 0},
        {145, "settings.units.speed", 0x90, 1, 1, 1, 1, 0},
        {146, "climate.unit", 0x90, 1, 2, 1, 1, 0},
        {147, "settings.units.volume", 0x90, 1, 4, 3, 1, 0},
        {148, "settings.units.consumption", 0x90, 2, 0, 3, 1, 0},
        {149, "settings.units.pressure", 0x90, 2, 4, 3, 1, 0},

        {208, "settings.drive.mode", 0xA0, 1, 0, 4, 1, 0},
        {209, "settings.drive.steering", 0xA0, 2, 0, 4, 1, 0},
        {210, "settings.drive.engine", 0xA0, 2, 4, 4, 1, 0},
        {211, "settings.drive.climate", 0xA0, 3, 0, 4, 2, 0},
        {213, "settings.drive.lighting", 0xA0, 3, 4, 4, 1, 0},
        {228, "settings.drive.offroad_climate", None, 0, 0, 0, 2, 0},

        {202, "settings.seat.remote_key", 0xB0, 1, 0, 1, 1, 0},
        {203, "settings.seat.memory", 0xB0, 1, 1, 1, 1, 0},

        {None, "settings.drive.mode", 0xB1, 1, 0, 3, 1, 0},

        // Its place is in the service data.
        {140, "service.wiper_position", None, 0, 0, 0, 1, 0},
    };
    return settings;
}

QVector<quint8> VolkswagenSetting::pages()
{
    QVector<quint8> result;
    for (const VolkswagenSetting &setting : all()) {
        if (setting.page != None && !result.contains(setting.page)) {
            result << setting.page;
        }
    }
    return result;
}

QStringList VolkswagenSetting::propertiesOf(quint8 page)
{
    QStringList result;
    for (const VolkswagenSetting &setting : all()) {
        if (setting.page == page) {
            result << setting.property;
        }
    }
    return result;
}

QByteArray VolkswagenSetting::pageData(quint8 page, const SimulatedCar &car)
{
    QByteArray data(1, char(page));
    for (const VolkswagenSetting &setting : all()) {
        if (setting.page == page) {
            data = data.leftJustified(setting.byte + 1, '\0');
            data[setting.byte] = char(quint8(data.at(setting.byte)) | setting.field(car) << setting.low);
        }
    }
    return data;
}

const VolkswagenSetting *VolkswagenSetting::find(int item)
{
    for (const VolkswagenSetting &setting : all()) {
        if (setting.item == item && item != None) {
            return &setting;
        }
    }
    return nullptr;
}

bool VolkswagenSetting::write(SimulatedCar *car, int written) const
{
    const int value = (written - bias) / scale;
    if (value * scale + bias != written) {
        return false;
    }
    const CarProperty *known = CarProperty::find(property);
    if (known->kind == CarProperty::Choice) {
        return value >= 0 && value < known->choices.size() &&
               car->setValue(property, known->choices.at(value));
    }
    return car->setValue(property, value);
}

int VolkswagenSetting::field(const SimulatedCar &car) const
{
    const bool isChoice = CarProperty::find(property)->kind == CarProperty::Choice;
    const int value = isChoice ? car.choice(property) : car.number(property);
    return (value * scale + bias) & ((1 << width) - 1);
}
