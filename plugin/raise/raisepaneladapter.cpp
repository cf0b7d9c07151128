#include "raisepaneladapter.h"

#include "keysource.h"

#include <QTimer>

namespace {

const unsigned char StartCommand = 0x84;

}

RaisePanelAdapter::RaisePanelAdapter(KeySource *wheelKeys, KeySource *panelKeys) : m_panelKeys(panelKeys)
{
    setWheelKeys(wheelKeys);
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

void RaisePanelAdapter::onPanelKey(const PackageView &d)
{
    processPanelKey(d.data());
}

void RaisePanelAdapter::processPanelKey(const unsigned char *d)
{
    m_panelKeys->report(d[0], d[1]);
}
