#include "linefaults.h"

namespace {

const quint32 StandardSeed = 20;

QString told(const char *what, int number)
{
    return QString(", ") + QString(what).arg(number);
}

} // namespace

const QVector<LineFaults::Row> &LineFaults::rows()
{
    static const QVector<Row> table = {
        {Flip, "flip", "", "a bit of the package is wrong"},
        {Corrupt, "corrupt", "", "the package has a wrong byte"},
        {Drop, "drop", "", "a byte of the package is lost"},
        {Double, "double", "", "a byte of the package comes twice"},
        {Cut, "cut", "N", "the package ends after N bytes"},
        {Stall, "stall", "MS", "the package pauses in its middle"},
        {Garbage, "garbage", "N", "N bytes of noise come before the package"},
        {Length, "length", "", "the package's length byte lies"},
        {Late, "late", "MS", "the box's acknowledgement comes so much later"},
    };
    return table;
}

LineFaults::LineFaults() : m_states(rows().size()), m_random(StandardSeed) {}

void LineFaults::strikeNext(Kind kind, int amount)
{
    m_states[kind].isNext = true;
    m_states[kind].nextAmount = amount;
}

void LineFaults::setRate(Kind kind, int amount, double percent)
{
    m_states[kind].percent = percent;
    m_states[kind].amount = amount;
}

void LineFaults::clear()
{
    m_states.fill(State());
}

LineFaults::Spoilt LineFaults::spoil(const QByteArray &frame, int lengthAt)
{
    Spoilt result = {frame, 0, 0, QString()};
    int amount = 0;
    for (const Kind kind : {Length, Flip, Corrupt, Drop, Double}) {
        if (strikes(kind, &amount)) {
            spoilByte(kind, lengthAt, &result.bytes, &result.what);
        }
    }
    if (strikes(Cut, &amount) && amount < result.bytes.size()) {
        result.bytes.truncate(amount);
        result.what += told("cut after %1 bytes", amount);
    }
    if (strikes(Stall, &amount)) {
        result.pauseAt = int(result.bytes.size()) / 2;
        result.pauseMs = amount;
        result.what += told("stalls for %1 ms", amount);
    }
    if (strikes(Garbage, &amount)) {
        result.bytes.prepend(noise(amount));
        result.pauseAt += result.pauseMs > 0 ? amount : 0;
        result.what += told("behind %1 bytes of noise", amount);
    }
    return result;
}

int LineFaults::lateness()
{
    int ms = 0;
    return strikes(Late, &ms) ? ms : 0;
}

QByteArray LineFaults::noise(int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i) {
        bytes += char(m_random.bounded(256));
    }
    return bytes;
}

bool LineFaults::strikes(Kind kind, int *amount)
{
    State &state = m_states[kind];
    if (state.isNext) {
        state.isNext = false;
        *amount = state.nextAmount;
        return true;
    }
    *amount = state.amount;
    return state.percent > 0 && m_random.generateDouble() * 100 < state.percent;
}

// Anywhere but at the start byte, so that it is this package that is spoilt.
int LineFaults::place(const QByteArray &frame)
{
    return 1 + int(m_random.bounded(quint32(frame.size() - 1)));
}

void LineFaults::spoilByte(Kind kind, int lengthAt, QByteArray *bytes, QString *what)
{
    const int at = kind == Length ? lengthAt : place(*bytes);
    const quint8 byte = quint8(bytes->at(at));
    switch (kind) {
    case Flip:
        (*bytes)[at] = char(byte ^ (1 << m_random.bounded(8)));
        *what += told("a bit of byte %1 flipped", at);
        break;
    case Drop:
        bytes->remove(at, 1);
        *what += told("byte %1 lost", at);
        break;
    case Double:
        bytes->insert(at, char(byte));
        *what += told("byte %1 twice", at);
        break;
    case Length:
        (*bytes)[at] = char(byte + 1 + m_random.bounded(255));
        *what += told("length %1", quint8(bytes->at(at)));
        break;
    default:
        (*bytes)[at] = char(byte ^ 0x10);
        *what += told("byte %1 corrupt", at);
        break;
    }
}
