#ifndef CANBUS_XINHANG_H
#define CANBUS_XINHANG_H

#include "canbusadapter.h"

/// XinHang decoder, CAN-bus type 4.
class CanBus_XinHang : public CanBusAdapter
{
    Q_OBJECT

public Q_SLOTS:
    void onRecvMcuProtocol(const QByteArray &) override {}
    void onRecvAppProtocol(const QByteArray &) override {}
    void onKeyEvent(unsigned int, bool, bool) override {}
};

#endif // CANBUS_XINHANG_H
