#ifndef XINHANGBENCH_H
#define XINHANGBENCH_H

#include "adapterfixture.h"
#include "xinhangwire.h"

#include "orbhost.h"
#include "xinhang/canbus_xinhang.h"

#include <QTemporaryDir>

/// A XinHang adapter, started, with a settings folder of its own. Packages go straight into it, unless a test
/// wants the line.
class XinHangBench : public AdapterFixture
{
public:
    enum Line { NoLine, OnLine };

    /// \a settings: what "carsetting.ini" holds at start, key and value.
    explicit XinHangBench(const QVariantMap &settings = QVariantMap(), Line line = NoLine);

    CanBus_XinHang *adapter;

    /// Hands over packages ("01 00 | 04 01") and returns what the unit then called, in order.
    QStringList feed(const QByteArray &packages);

    /// What was called since the last take or feed: "send 83 02", everything else as TestSupport::readable().
    QStringList calls();

    /// Lets the box report a car type, and then a screen: "factory" or "own". What that does is forgotten.
    void drive(int carType, const QString &screen);

    /// Ends the long press that is running, as if its time had passed. False when none is.
    bool passLongPress();

private:
    QTemporaryDir m_folder;
    quint8 m_change = 0; // two equal status packages would be one
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

#endif // XINHANGBENCH_H
