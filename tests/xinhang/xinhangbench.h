#ifndef XINHANGBENCH_H
#define XINHANGBENCH_H

#include "adapterfixture.h"
#include "xinhangwire.h"

#include "orbhost.h"
#include "xinhang/canbus_xinhang.h"

#include <QTemporaryDir>

/// A XinHang adapter on a pseudo-terminal with a settings folder of its own.
class XinHangBench : public AdapterFixture
{
public:
    /// \a settings: what "carsetting.ini" holds at start, key and value.
    explicit XinHangBench(const QVariantMap &settings = QVariantMap());

    CanBus_XinHang *adapter;

    /// Sends packages ("01 00 | 04 01") and returns what the unit then called, in order.
    QStringList exchange(const QByteArray &packages);

    /// What was called since the last take or exchange: "send 83 02", "key 1000013 press", everything else as
    /// the recorder writes it.
    QStringList calls();

    /// Lets the box report a car type, and then a screen: "factory" or "own". What that does is forgotten.
    void drive(int carType, const QByteArray &screen);

    /// Ends the long press that is running, as if its time had passed. False when none is.
    bool passLongPress();
};

/// A box without a line, for tests of single parts: keeps what it is sent, as "83 02".
class FakeBox final : public XinHangBox
{
public:
    void send(quint8 command, const QByteArray &data) override
    {
        sent << (QByteArray(1, char(command)) + data).toHex(' ');
    }
    quint16 carType() const override { return type; }

    quint16 type = 0;
    QByteArrayList sent;
};

namespace XinHang {

/// "a; b; c" of a list of calls, for comparison in one piece.
QString joined(const QStringList &calls);

/// The unit's key of each code of wheel and panel.
const QHash<int, int> &unitKeys();

/// The settings folder of the process, and the file in it.
QString settingsFile();

} // namespace XinHang

#endif // XINHANGBENCH_H
