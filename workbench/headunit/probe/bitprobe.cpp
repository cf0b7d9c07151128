#include "bitprobe.h"

#include "orbeventtypes.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

const int MostPairs = 3000;
const int Bits = 8;

// An event is told apart by what it is about; the other members are its values.
void take(const CallWatch::Call &call, QMap<QString, QStringList> *values)
{
    if (call.name == "dispatchOrbEvent" || call.name == "event") {
        QString about = "event";
        for (const QString &arg : call.args) {
            const QString key = arg.section('=', 0, 0);
            const QString value = arg.section('=', 1);
            if (key == "type" && value != QString::number(OrbEventType::Notify)) {
                about += ' ' + value;
            } else if (key == "param") {
                about += ' ' + value;
            } else if (key != "source" && key != "id" && key != "type") {
                (*values)[about + (key == "param2" ? QString() : ' ' + key)] << value;
            }
        }
    } else if (call.object != "OrbApplication" && call.args.size() > 1) {
        for (int i = 0; i < call.args.size(); ++i) {
            (*values)[QString("%1 #%2").arg(call.name).arg(i + 1)] << call.args.at(i);
        }
    } else {
        const bool isOwn = call.object == "AirConditionDlg" || call.object == "OrbApplication";
        (*values)[isOwn ? call.name : call.object + '.' + call.name]
            << (call.args.isEmpty() ? QString("called") : call.args.join(' '));
    }
}

BitProbe::Effects effectsOf(const QVector<CallWatch::Call> &calls)
{
    QMap<QString, QStringList> values;
    for (const CallWatch::Call &call : calls) {
        take(call, &values);
    }
    BitProbe::Effects effects;
    for (auto at = values.begin(); at != values.end(); ++at) {
        effects.insert(at.key(), at.value().join(", "));
    }
    return effects;
}

QString readable(const QString &value)
{
    return value.isEmpty() ? QString("empty") : value;
}

QString absentOr(const BitProbe::Effects &effects, const QString &call)
{
    return effects.contains(call) ? readable(effects.value(call)) : QString("no call");
}

// "21.5°C" in parts; false for what is no number with a unit.
bool readNumber(const QString &text, double *number, QString *unit)
{
    static const QRegularExpression form("^(-?[0-9]+(?:\\.[0-9]+)?)([^0-9]*)$");
    const QRegularExpressionMatch match = form.match(text);
    *number = match.captured(1).toDouble();
    *unit = match.captured(2);
    return match.hasMatch();
}

QString numberText(int number)
{
    return number < 10 ? QString::number(number) : "0x" + QString::number(number, 16);
}

