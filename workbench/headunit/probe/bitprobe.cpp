#include "bitprobe.h"

#include "boxspeaker.h"
#include "keytext.h"
#include "probestart.h"

#include "orbeventtypes.h"

namespace {

const QString CarValue = "car ";
const QString ScreenText = "screen ";
const QString Dialog = "dialog";
const QString PlugIn = "plug-in";

// An event is told apart by what it is about; the other members are its values.
void take(const CallWatch::Call &call, QMap<QString, QStringList> *values)
{
    if (call.name == "dispatchOrbEvent" || call.name == "event") {
        QString about = "event";
        for (const QString &arg : call.args) {
            const QString key = arg.section('=', 0, 0);
            const QString value = arg.section('=', 1);
            if (key == "param" || (key == "type" && value != QString::number(OrbEventType::Notify))) {
                about += ' ' + value;
            } else if (key != "source" && key != "id" && key != "type") {
                (*values)[about + (key == "param2" ? QString() : ' ' + key)] << value;
            }
        }
    } else if (call.object != "OrbApplication" && call.args.size() > 1) {
        for (int i = 0; i < call.args.size(); ++i) {
            (*values)[QString("%1 #%2").arg(call.name).arg(i + 1)] << call.args.at(i);
        }
    } else if (call.name == "simulateKey" && !call.args.isEmpty()) {
        (*values)[call.name]
            << (QStringList(KeyText::key(call.args.first().toUInt())) + call.args.mid(1)).join(' ');
    } else {
        const bool isOwn = call.object == "AirConditionDlg" || call.object == "OrbApplication";
        (*values)[isOwn ? call.name : call.object + '.' + call.name]
            << (call.args.isEmpty() ? QString("called") : call.args.join(' '));
    }
}

QString readable(const QString &value)
{
    return value.isEmpty() ? QString("empty") : value;
}

QString textOf(const QVector<BitProbe::Effect> &effects)
{
    QStringList lines;
    for (const BitProbe::Effect &effect : effects) {
        lines << effect.call + ' ' + effect.text;
    }
    return lines.join('\n');
}

} // namespace

BitProbe::Effects BitProbe::effectsOf(const ProbeUnit::Trial &trial)
{
    QMap<QString, QStringList> values;
    for (const CallWatch::Call &call : trial.calls) {
        take(call, &values);
    }
    Effects effects;
    for (auto at = values.begin(); at != values.end(); ++at) {
        effects.insert(at.key(), at.value().join(", "));
    }
    for (auto at = trial.values.cbegin(); at != trial.values.cend(); ++at) {
        effects.insert(CarValue + at.key(), at.value());
    }
    for (auto at = trial.texts.cbegin(); at != trial.texts.cend(); ++at) {
        effects.insert(ScreenText + at.key(), at.value());
    }
    if (trial.hasDialog) {
        effects.insert(Dialog, "opens");
    }
    if (!trial.end.isEmpty()) {
        effects.insert(PlugIn, "dies of " + trial.end);
    }
    return effects;
}

BitProbe::BitProbe(ProbeUnit *unit, const BoxSpeaker &speaker, const BoxPackage &package)
    : m_unit(unit), m_speaker(speaker), m_format(speaker.format()), m_package(package)
{}

BitProbe::Outcome BitProbe::run(int only, bool walksValues, QString *error)
{
    const QString frame = QString::fromLatin1(m_format.frame(m_package).toHex());
    const ProbeUnit::Trial trial = tryFirst();
    if (!trial.end.isEmpty()) {
        *error = QString("the plug-in does not survive %1 (%2)").arg(frame, trial.end);
        return Killed;
    }
    if (!trial.isFramed) {
        *error = QString("the decoder does not take %1 for a package").arg(frame);
        return NotFramed;
    }
    m_hasDialogs = trial.hasDialog;
    m_base[Fresh] = effectsOf(trial);
    chooseOtherState();
    probeBits();
    for (int byte = 0; byte < m_package.n(); ++byte) {
        if (only < 0 || byte == only) {
            addRows(byte, walksValues);
        }
    }
    findPartners();
    return Done;
}

