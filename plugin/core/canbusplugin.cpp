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
    // The number tells, not the class: the framework may be built by another compiler, without type information.
    const int type = event ? int(event->type()) : int(QEvent::None);
    if (type < UnitLink::FirstEvent || type > UnitLink::LastEvent) {
        return;
    }
    OrbEvent *const orbEvent = static_cast<OrbEvent *>(event);
    const unsigned int param = orbEvent->getParam();
    const unsigned int param2 = orbEvent->getParam2();

    // A unit with a key set of its own: its raw keys mean nothing to the decoder.
    if (type == UnitLink::KeyEvent && keyRedefAdapter) {
        keyRedefAdapter->onKeyEvent(param, param2 != KeyReleased, param2 == KeyAutoRepeat);
        return;
    }
    if (!canBusAdapter) {
        return;
    }
    switch (type) {
    case UnitLink::ShowAppEvent:
        canBusAdapter->showApp(param);
        break;
    case UnitLink::AppProtocolEvent:
        canBusAdapter->onRecvAppProtocol(orbEvent->getByteArrayParam());
        break;
    case UnitLink::KeyEvent:
        canBusAdapter->onKeyEvent(param, param2 != KeyReleased, param2 == KeyAutoRepeat);
        break;
    case UnitLink::NotifyEvent:
        if (param == LanguageChanged) {
            canBusAdapter->translateApp();
        } else {
            canBusAdapter->orbAppNotify(orbEvent);
        }
        break;
    case UnitLink::AppStateEvent:
        canBusAdapter->orbAppStateChange(param, param2);
        break;
    default:
        break;
    }
}
