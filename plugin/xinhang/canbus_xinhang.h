#ifndef CANBUS_XINHANG_H
#define CANBUS_XINHANG_H

#include "canbusadapter.h"

/// XinHang decoder, CAN-bus type 4.
class CanBus_XinHang : public CanBusAdapter
{
    Q_OBJECT

public:
    int getPackageMinSize() override { return 4; }
    int findPackageStartSig(int) override { return -1; }
    int getPackageSize(int) override { return 0; }
    bool isAvaliablePackage(int, int, int) override { return false; }

public Q_SLOTS:
    void onRecvMcuProtocol(const QByteArray &) override {}
    void onRecvAppProtocol(const QByteArray &) override {}
    void onKeyEvent(unsigned int, bool, bool) override {}
};

#endif // CANBUS_XINHANG_H
