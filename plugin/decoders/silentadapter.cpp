#include "silentadapter.h"

SilentAdapter::SilentAdapter(int baudRate) : m_baudRate(baudRate) {}

bool SilentAdapter::getPortSettings(PortSettings &settings)
{
    setLine(settings, m_baudRate, -1);
    return true;
}

void SilentAdapter::onRecvMcuProtocol(const QByteArray &) {}

void SilentAdapter::onRecvAppProtocol(const QByteArray &) {}

void SilentAdapter::onKeyEvent(unsigned int, bool, bool) {}
