#include "vwmenu.h"

namespace VwMenu {

namespace {

Row link(int opens, const char *label)
{
    return {782, Link, opens, label, "", "", 0, 0, 0, 0};
}
Row plain(int page, Kind kind, int item, const char *label)
{
    return {page, kind, item, label, "", "", 0, 0, 0, 0};
}
Row toggle(int page, int item, const char *label, int subType, int byte, int bit)
{
    return {page, Switch, item, label, "", "", subType, byte, bit, 1};
}
Row option(int page, int item, const char *label, const char *texts, int subType, int byte, int shift,
           int width, const char *codes = "")
{
    return {page, Options, item, label, texts, codes, subType, byte, shift, width};
}
Row number(int page, int item, const char *label, const char *range, int subType, int byte, int shift = 0,
           int width = 8)
{
    return {page, Number, item, label, range, "", subType, byte, shift, width};
}

} // namespace

int Row::code(int index) const
{
    return *codes ? QString(codes).split('|').value(index).toInt() : index;
}

QString Row::textOf(int code) const
{
    const QStringList all = options();
    for (int i = 0; i < all.size(); ++i) {
        if (this->code(i) == code) {
            return all.at(i);
        }
    }
    return QString();
}

QByteArray Row::reply(int code) const
{
    QByteArray data(5, '\0');
    data[0] = char(subType);
    data[byte] = char(code << shift);
    return data;
}

const QList<Row> &rows()
{
    static const QList<Row> all = {
        option(782, 16, "Esc system", "OFF|Activated|ESC sport", 0x10, 1, 0, 8),
        link(771, "Tyres"),
        link(773, "Driver assistance"),
        link(774, "Parking and manoeuvring"),
        link(775, "Light"),
        link(776, "Mirrors and wipers"),
        link(777, "Opening and closing"),
        link(778, "Multifunction display"),
        link(779, "Service"),
        link(780, "Units"),
        link(785, "Seat driver profile"),
        link(783, "Vehicle status Start-stop"),
        link(784, "Vehicle status reports"),
        link(786, "Convenience consumer"),
        link(781, "Factory settings"),

        toggle(771, 32, "Speed warning", 0x20, 1, 0),
        number(771, 33, "Warning speed", "30|240|10|km/h", 0x20, 2),
        plain(771, Action, 34, "TPMS SET"),
        option(771, 35, "Direct tyres pressure monitoring", "Comfortable|Standard|Full load", 0x20, 3, 0, 8),

        toggle(773, 48, "Lane assist", 0x30, 1, 0),
        toggle(773, 54, "Lane keeping assist system", 0x30, 2, 0),
        toggle(773, 49, "Driver alert system", 0x30, 1, 1),
        toggle(773, 51, "Front assist", 0x31, 1, 1),
        toggle(773, 52, "Advance warning", 0x31, 1, 2),
        toggle(773, 53, "Display distance warning", 0x31, 1, 3),
        plain(773, Heading, -1, "Adaptive cruise control"),
        toggle(773, 50, "Last distance selected", 0x31, 1, 0),
        option(773, 55, "Drive program", "Eco|Normal|Sport", 0x31, 2, 0, 2, "1|2|3"),
        option(773, 56, "Distance", "Very close|Close|Far|Very far", 0x31, 2, 4, 4),
        toggle(773, 57, "Hill Descent Control", 0x31, 3, 0),

        toggle(774, 69, "Activated", 0x40, 1, 1),
        toggle(774, 64, "Activa automatically", 0x40, 1, 0),
        toggle(774, 58, "Parking brake function", 0x40, 1, 2),
        number(774, 65, "Front volume", "1|9|1|", 0x40, 2, 0, 4),
        number(774, 66, "Front tone setting", "1|9|1|", 0x40, 2, 4, 4),
        number(774, 67, "Rear volume", "1|9|1|", 0x40, 3, 0, 4),
        number(774, 68, "Rear tone setting", "1|9|1|", 0x40, 3, 4, 4),
        plain(774, Switch, 171, "Radar sound"),

        option(775, 80, "Switch-on time", "Early|Medium|Late", 0x50, 1, 0, 3),
        toggle(775, 81, "Automatic headlight control in rain", 0x50, 1, 4),
        toggle(775, 82, "Lane change flash", 0x50, 1, 5),
        number(775, 83, "Instrument/switch lighting", "0|100|10|%", 0x50, 2),
        number(775, 84, "Coming home function", "0|30|5|s", 0x50, 3),
        number(775, 85, "Leaving home function", "0|30|5|s", 0x50, 4),
        option(775, 86, "Travel mode", "Right traffic|Left traffic", 0x51, 1, 0, 1),
        number(775, 87, "Door ambient light", "0|100|10|%", 0x51, 2),
        number(775, 88, "Foowell light", "0|100|10|%", 0x51, 3),
        number(775, 91, "Head light", "0|100|10|%", 0x52, 1),
        number(775, 92, "Front light", "0|100|10|%", 0x52, 2),
        number(775, 93, "All light", "0|100|10|%", 0x52, 4),
        toggle(775, 89, "Motorway light", 0x51, 4, 0),
        toggle(775, 90, "Dynamic light assist", 0x51, 4, 1),
        option(775, 94, "Interior environment lighting color", "OFF|White|Orange|Blue", 0x52, 3, 0, 8),
        number(775, 95, "Headlight illumination distance", "0|7|1|", 0x51, 1, 1, 3),
        toggle(775, 200, "Daytime running lights", 0x50, 1, 6),

        toggle(776, 96, "Synchronous adjustment", 0x60, 1, 0),
        toggle(776, 97, "Lower while reversing", 0x60, 1, 1),
        toggle(776, 98, "Automatic wiping in rain", 0x60, 1, 2),
        toggle(776, 99, "Rear window wiping in reverse gear", 0x60, 1, 3),
        toggle(776, 100, "Fold away after parking", 0x60, 1, 4),

        option(777, 112, "Convenience opening", "OFF|Driver window|All window", 0x70, 1, 0, 3),
        option(777, 113, "Door unlocking", "Vehicle side|Single door|All doors", 0x70, 1, 4, 3),
        toggle(777, 114, "Automatic locking", 0x70, 2, 0),
        toggle(777, 116, "Inductive rear tailgate", 0x70, 2, 1),
        toggle(777, 201, "Acoustic confirmation", 0x70, 3, 0),
        toggle(777, 102, "Front window", 0x70, 2, 2),
        toggle(777, 103, "Rear window", 0x70, 2, 3),
        toggle(777, 104, "Sliding sunroof", 0x70, 2, 4),

        toggle(778, 128, "Current consumption", 0x80, 1, 0),
        toggle(778, 129, "Average consumption", 0x80, 1, 1),
        toggle(778, 130, "Convenience consumption", 0x80, 1, 2),
        toggle(778, 131, "Eco tips", 0x80, 1, 3),
        toggle(778, 132, "Travelling time", 0x80, 1, 4),
        toggle(778, 133, "Distance travelled", 0x80, 1, 5),
        toggle(778, 134, "Average speed", 0x80, 1, 6),
        toggle(778, 135, "Digital speed display", 0x80, 1, 7),
        toggle(778, 136, "Speed warning", 0x80, 2, 0),
        toggle(778, 137, "Oil temperature", 0x80, 2, 1),

        plain(779, Reading, 0, "Vehicle NO."),
        plain(779, Reading, 16, "Inspection days"),
        plain(779, Reading, 17, "Inspection distance"),
        plain(779, Reading, 32, "Oil change service days"),
        plain(779, Reading, 33, "Oil change service distance"),
        plain(779, Switch, 140, "Wiper in maintenance position"),
        plain(779, Confirmed, 138, "Reset \"Since start\""),
        plain(779, Confirmed, 139, "Reset \"Long-term\""),
        plain(779, Confirmed, 141, "Reset maintenance cycle"),

        option(780, 144, "Distance", "km|mi", 0x90, 1, 0, 1),
        option(780, 145, "Speed", "km/h|mph", 0x90, 1, 1, 1),
        option(780, 146, "Temperature", "℃|℉", 0x90, 1, 2, 1),
        option(780, 147, "Volume", "L|gal(UK)|gal(US)", 0x90, 1, 4, 3),
        option(780, 148, "Consumption", "mpg(UK)|L/100km|mpg(US)|km/L", 0x90, 2, 0, 3),
        option(780, 149, "Pressure", "bar|psi|kPa", 0x90, 2, 4, 3),

        plain(781, Confirmed, 193, "Driver assistance"),
        plain(781, Confirmed, 194, "Parking and manoeuvring"),
        plain(781, Confirmed, 195, "Light"),
        plain(781, Confirmed, 196, "Mirrors and wipers"),
        plain(781, Confirmed, 197, "Opening and closing"),
        plain(781, Confirmed, 198, "Multifunction display"),
        plain(781, Confirmed, 199, "All settings"),

        toggle(785, 202, "Remote key activated", 0xB0, 1, 0),
        toggle(785, 203, "Remote key memory matching", 0xB0, 1, 1),
        option(785, 208, "Driving mode", "Normal|Sport|ECO|Individual|Snow|Off-road|Off-road individual",
               0xA0, 1, 0, 4),
    };
    return all;
}

QList<Row> rowsOf(int page)
{
    QList<Row> found;
    for (const Row &row : rows()) {
        if (row.page == page) {
            found << row;
        }
    }
    return found;
}

} // namespace VwMenu
