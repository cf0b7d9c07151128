#ifndef SILENTADAPTER_H
#define SILENTADAPTER_H

#include "canbusadapter.h"

/// A decoder whose frame is not known: the line is opened and read, nothing is delivered and nothing is sent.
class SilentAdapter : public CanBusAdapter
{
    Q_OBJECT

public:
    int getPackageMinSize() override;
    int findPackageStartSig(int from) override;
    int getPackageSize(int start) override;
    bool isAvaliablePackage(int start, int last, int size) override;

    bool getPortSettings(PortSettings &settings) override;

public Q_SLOTS:
    void onRecvMcuProtocol(const QByteArray &byteArray) override;
    void onRecvAppProtocol(const QByteArray &byteArray) override;
    void onKeyEvent(unsigned int keyCode, bool isPress, bool isAutoRepeat) override;

protected:
    explicit SilentAdapter(int baudRate);

private:
    const int m_baudRate;
};

#endif // SILENTADAPTER_H
