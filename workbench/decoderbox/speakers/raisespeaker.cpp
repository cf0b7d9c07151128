#include "raisespeaker.h"

#include <cmath>

namespace {
const int VersionLength = 32;
const int SteeringLockDegrees = 540;
} // namespace

RaiseSpeaker::RaiseSpeaker(SimulatedCar *car, quint8 versionCommand, QObject *parent)
    : BoxSpeaker(car, FrameFormat::raise(), parent)
{
    addReport({"version",
               versionCommand,
               {"box.version"},
               [](const SimulatedCar &c) {
                   return c.text("box.version").toLatin1().leftJustified(VersionLength, '\0');
               },
               true});
    addCommand(0x81, 1, [this](const BoxPackage &package) -> QString {
        if (package.d(0) == 0) {
            Q_EMIT endReceived();
            return "end";
        }
        Q_EMIT readyReceived();
        return "ready";
    });
}

void RaiseSpeaker::addKeys(BoxKey::Source source, quint8 command,
                           const QVector<QPair<quint8, const char *>> &rows)
{
    for (const auto &row : rows) {
        addKey({QString::fromLatin1(row.second), source, command, row.first});
    }
}

QVector<BoxPackage> RaiseSpeaker::keyPackages(const BoxKey &key, KeyState state) const
{
    if (state == Released && m_keylessReleases.contains(key.command)) {
        return {{key.command, bytes({0, 0})}};
    }
    return BoxSpeaker::keyPackages(key, state);
}

QByteArray RaiseSpeaker::bytes(std::initializer_list<int> values)
{
    QByteArray result;
    for (const int value : values) {
        result += char(value);
    }
    return result;
}

QByteArray RaiseSpeaker::doors(const SimulatedCar &car)
{
    return bytes({bit(car.flag("doors.front_right"), 7) | bit(car.flag("doors.front_left"), 6) |
                  bit(car.flag("doors.rear_right"), 5) | bit(car.flag("doors.rear_left"), 4)});
}

quint8 RaiseSpeaker::doorsAndLids(const SimulatedCar &car)
{
    return quint8(quint8(doors(car).at(0)) | bit(car.flag("lids.boot"), 3) | bit(car.flag("lids.bonnet"), 2));
}

QByteArray RaiseSpeaker::signAndSizeSteering(const SimulatedCar &car)
{
    const int angle = car.number("steering.angle");
    return bigEndian16((angle > 0 ? 0x8000 : 0) | qAbs(angle) * 10);
}

quint8 RaiseSpeaker::airFlow(const SimulatedCar &car)
{
    return quint8(bit(car.flag("climate.to_window"), 7) | bit(car.flag("climate.to_face"), 6) |
                  bit(car.flag("climate.to_feet"), 5) | qMin(car.number("climate.fan"), 7));
}

void RaiseSpeaker::addRadar(const QString &side, quint8 command, const quint8 (&levels)[7])
{
    const auto sensors = [side, &levels](const SimulatedCar &car) {
        QByteArray result;
        for (int sensor = 1; sensor <= 4; ++sensor) {
            result += char(levels[car.number(QString("radar.%1.%2").arg(side).arg(sensor))]);
        }
        return result;
    };
    addReport({"radar " + side, command, {"radar." + side + "."}, sensors, true});
}

int RaiseSpeaker::nearerOf(const SimulatedCar &car, const QString &side, int one, int other)
{
    const int first = car.number(QString("radar.%1.%2").arg(side).arg(one));
    const int second = car.number(QString("radar.%1.%2").arg(side).arg(other));
    return first == 0 || second == 0 ? qMax(first, second) : qMin(first, second);
}

int RaiseSpeaker::steering(const SimulatedCar &car, int lock)
{
    return int(std::lround(double(car.number("steering.angle")) * lock / SteeringLockDegrees));
}

QByteArray RaiseSpeaker::littleEndian16(int value)
{
    return bytes({value & 0xFF, (value >> 8) & 0xFF});
}

QByteArray RaiseSpeaker::bigEndian16(int value)
{
    return bytes({(value >> 8) & 0xFF, value & 0xFF});
}
