#include "keytester.h"

#include <QRegularExpression>

namespace {

KeyStroke::Group groupOf(BoxKey::Source source)
{
    return source == BoxKey::Wheel   ? KeyStroke::Wheel
           : source == BoxKey::Panel ? KeyStroke::Panel
                                     : KeyStroke::Knob;
}

// The keys among a row's calls: "OrbApplication.simulateKey 16777330 true false 1".
QVector<quint32> keysIn(const QStringList &calls)
{
    QVector<quint32> keys;
    for (const QString &call : calls) {
        const quint32 key = call.section(' ', 1, 1).toUInt();
        if (call.startsWith("OrbApplication.simulateKey ") && !keys.contains(key)) {
            keys << key;
        }
    }
    return keys;
}

void addEach(const QVector<quint32> &keys, QVector<quint32> *to)
{
    for (const quint32 key : keys) {
        if (!to->contains(key)) {
            *to << key;
        }
    }
}

} // namespace

qint64 KeyStroke::downFor(qint64 now) const
{
    return pressed < 0 ? 0 : ((released < 0 ? now : released) - pressed) / 1000;
}

KeyTester::KeyTester(const KeyReader &reader, QObject *parent) : QObject(parent), m_reader(reader) {}

void KeyTester::take(const InspectionRow &row)
{
    if (row.kind == InspectionRow::Package && row.isTowardsUnit) {
        takePackage(row);
    } else if (row.kind == InspectionRow::UnitKey) {
        takeUnitKey(row);
    } else if (row.kind == InspectionRow::Call) {
        learn(row.calls.value(0));
    }
    look(row.microseconds);
}

void KeyTester::takePackage(const InspectionRow &row)
{
    KeyNews news;
    if (!m_reader.read({row.command, row.data}, &news)) {
        return;
    }
    if (news.code < 0) {
        releaseAll(row.command, row);
        return;
    }
    const KeyStroke::Group group = groupOf(news.group);
    KeyStroke *stroke = find(group, row.command, news.code);
    const bool isNew = !stroke || news.phase == KeyNews::Tapped || news.phase == KeyNews::Turned ||
                       (news.phase == KeyNews::Pressed && news.hasState);
    if (isNew) {
        KeyStroke fresh;
        fresh.group = group;
        fresh.command = row.command;
        fresh.code = quint32(news.code);
        fresh.name = news.name;
        fresh.pressed = news.phase == KeyNews::Released ? -1 : row.microseconds;
        fresh.clicks = news.clicks;
        fresh.becomes = keysIn(row.calls);
        stroke = add(fresh);
    } else {
        addEach(keysIn(row.calls), &stroke->becomes);
    }
    if (news.phase == KeyNews::Turned) {
        stroke->released = row.microseconds;
        Q_EMIT turned(*stroke);
        return;
    }
    stroke->holds += news.phase == KeyNews::Held || (news.phase == KeyNews::Pressed && !isNew) ? 1 : 0;
    if (isNew && news.phase != KeyNews::Released) {
        Q_EMIT pressed(*stroke);
    }
    if (news.phase == KeyNews::Released || news.phase == KeyNews::Tapped) {
        release(stroke, row);
    }
}

void KeyTester::takeUnitKey(const InspectionRow &row)
{
    const quint32 code = row.name.section(' ', 0, 0).toUInt(nullptr, 16);
    const QString phase = row.name.section(' ', 1);
    KeyStroke *stroke = find(KeyStroke::Unit, -1, int(code));
    const bool isNew = !stroke || phase == "press";
    if (isNew) {
        KeyStroke fresh;
        fresh.group = KeyStroke::Unit;
        fresh.code = code;
        fresh.lineValue = m_lineValues.value(code);
        fresh.pressed = phase == "release" ? -1 : row.microseconds;
        fresh.becomes = {code};
        stroke = add(fresh);
    }
    addEach(keysIn(row.calls), &stroke->redefined);
    stroke->holds += phase == "repeat" ? 1 : 0;
    if (isNew && phase != "release") {
        Q_EMIT pressed(*stroke);
    }
    if (phase == "release") {
        release(stroke, row);
    }
}

// A key set announces the values of its keys on the unit's analogue line.
void KeyTester::learn(const QString &registration)
{
    static const QRegularExpression record("\"keyCode\":\\s*(\\d+),\\s*\"ctrlValue\":\\s*(\\d+)");
    if (registration.contains(" param=20497 param2=21 ")) {
        for (auto match = record.globalMatch(registration); match.hasNext();) {
            const QRegularExpressionMatch one = match.next();
            m_lineValues.insert(one.captured(1).toUInt(), one.captured(2).toULongLong());
        }
    }
}

void KeyTester::look(qint64 now)
{
    for (KeyStroke &stroke : m_strokes) {
        if (stroke.isDown() && !stroke.isStuck && stroke.pressed >= 0 &&
            now - stroke.pressed > LongestPress) {
            stroke.isStuck = true;
            Q_EMIT stuck(stroke);
        }
    }
}

// The one that is down.
KeyStroke *KeyTester::find(KeyStroke::Group group, int command, int code)
{
    for (auto stroke = m_strokes.rbegin(); stroke != m_strokes.rend(); ++stroke) {
        if (stroke->isDown() && stroke->group == group && stroke->command == command &&
            stroke->code == quint32(code)) {
            return &*stroke;
        }
    }
    return nullptr;
}

KeyStroke *KeyTester::add(const KeyStroke &stroke)
{
    m_strokes.push_back(stroke);
    if (m_strokes.size() > MostStrokes) {
        m_strokes.pop_front();
    }
    return &m_strokes.back();
}

void KeyTester::release(KeyStroke *stroke, const InspectionRow &row)
{
    stroke->released = row.microseconds;
    Q_EMIT released(*stroke);
}

void KeyTester::releaseAll(int command, const InspectionRow &row)
{
    for (KeyStroke &stroke : m_strokes) {
        if (stroke.isDown() && stroke.command == command) {
            release(&stroke, row);
        }
    }
}