// The package as it is. When it does nothing, it may be one for what a screen shows behind a button.
ProbeUnit::Trial BitProbe::tryFirst()
{
    const QVector<ProbeUnit::Packages> trials = {{m_format.frame(m_package)}};
    m_unit->turnTo(-1);
    const ProbeUnit::Trial trial = m_unit->tryFresh(trials).first();
    const QVector<ScreenTap::Target> &turns = m_unit->screens().turns();
    for (int i = 0; trial.isFramed && effectsOf(trial).isEmpty() && i < turns.size(); ++i) {
        m_unit->turnTo(i);
        const ProbeUnit::Trial turned = m_unit->tryFresh(trials).first();
        if (!effectsOf(turned).isEmpty()) {
            m_turn = turns.at(i).name;
            return turned;
        }
    }
    m_unit->turnTo(-1);
    return trial;
}

// The second state comes from the opposite in every bit; where that kills the plug-in or leaves a dialog open, there is
// none but the fresh one.
void BitProbe::chooseOtherState()
{
    BoxPackage opposite = m_package;
    // Where the first byte says what the others mean it stays: the opposite of another thing is no other state.
    const int from = ProbeStart::reportsOf(m_speaker, m_package.command) > 1 ? 1 : 0;
    for (int i = from; i < opposite.n(); ++i) {
        opposite.data[i] = char(~opposite.data.at(i));
    }
    const ProbeUnit::Trial trial = m_unit->tryFresh({{m_format.frame(opposite)}}).first();
    if (trial.end.isEmpty() && !trial.hasDialog) {
        m_before = {m_format.frame(opposite)};
    }
    m_base[Opposite] = tryOut(Opposite, {m_package.data}, Exactly).first();
}

// What each of \a datas, as this package's, causes in a state.
QVector<BitProbe::Effects> BitProbe::tryOut(State state, const QVector<QByteArray> &datas, Care care)
{
    QVector<ProbeUnit::Packages> trials;
    for (const QByteArray &data : datas) {
        ProbeUnit::Packages packages = state == Opposite ? m_before : ProbeUnit::Packages();
        trials << (packages << m_format.frame({m_package.command, data}));
    }
    QVector<Effects> all;
    for (const ProbeUnit::Trial &trial :
         care == Exactly ? m_unit->tryFresh(trials) : m_unit->tryInTurn(trials)) {
        m_hasDialogs = m_hasDialogs || trial.hasDialog;
        all << effectsOf(trial);
    }
    return all;
}

// The data with \a bits, each byte * 8 + bit, the other way.
QByteArray BitProbe::flipped(const QVector<int> &bits) const
{
    QByteArray data = m_package.data;
    for (const int bit : bits) {
        data[bit / Bits] = char(data.at(bit / Bits) ^ (1 << bit % Bits));
    }
    return data;
}

void BitProbe::probeBits()
{
    QVector<QByteArray> datas;
    const int count = m_package.n() * Bits;
    for (int bit = 0; bit < count; ++bit) {
        datas << flipped({bit});
    }
    // A package that does nothing whatever its bits are needs no fork for each of them; nor does one that only
    // shows something, since it would be seen if that were left behind.
    const QVector<Effects> quick = tryOut(Opposite, datas, Quickly);
    const bool isIdle = quick.count(m_base[Opposite]) == quick.size();
    bool isShown = true;
    for (const Effects &effects : quick) {
        for (auto at = effects.cbegin(); at != effects.cend(); ++at) {
            isShown = isShown && (at.key().startsWith(ScreenText) || at.key().startsWith(CarValue));
        }
    }
    for (const State state : {Fresh, Opposite}) {
        const bool isQuick = state == Opposite && isShown;
        const QVector<Effects> all = isIdle    ? QVector<Effects>(count, m_base[state])
                                     : isQuick ? quick
                                               : tryOut(state, datas, Exactly);
        for (int i = 0; i < count; ++i) {
            m_flipped[state].insert(i, all.at(i));
            for (const Effect &effect : changesBy(state, i)) {
                m_moved << effect.call;
            }
        }
    }
}

// A byte's bits, those together that move the same.
void BitProbe::addRows(int byte, bool walksValues)
{
    for (int high = Bits - 1; high >= 0;) {
        int low = walksValues ? 0 : high;
        while (low > 0 && isAlike(byte, high, low - 1)) {
            --low;
        }
        Row row = {byte, high, low, {}, false, {}};
        bool isIdleRun = true;
        for (int bit = byte * Bits + low; bit <= byte * Bits + high; ++bit) {
            isIdleRun = isIdleRun && isIdle(bit);
            row.dependsOnState =
                row.dependsOnState || textOf(changesBy(Fresh, bit)) != textOf(changesBy(Opposite, bit));
        }
        const int bit = byte * Bits + high;
        if (row.isRun() && (walksValues || !isIdleRun)) {
            probeRun(&row);
        } else {
            row.effects = changesBy(Fresh, bit);
            row.effects = row.effects.isEmpty() ? changesBy(Opposite, bit) : row.effects;
        }
        m_rows << row;
        high = low - 1;
    }
}

