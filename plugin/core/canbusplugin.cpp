#include "canbusplugin.h"

#include "canbusadapter.h"
#include "keyredefadapter.h"
#include "unitlink.h"

#include "orbapplication.h"
#include "orbevent.h"

#include <QDebug>

namespace {

const unsigned int LanguageChanged = 0x5006; // first parameter of the notification

enum KeyPhase { KeyReleased = 0, KeyAutoRepeat = 2 };

unsigned int typeTag(UnitLink::Tag tag)
{
    return OrbApplication::instance()->getTag(tag, QVariant(0)).toUInt();
}

} // namespace

CanBusPlugin::CanBusPlugin()
{
    const unsigned int canBusType = typeTag(UnitLink::CanBusTypeTag);
    canBusAdapter = CanBusAdapter::getAdapterInstance(static_cast<CanBusType>(canBusType));
    const unsigned int keyRedefType = typeTag(UnitLink::KeyRedefTypeTag);
    keyRedefAdapter =
        KeyRedefAdapter::getAdapterInstance(static_cast<KeyRedefAdapter::KeyRedefType>(keyRedefType));
    qDebug() << "CanBusPlugin" << canBusType << keyRedefType;
}

CanBusPlugin::~CanBusPlugin() {}

OrbMainWindow *CanBusPlugin::createMainWindow()
{
    return nullptr;
}

void CanBusPlugin::customEvent(QEvent *event)
{
    OrbEvent *const orbEvent = dynamic_cast<OrbEvent *>(event);
    if (!orbEvent) {
        return;
    }
    const int type = orbEvent->type();
    const unsigned int param = orbEvent->getParam();
    const unsigned int param2 = orbEvent->getParam2();

    // A unit with a key set of its own: its raw keys mean nothing to the decoder.
    if (type == OrbEvent::KeyType && keyRedefAdapter) {
        keyRedefAdapter->onKeyEvent(param, param2 != KeyReleased, param2 == KeyAutoRepeat);
        return;
    }
    if (!canBusAdapter) {
        return;
    }
    switch (type) {
    case OrbEvent::ShowAppType:
        canBusAdapter->showApp(param);
        break;
    case OrbEvent::AppProtocolType:
        canBusAdapter->onRecvAppProtocol(orbEvent->getByteArrayParam());
        break;
    case OrbEvent::KeyType:
        canBusAdapter->onKeyEvent(param, param2 != KeyReleased, param2 == KeyAutoRepeat);
        break;
    case OrbEvent::NotifyType:
        if (param == LanguageChanged) {
            canBusAdapter->translateApp();
        } else {
            canBusAdapter->orbAppNotify(orbEvent);
        }
        break;
    case OrbEvent::AppStateType:
        canBusAdapter->orbAppStateChange(param, param2);
        break;
    default:
        break;
    }
}
