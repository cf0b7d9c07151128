#include "keyredefadapter.h"

#include "carkeys.h"
#include "keyredefadapter_hud.h"
#include "keyredefadapter_lianbaolai.h"

KeyRedefAdapter *KeyRedefAdapter::s_instance = nullptr;

KeyRedefAdapter::KeyRedefAdapter() : keyRedefType(NoKeyRedef) {}

KeyRedefAdapter *KeyRedefAdapter::getAdapterInstance(KeyRedefType type)
{
    if (!s_instance) {
        s_instance = createAdapter(type);
    }
    return s_instance;
}

KeyRedefAdapter *KeyRedefAdapter::createAdapter(KeyRedefType type)
{
    switch (type) {
    case LianBaoLai:
        return new KeyRedefAdapter_LianBaoLai;
    case Hud:
        return new KeyRedefAdapter_HUD;
    case NoKeyRedef:
        break;
    }
    return nullptr;
}

bool KeyRedefAdapter::isMediaKeyApp(unsigned int appId)
{
    return appId != 3 && appId != 5 && appId != 13;
}

bool KeyRedefAdapter::isCallState()
{
    return CarKeys::isCallPresent();
}
