#include "carkeys.h"

#include "unitlink.h"

#include "orbapplication.h"

unsigned int CarKeys::keyFor(const KeyTable &table, quint8 code, unsigned int otherwise)
{
    for (int i = 0; i < table.count; ++i) {
        if (table.rows[i].code == code) {
            return table.rows[i].key;
        }
    }
    return otherwise;
}

void CarKeys::simulate(unsigned int key, int state, int last)
{
    OrbApplication::simulateKey(int(key), state != Released, state == Held, last);
}

void CarKeys::tap(unsigned int key, int last)
{
    simulate(key, Pressed, last);
    simulate(key, Released, last);
}

void CarKeys::turn(unsigned int key, int count)
{
    for (int i = 0; i < count; ++i) {
        tap(key);
    }
}

bool CarKeys::isCallPresent()
{
    return UnitLink::statusWord() & UnitLink::CallPresent;
}

unsigned int CarKeys::phoneKey()
{
    return isCallPresent() ? Call : VoiceDial;
}
