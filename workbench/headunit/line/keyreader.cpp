#include "keyreader.h"

namespace {

// Two packages for a key whose states differ in one byte: where that is, -1 for nowhere.
int placeOfDifference(const BoxPackage &one, const BoxPackage &other)
{
    for (int i = 0; i < qMin(one.n(), other.n()); ++i) {
        if (one.d(i) != other.d(i)) {
            return i;
        }
    }
    return -1;
}

} // namespace

KeyReader::KeyReader(const BoxSpeaker &speaker)
{
    for (const BoxKey &key : speaker.keys()) {
        learn(speaker, key);
    }
}

void KeyReader::learn(const BoxSpeaker &speaker, const BoxKey &key)
{
    const bool isNew = !m_layouts.contains(key.command);
    Layout &layout = m_layouts[key.command];
    layout.keys.insert(key.code, key);
    if (key.source == BoxKey::Knob) {
        const int countAt = placeOfDifference(speaker.knobPackage(key, 1), speaker.knobPackage(key, 2));
        layout.stateAt = isNew ? countAt : layout.stateAt;
        layout.codeAt = isNew ? (countAt == 0 ? 1 : 0) : layout.codeAt;
        return;
    }
    const QVector<BoxPackage> pressed = speaker.keyPackages(key, BoxSpeaker::Pressed);
    const QVector<BoxPackage> released = speaker.keyPackages(key, BoxSpeaker::Released);
    if (pressed.isEmpty()) {
        return;
    }
    const BoxPackage &press = pressed.first();
    // With a state of 1 a key of code 1 stands in both places; another key tells them apart.
    if (press.n() > 1 && press.d(0) != press.d(1)) {
        layout.codeAt = press.d(1) == key.code ? 1 : 0;
    } else if (press.n() > 1 && !released.isEmpty() && released.first().d(1) == key.code) {
        layout.codeAt = 1;
    }
    layout.stateAt = press.n() > 1 ? 1 - layout.codeAt : -1;
    if (released.isEmpty()) {
        layout.taps.insert(key.code);
    } else if (released.first().d(layout.codeAt) != key.code) {
        layout.releaseCodes.insert(released.first().d(layout.codeAt));
    }
}

void KeyReader::addCommand(quint8 command)
{
    m_layouts[command];
}

bool KeyReader::read(const BoxPackage &package, KeyNews *news) const
{
    const auto layout = m_layouts.constFind(package.command);
    if (layout == m_layouts.constEnd() || package.n() <= layout->codeAt) {
        return false;
    }
    const int code = package.d(layout->codeAt);
    const bool hasState = layout->stateAt >= 0 && layout->stateAt < package.n();
    const int state = hasState ? package.d(layout->stateAt) : int(BoxSpeaker::Pressed);
    const BoxKey key = layout->keys.value(code);
    *news = KeyNews();
    news->command = package.command;
    news->code = code;
    news->name = key.name;
    news->group = key.name.isEmpty() && !layout->keys.isEmpty() ? layout->keys.first().source : key.source;
    news->hasState = hasState;
    if (key.name.isEmpty() && (layout->releaseCodes.contains(code) || code == 0)) {
        news->code = -1;
        news->phase = KeyNews::Released;
    } else if (!key.name.isEmpty() && key.source == BoxKey::Knob) {
        news->phase = KeyNews::Turned;
        news->clicks = state;
    } else if (layout->taps.contains(code)) {
        news->phase = KeyNews::Tapped;
    } else {
        news->phase = state == BoxSpeaker::Released ? KeyNews::Released
                      : state == BoxSpeaker::Held   ? KeyNews::Held
                                                    : KeyNews::Pressed;
    }
    return true;
}
