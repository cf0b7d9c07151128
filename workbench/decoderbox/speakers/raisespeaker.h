#ifndef RAISESPEAKER_H
#define RAISESPEAKER_H

#include "boxspeaker.h"

/// What the boxes in the Raise frame have in common: acknowledgements, ready and end, the version text, and
/// layouts that several cars use. By itself it is a box that knows nothing of its car but answers the
/// handshake.
class RaiseSpeaker : public BoxSpeaker
{
    Q_OBJECT

public:
    explicit RaiseSpeaker(SimulatedCar *car, quint8 versionCommand = 0x30, QObject *parent = nullptr);

    bool usesAcknowledgement() const override { return true; }
    QVector<BoxPackage> keyPackages(const BoxKey &key, KeyState state) const override;
    int baudRate() const override { return 38400; }

protected:
    /// Keys of \a command come up as key 0 in state 0, whichever they were.
    void releaseWithoutKey(quint8 command) { m_keylessReleases << command; }

    /// A key row: pressed, held and released go out as data (code, state).
    void addKeys(BoxKey::Source source, quint8 command, const QVector<QPair<quint8, const char *>> &rows);

    /// Reports the four sensors of \a side, "front" or "rear", by \a levels, which has the box's level for
    /// the car's levels 0 to 6 and lives as long as the program.
    void addRadar(const QString &side, quint8 command, const quint8 (&levels)[7]);

    static quint8 bit(bool on, int place) { return on ? quint8(1 << place) : quint8(0); }
    static QByteArray bytes(std::initializer_list<int> values);

    /// The doors in the upper half of a byte: bit 6 front left, 7 front right, 4 rear left, 5 rear right.
    static QByteArray doors(const SimulatedCar &car);
    /// The doors, and in bits 3 and 2 boot and bonnet.
    static quint8 doorsAndLids(const SimulatedCar &car);
    /// The steering angle in tenths of a degree: bit 15 right, the size below it, high byte first.
    static QByteArray signAndSizeSteering(const SimulatedCar &car);
    /// Window, face and feet in bits 7, 6 and 5, the fan, at most 7, in bits 2..0.
    static quint8 airFlow(const SimulatedCar &car);
    /// The nearer of what the sensors \a one and \a other of \a side see, in the car's levels.
    static int nearerOf(const SimulatedCar &car, const QString &side, int one, int other);
    /// The steering angle in units of which \a lock make the way from the middle to the right lock.
    static int steering(const SimulatedCar &car, int lock);
    static QByteArray littleEndian16(int value);
    static QByteArray bigEndian16(int value);

private:
    QVector<quint8> m_keylessReleases;
};

#endif // RAISESPEAKER_H