QVector<BitProbe::Effect> BitProbe::changesBy(State state, int bit) const
{
    return difference(m_base[state], m_flipped[state].value(bit));
}

bool BitProbe::isIdle(int bit) const
{
    return m_flipped[Fresh].value(bit) == m_base[Fresh] && m_flipped[Opposite].value(bit) == m_base[Opposite];
}

// Whether two bits move the same calls in both states: they may be parts of a number.
bool BitProbe::isAlike(int byte, int bit, int other) const
{
    for (const State state : {Fresh, Opposite}) {
        QStringList calls[2];
        for (const int i : {0, 1}) {
            for (const Effect &effect : changesBy(state, byte * Bits + (i == 0 ? bit : other))) {
                calls[i] << effect.call;
            }
        }
        if (calls[0] != calls[1]) {
            return false;
        }
    }
    return true;
}

// Whether each bit of the byte, flipped, changes one text, and there one character, into the one that the byte now
// stands for: a walk over 256 values would tell no more.
bool BitProbe::isCharacter(int byte) const
{
    bool isSeen = false;
    for (int bit = 0; bit < Bits; ++bit) {
        const QVector<Effect> changes = changesBy(Opposite, byte * Bits + bit);
        const uchar value = uchar(m_package.data.at(byte)) ^ uchar(1 << bit);
        if (changes.size() != 1 || !changes.first().call.startsWith(ScreenText)) {
            return false;
        }
        const QString before = m_base[Opposite].value(changes.first().call);
        const QString after = m_flipped[Opposite].value(byte * Bits + bit).value(changes.first().call);
        int other = 0;
        while (other < before.size() && other < after.size() && before.at(other) == after.at(other)) {
            ++other;
        }
        const bool isOne = before.size() == after.size() && before.mid(other + 1) == after.mid(other + 1) &&
                           after.mid(other, 1) == QString(QLatin1Char(char(value)));
        const bool isPrintable = value > ' ' && value < 0x7f;
        if (isPrintable && !isOne) {
            return false;
        }
        isSeen = isSeen || isPrintable;
    }
    return isSeen;
}

// The values of a run's calls for each of its own.
void BitProbe::probeRun(Row *row)
{
    if (row->high - row->low == Bits - 1 && isCharacter(row->byte)) {
        row->effects = {{changesBy(Opposite, row->byte * Bits).first().call, "a character of it"}};
        return;
    }
    QVector<QByteArray> datas;
    const int count = 1 << (row->high - row->low + 1);
    const int mask = (count - 1) << row->low;
    for (int value = 0; value < count; ++value) {
        QByteArray data = m_package.data;
        data[row->byte] = char((quint8(data.at(row->byte)) & ~mask) | (value << row->low));
        datas << data;
    }
    const QVector<Effects> all = tryOut(Opposite, datas, Quickly);
    QMap<QString, bool> calls; // sorted
    for (const Effects &effects : all) {
        for (const Effect &effect : difference(m_base[Opposite], effects)) {
            calls.insert(effect.call, true);
            m_moved << effect.call;
        }
    }
    for (auto call = calls.cbegin(); call != calls.cend(); ++call) {
        QStringList values;
        for (const Effects &effects : all) {
            values << absentOr(effects, call.key());
        }
        row->effects << Effect{call.key(), mapping(values)};
    }
}

// A value of \a call, or what holds without one.
QString BitProbe::absentOr(const Effects &effects, const QString &call) const
{
    return effects.contains(call)      ? readable(effects.value(call))
           : call.startsWith(CarValue) ? QString("not told")
           : call.startsWith(ScreenText)
               ? readable(m_unit->textsAtStart().value(call.mid(ScreenText.size()), "not there"))
           : call == Dialog ? QString("none")
           : call == PlugIn ? QString("lives")
                            : QString("no call");
}

QVector<BitProbe::Effect> BitProbe::difference(const Effects &before, const Effects &after) const
{
    QVector<Effect> result;
    if (before == after) {
        return result;
    }
    Effects both = before;
    both.insert(after);
    for (auto at = both.cbegin(); at != both.cend(); ++at) {
        const QString was = absentOr(before, at.key());
        const QString is = absentOr(after, at.key());
        if (was != is) {
            result << Effect{at.key(), was + " -> " + is};
        }
    }
    return result;
}
