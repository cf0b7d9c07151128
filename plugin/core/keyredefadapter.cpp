#include "keyredefadapter.h"

KeyRedefAdapter *KeyRedefAdapter::s_instance = nullptr;

KeyRedefAdapter::KeyRedefAdapter() : keyRedefType(NoKeyRedef) {}

KeyRedefAdapter *KeyRedefAdapter::getAdapterInstance(KeyRedefType type)
{
    Q_UNUSED(type)
    return s_instance;
}
