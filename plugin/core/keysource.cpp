#include "keysource.h"

void KeySource::report(quint8 code, quint8 state)
{
    if (m_release.rule != KeyRelease::ByState && code == m_release.code) {
        releaseCurrent();
        return;
    }
    unsigned int key = CarKeys::NoKey;
    const KeyGroup *const group = find(code, &key);
    if (m_release.rule == KeyRelease::ByCodeOrOther && key != m_currentKey) {
        releaseCurrent();
    }
    m_currentKey = key;
    if (!group) {
        return;
    }
    m_currentLast = group->last;
    switch (group->kind) {
    case KeyGroup::Keys:
        CarKeys::simulate(key, state, group->last);
        break;
    case KeyGroup::Knobs:
        CarKeys::turn(key, state);
        break;
    case KeyGroup::Taps:
        CarKeys::tap(key, group->last);
        break;
    }
    // What has come up by itself must not come up once more with the next key.
    if (m_release.rule == KeyRelease::ByCodeOrOther &&
        (group->kind != KeyGroup::Keys || state == CarKeys::Released)) {
        m_currentKey = CarKeys::NoKey;
    }
}

void KeySource::report(quint8 code)
{
    unsigned int key = CarKeys::NoKey;
    report(code, find(code, &key) && key == m_currentKey ? CarKeys::Held : CarKeys::Pressed);
}

const KeyGroup *KeySource::find(quint8 code, unsigned int *key) const
{
    for (int i = 0; i < m_count; ++i) {
        *key = CarKeys::keyFor(m_groups[i].keys, code);
        if (*key == CarKeys::PhoneKey) {
            *key = CarKeys::phoneKey();
        }
        if (*key != CarKeys::NoKey) {
            return &m_groups[i];
        }
    }
    return nullptr;
}

void KeySource::releaseCurrent()
{
    if (m_currentKey != CarKeys::NoKey) {
        const int last = m_release.last == KeyRelease::LastOfKey ? m_currentLast : m_release.last;
        CarKeys::simulate(m_currentKey, CarKeys::Released, last);
    }
    m_currentKey = CarKeys::NoKey;
}