// How many values from \a from on rise or fall steadily, in the same unit; roundings to whole numbers count.
int steadyCount(const QStringList &values, int from)
{
    QVector<double> numbers;
    QString unit;
    QString other;
    double number = 0;
    int steady = 1;
    for (int i = from; i < values.size() && readNumber(values.at(i), &number, &other); ++i) {
        unit = i == from ? other : unit;
        if (unit != other) {
            break;
        }
        numbers << number;
        const int last = int(numbers.size()) - 1;
        const double step = last > 0 ? (numbers.last() - numbers.first()) / last : 0;
        double off = 0;
        bool isRising = step != 0;
        for (int k = 1; k <= last; ++k) {
            off = qMax(off, qAbs(numbers.at(k) - numbers.first() - k * step));
            isRising = isRising && (numbers.at(k) - numbers.at(k - 1)) * step > 0;
        }
        if (last > 0 && (!isRising || off > (qAbs(step) > 1 ? 1.0 : 0.001))) {
            break;
        }
        steady = last + 1;
    }
    return steady;
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

BitProbe::BitProbe(ProbeUnit *unit, const FrameFormat &format, const BoxPackage &package)
    : m_unit(unit), m_format(format), m_package(package)
{}

bool BitProbe::run(int only, bool walksValues, QString *error)
{
    bool ok =
        tryOut(Fresh, m_package.data, &m_base[Fresh]) && tryOut(Opposite, m_package.data, &m_base[Opposite]);
    for (int byte = 0; ok && byte < m_package.n(); ++byte) {
        ok = (only >= 0 && byte != only) || probeBits(byte);
        if (only >= 0 && byte != only) {
            continue;
        }
        for (int high = Bits - 1; ok && high >= 0;) {
            int low = walksValues ? 0 : high;
            while (low > 0 && isAlike(byte, high, low - 1)) {
                --low;
            }
            Row row = {byte, high, low, {}, false, {}};
            for (int bit = low; bit <= high; ++bit) {
                const int key = byte * Bits + bit;
                row.dependsOnState = row.dependsOnState ||
                                     textOf(difference(m_base[Fresh], m_flipped[Fresh].value(key))) !=
                                         textOf(difference(m_base[Opposite], m_flipped[Opposite].value(key)));
            }
            ok = probeRun(&row);
            m_rows << row;
            high = low - 1;
        }
    }
    ok = ok && probePairs();
    *error = m_error;
    return ok;
}

bool BitProbe::tryOut(State state, const QByteArray &data, Effects *effects)
{
    QVector<QByteArray> packages;
    if (state == Opposite) {
        BoxPackage opposite = m_package;
        for (char &byte : opposite.data) {
            byte = char(~byte);
        }
        packages << m_format.frame(opposite);
    }
    packages << m_format.frame({m_package.command, data});
    const ProbeUnit::Trial trial = m_unit->tryOut(packages);
    m_hasDialogs = m_hasDialogs || trial.hasDialog;
    if (!trial.problem.isEmpty()) {
        m_error = QString("%1: %2").arg(QString::fromLatin1(packages.last().toHex()), trial.problem);
    } else if (!trial.isFramed) {
        m_error = QString("the decoder does not take %1 for a package")
                      .arg(QString::fromLatin1(packages.last().toHex()));
    }
    *effects = effectsOf(trial.calls);
    return m_error.isEmpty();
}

bool BitProbe::probeBits(int byte)
{
    for (int bit = 0; bit < Bits; ++bit) {
        QByteArray data = m_package.data;
        data[byte] = char(data.at(byte) ^ (1 << bit));
        for (const State state : {Fresh, Opposite}) {
            if (!tryOut(state, data, &m_flipped[state][byte * Bits + bit])) {
                return false;
            }
        }
    }
    return true;
}

// Whether two bits move the same calls in both states: they may be parts of a number.
bool BitProbe::isAlike(int byte, int bit, int other) const
{
    for (const State state : {Fresh, Opposite}) {
        QStringList calls[2];
        for (const int i : {0, 1}) {
            for (const Effect &effect :
                 difference(m_base[state], m_flipped[state].value(byte * Bits + (i == 0 ? bit : other)))) {
                calls[i] << effect.call;
            }
        }
        if (calls[0] != calls[1]) {
            return false;
        }
    }
    return true;
}

// A single bit is told as a change, a run by the values of its calls for each of its own.
bool BitProbe::probeRun(Row *row)
{
    const int key = row->byte * Bits + row->high;
    QVector<Effect> changes = difference(m_base[Fresh], m_flipped[Fresh].value(key));
    changes = changes.isEmpty() ? difference(m_base[Opposite], m_flipped[Opposite].value(key)) : changes;
    if (row->high == row->low || (changes.isEmpty() && row->high - row->low < Bits - 1)) {
        row->effects = changes;
        return true;
    }
    QVector<Effects> all;
    QSet<QString> calls;
    const int count = 1 << (row->high - row->low + 1);
    for (int value = 0; value < count; ++value) {
        QByteArray data = m_package.data;
        const int mask = (count - 1) << row->low;
        data[row->byte] = char((quint8(data.at(row->byte)) & ~mask) | (value << row->low));
        Effects effects;
        if (!tryOut(Opposite, data, &effects)) {
            return false;
        }
        for (const Effect &effect : difference(m_base[Opposite], effects)) {
            calls << effect.call;
        }
        all << effects;
    }
    QStringList names = calls.values();
    names.sort();
    for (const QString &call : std::as_const(names)) {
        QStringList values;
        for (const Effects &effects : std::as_const(all)) {
            values << absentOr(effects, call);
        }
        row->effects << Effect{call, mapping(values)};
    }
    return true;
}

// Bits that do nothing by themselves, each with each other one.
bool BitProbe::probePairs()
{
    int pairs = 0;
    for (Row &row : m_rows) {
        for (int bit = row.low; row.effects.isEmpty() && bit <= row.high && row.partner.isEmpty(); ++bit) {
            for (auto other = m_flipped[Opposite].cbegin(); other != m_flipped[Opposite].cend(); ++other) {
                if (other.key() == row.byte * Bits + bit || ++pairs > MostPairs) {
                    continue;
                }
                QByteArray data = m_package.data;
                data[other.key() / Bits] = char(data.at(other.key() / Bits) ^ (1 << other.key() % Bits));
                data[row.byte] = char(data.at(row.byte) ^ (1 << bit));
                Effects effects;
                if (!tryOut(Opposite, data, &effects)) {
                    return false;
                }
                if (effects != other.value()) {
                    row.partner = QString("d[%1].%2").arg(other.key() / Bits).arg(other.key() % Bits);
                    break;
                }
            }
        }
    }
    return true;
}

QVector<BitProbe::Effect> BitProbe::difference(const Effects &before, const Effects &after)
{
    QVector<Effect> result;
    QStringList calls = before.keys() + after.keys();
    calls.removeDuplicates();
    calls.sort();
    for (const QString &call : std::as_const(calls)) {
        const QString was = absentOr(before, call);
        const QString is = absentOr(after, call);
        if (was != is) {
            result << Effect{call, was + " -> " + is};
        }
    }
    return result;
}

QString BitProbe::mapping(const QStringList &values)
{
    QMap<QString, int> counts;
    for (const QString &value : values) {
        ++counts[value];
    }
    // What many values share is told last, as "else".
    QString rest;
    for (auto at = counts.cbegin(); at != counts.cend(); ++at) {
        if (at.value() > 2 && (rest.isEmpty() || at.value() > counts.value(rest))) {
            rest = at.key();
        }
    }
    QStringList parts;
    for (int i = 0; i < values.size();) {
        const int steady = steadyCount(values, i);
        int count = steady > 2 ? steady : 1;
        while (steady <= 2 && i + count < values.size() && values.at(i + count) == values.at(i)) {
            ++count;
        }
        if (values.at(i) != rest || (steady > 2 && values.at(i + 1) != values.at(i))) {
            const bool isOne = values.at(i) == values.at(i + count - 1);
            parts << QString("%1 = %2").arg(
                count == 1 ? numberText(i) : numberText(i) + ".." + numberText(i + count - 1),
                isOne ? values.at(i) : values.at(i) + ".." + values.at(i + count - 1));
        }
        i += count;
    }
    if (!rest.isEmpty()) {
        parts << (parts.isEmpty() ? "always " : "else ") + rest;
    }
    return parts.join(", ");
}
