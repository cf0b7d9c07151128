#ifndef SILENTADAPTER_H
#define SILENTADAPTER_H

#include "canbusadapter.h"

/// A decoder whose frame is not known: the line is opened and read, nothing is delivered and nothing is sent.
class SilentAdapter : public CanBusAdapter
{
    Q_OBJECT

public:
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
