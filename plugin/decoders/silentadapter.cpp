#include "silentadapter.h"

SilentAdapter::SilentAdapter(int baudRate) : m_baudRate(baudRate) {}

int SilentAdapter::getPackageMinSize()
{
    return 1;
}

// No byte starts a package, so every read is dropped at once and the receive buffer stays empty.
int SilentAdapter::findPackageStartSig(int)
{
    return -1;
}

int SilentAdapter::getPackageSize(int)
{
    return 0;
}

bool SilentAdapter::isAvaliablePackage(int, int, int)
{
    return false;
}

bool SilentAdapter::getPortSettings(PortSettings &settings)
{
    setLine(settings, m_baudRate, -1);
    return true;
}

void SilentAdapter::onRecvMcuProtocol(const QByteArray &) {}

void SilentAdapter::onRecvAppProtocol(const QByteArray &) {}

void SilentAdapter::onKeyEvent(unsigned int, bool, bool) {}
