#ifndef SIMULATEDUNIT_H
#define SIMULATEDUNIT_H

#include "raisewire.h"
#include "xinhangwire.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QVector>

#include <memory>

class DecoderBox;

/// The head unit's end of the line, for tests: opens the box's device, notes what arrives and answers as
/// told. It knows frames only as far as it must to acknowledge them.
class SimulatedUnit : public QObject
{
    Q_OBJECT

public:
    struct Arrival
    {
        qint64 ms; ///< since the unit was made
        QByteArray bytes;
    };

    /// Opens the device of \a box. \a acknowledgements: how many packages it acknowledges, -1 for all.
    explicit SimulatedUnit(const DecoderBox &box, int acknowledgements = -1);
    ~SimulatedUnit() override;

    void write(const QByteArray &bytes);
    void writeHex(const char *hex) { write(QByteArray::fromHex(hex)); }
    /// Ready in the Raise frame.
    void writeReady() { writeHex("2e8101017c"); }

    void setAcknowledgements(int count) { m_acknowledgements = count; }

    /// The packages that arrived, in order; resends count.
    const QVector<Arrival> &packages() const { return m_packages; }
    QVector<QByteArray> frames() const;
    /// The bytes between packages.
    const QByteArray &singleBytes() const { return m_singleBytes; }
    void forget();

Q_SIGNALS:
    void arrived(const QByteArray &frame);

private:
    void read();

    bool m_isXinHang;
    int m_device;
    int m_acknowledgements;
    QByteArray m_buffer;
    QVector<Arrival> m_packages;
    QByteArray m_singleBytes;
    QElapsedTimer m_clock;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

/// The box of the CAN-bus type \a type on a terminal of its own, whose line takes time or none; fails the
/// program when there is none.
std::unique_ptr<DecoderBox> openBox(int type, bool isPaced = true);

/// A box on a terminal of its own that talks, and a unit that has acknowledged the state it began with.
struct Conversation
{
    explicit Conversation(int type);

    std::unique_ptr<DecoderBox> box;
    SimulatedUnit unit;
};

#endif // SIMULATEDUNIT_H
