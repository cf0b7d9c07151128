#include "keysource.h"

void KeySource::report(quint8 code, quint8 state)
{
    m_currentKey = CarKeys::keyFor(m_knobs, code);
    if (m_currentKey != CarKeys::NoKey) {
        CarKeys::turn(m_currentKey, state);
        return;
    }
    m_currentKey = CarKeys::keyFor(m_keys, code);
    if (m_currentKey == CarKeys::PhoneKey) {
        m_currentKey = CarKeys::phoneKey();
    }
    if (m_currentKey != CarKeys::NoKey) {
        CarKeys::simulate(m_currentKey, state, m_last);
    }
}
