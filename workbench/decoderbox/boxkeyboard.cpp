#include "boxkeyboard.h"

#include <utility>

namespace {

const int HeldMs = 200;
const int MostClicks = 255;

} // namespace

BoxKeyboard::BoxKeyboard(BoxSpeaker *speaker, QObject *parent) : QObject(parent), m_speaker(speaker)
{
    m_heldTimer.setInterval(HeldMs);
    m_heldTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_heldTimer, &QTimer::timeout, this, &BoxKeyboard::repeatHeld);
}

bool BoxKeyboard::press(const QString &name)
{
    const BoxKey *key = m_speaker->findKey(name);
    if (!key || key->source == BoxKey::Knob) {
        return false;
    }
    if (!m_held.contains(name)) {
        m_held << name;
        m_heldTimer.start();
        report(*key, BoxSpeaker::Pressed);
    }
    return true;
}

bool BoxKeyboard::release(const QString &name)
{
    const BoxKey *key = m_speaker->findKey(name);
    if (!key || key->source == BoxKey::Knob) {
        return false;
    }
    m_held.removeAll(name);
    if (m_held.isEmpty()) {
        m_heldTimer.stop();
    }
    report(*key, BoxSpeaker::Released);
    return true;
}

bool BoxKeyboard::turn(const QString &name, int count)
{
    const BoxKey *key = m_speaker->findKey(name);
    if (!key || key->source != BoxKey::Knob || count < 0 || count > MostClicks) {
        return false;
    }
    Q_EMIT packageDue(m_speaker->knobPackage(*key, count), QString("knob %1 %2").arg(name).arg(count));
    return true;
}

bool BoxKeyboard::touch(BoxSpeaker::Touch touch, int x, int y)
{
    if (!m_speaker->hasTouch()) {
        return false;
    }
    Q_EMIT packageDue(m_speaker->touchPackage(touch, x, y),
                      QString("touch %1 at %2, %3").arg(int(touch)).arg(x).arg(y));
    return true;
}

void BoxKeyboard::letGo()
{
    m_held.clear();
    m_heldTimer.stop();
}

void BoxKeyboard::report(const BoxKey &key, BoxSpeaker::KeyState state)
{
    static const char *const names[] = {"released", "pressed", "held"};
    const QVector<BoxPackage> packages = m_speaker->keyPackages(key, state);
    for (const BoxPackage &package : packages) {
        Q_EMIT packageDue(package, QString("key %1 %2").arg(key.name, QString::fromLatin1(names[state])));
    }
}

void BoxKeyboard::repeatHeld()
{
    for (const QString &name : std::as_const(m_held)) {
        report(*m_speaker->findKey(name), BoxSpeaker::Held);
    }
}
