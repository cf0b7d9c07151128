#include "raisepaneladapter.h"

#include <QTimer>

namespace {

const unsigned char StartCommand = 0x84;

}

RaisePanelAdapter::RaisePanelAdapter(KeySource *wheelKeys, KeySource *panelKeys)
{
    setKeys(wheelKeys, panelKeys);
    m_climate.setPTCModeVisible(false);
    m_climate.setTemperatureRange(15.0, 31.0);
    setReadyTimer();
}

void RaisePanelAdapter::onInited()
{
    sendReady(3);
    periodicTimer()->stop();
    const unsigned char on[] = {0x01};
    writeCanBusData(StartCommand, on, sizeof on);
}
