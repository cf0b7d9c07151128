#include "inspection.h"

#include "boxcatalog.h"
#include "packagevalues.h"

namespace {

const qint64 Second = 1000000;         // microseconds
const qint64 AnswerPatience = Second;  // what is acknowledged later was not heard
const size_t MostWaiting = 64;         // packages that wait to be answered, or to be taken
const int MostCalls = 1000;            // of one package
const int DroppedAtOnce = MostWaiting; // rows: to drop each one by itself costs whoever shows them
const QString Opened = QStringLiteral(".setVisible true");
const QString Shown = QStringLiteral("screen ");

} // namespace

QStringList InspectionRow::screens() const
{
    QStringList screens;
    for (const QString &call : calls) {
        if (call.endsWith(Opened)) {
            screens << call.left(call.size() - Opened.size());
        } else if (call.startsWith(Shown)) {
            screens << call.mid(Shown.size());
        }
    }
    return screens;
}

// ------------------------------------------------------------------------------------------- rates

void Inspection::Rate::note(qint64 microseconds)
{
    const qint64 second = microseconds / Second;
    for (int i = 0; m_second < second && i <= Span; ++i) {
        ++m_second;
        m_counts[m_second % (Span + 1)] = 0;
    }
    m_second = second;
    ++m_counts[second % (Span + 1)];
    first = count == 0 ? microseconds : first;
    last = microseconds;
    ++count;
}

double Inspection::Rate::perSecond(qint64 now) const
{
    // The seconds that are over; of a line that is younger than that, all.
    const qint64 second = now / Second;
    const qint64 from = qMax(second - Span, first / Second);
    int sum = 0;
    for (qint64 at = from; at < second; ++at) {
        sum += at <= m_second && at > m_second - Span - 1 ? m_counts[at % (Span + 1)] : 0;
    }
    return second == from ? double(count) : double(sum) / double(second - from);
}

// ------------------------------------------------------------------------------------------- the line

Inspection::Inspection(int type) : m_type(type)
{
    QString error;
    m_values = PackageValues::create(type, &error);
    if (const FrameFormat *format = BoxCatalog::frameOf(type)) {
        m_framers[0].reset(new LineFramer(*format));
        m_framers[1].reset(new LineFramer(*format));
    }
}

Inspection::~Inspection() = default;

void Inspection::feed(const LineRecord &record)
{
    m_now = qMax(m_now, record.microseconds);
    const bool isTowardsUnit = record.isTowardsUnit();
    LineFramer *const framer = m_framers[isTowardsUnit].get();
    if (record.kind == LineRecord::State) {
        for (const bool direction : {false, true}) {
            if (m_framers[direction]) { // what comes after a loss is no continuation
                m_framers[direction]->giveUp();
                drain(m_framers[direction].get(), direction);
            }
        }
        InspectionRow row;
        row.kind = InspectionRow::State;
        row.microseconds = record.microseconds;
        row.name = record.text;
        row.isExplained = true;
        append(row);
    } else if (!framer) {
        addNoise(record.bytes, record.microseconds, isTowardsUnit);
    } else {
        framer->feed(record.bytes, record.microseconds);
        drain(framer, isTowardsUnit);
    }
}

void Inspection::pass(qint64 microseconds)
{
    m_now = qMax(m_now, microseconds);
    for (const bool isTowardsUnit : {false, true}) {
        if (LineFramer *const framer = m_framers[isTowardsUnit].get()) {
            framer->feed(QByteArray(), m_now);
            drain(framer, isTowardsUnit);
        }
    }
}

void Inspection::drain(LineFramer *framer, bool isTowardsUnit)
{
    for (LinePiece piece; framer->next(&piece);) {
        if (piece.kind == LinePiece::Answer) {
            acknowledge(!isTowardsUnit, piece.microseconds);
        } else if (piece.kind == LinePiece::Skipped) {
            // The bytes of a bad package have had their row.
            if (!m_badBytes[isTowardsUnit].startsWith(piece.bytes)) {
                addNoise(piece.bytes, piece.microseconds, isTowardsUnit);
            }
            m_badBytes[isTowardsUnit].clear();
        } else {
            addPiece(piece, isTowardsUnit);
        }
    }
}

void Inspection::addPiece(const LinePiece &piece, bool isTowardsUnit)
{
    const BoxPackage package = m_framers[isTowardsUnit]->format().package(piece.bytes);
    InspectionRow row;
    row.microseconds = piece.microseconds;
    row.isTowardsUnit = isTowardsUnit;
    row.command = package.command;
    row.data = package.data;
    row.bytes = piece.bytes;
    Rate &rate = m_rates[{isTowardsUnit, package.command}];
    rate.name = nameOf(package.command, isTowardsUnit);
    row.name = rate.name;
    if (piece.kind == LinePiece::BadPackage) {
        row.kind = InspectionRow::BadPackage;
        m_badBytes[isTowardsUnit] = piece.bytes;
        ++rate.bad;
        append(row);
        return;
    }
    compare(&row);
    rate.note(row.microseconds);
    rate.changes += row.hasChanged() ? 1 : 0;
    std::deque<qint64> &unanswered = m_unanswered[isTowardsUnit];
    unanswered.push_back(endNumber());
    if (unanswered.size() > MostWaiting) {
        unanswered.pop_front();
    }
    if (!isTowardsUnit) {
        append(row);
        return;
    }
    for (size_t i = 0; i < m_early.size(); ++i) {
        if (m_early[i].bytes == row.bytes) {
            row.isTaken = true;
            const QStringList calls = m_early[i].calls;
            const bool isCurrent = m_isCurrentEarly && i + 1 == m_early.size();
            m_early.erase(m_early.begin(), m_early.begin() + int(i) + 1);
            append(row);
            const qint64 before = m_current;
            m_current = endNumber() - 1;
            m_isCurrentEarly = false;
            for (const QString &call : calls) {
                called(call);
            }
            m_current = isCurrent ? m_current : before;
            return;
        }
    }
    m_untaken.push_back(endNumber());
    if (m_untaken.size() > MostWaiting) {
        m_untaken.pop_front();
    }
    append(row);
}

// Says what is new about a package, and whether anything is left to be found out about it.
void Inspection::compare(InspectionRow *row)
{
    History &history = m_histories[{row->isTowardsUnit, row->command}];
    row->isFirst = m_rates[{row->isTowardsUnit, row->command}].count == 0;
    row->changed = QByteArray(row->data.size(), '\0');
    for (int i = 0; i < row->data.size() && !row->isFirst; ++i) {
        const int before = i < history.data.size() ? history.data.at(i) : 0;
        row->changed[i] = i < history.data.size() ? char(row->data.at(i) ^ before) : '\xFF';
    }
    if (!row->isTowardsUnit) {
        row->isExplained = !row->name.isEmpty();
    } else {
        row->known = m_values ? m_values->toldBits({row->command, row->data}) : QByteArray();
        bool isStrange = row->known.isEmpty() && (!history.isExplained || row->hasChanged());
        for (int i = 0; i < row->data.size() && !row->known.isEmpty(); ++i) {
            isStrange = isStrange || row->strangeBits(i) != 0;
        }
        row->isExplained = !isStrange;
    }
    history.isExplained = row->isExplained;
    history.data = row->data;
}

// The oldest package that waits for it. One that was said again before it was acknowledged waits no longer.
void Inspection::acknowledge(bool isTowardsUnit, qint64 microseconds)
{
    std::deque<qint64> &waiting = m_unanswered[isTowardsUnit];
    while (!waiting.empty()) {
        const qint64 number = waiting.front();
        waiting.pop_front();
        if (number < m_firstNumber || microseconds - row(number).microseconds > AnswerPatience) {
            continue;
        }
        const bool isRepeated = !waiting.empty() && row(waiting.front()).bytes == row(number).bytes &&
                                row(waiting.front()).microseconds <= microseconds;
        if (!isRepeated) {
            m_rows[size_t(number - m_firstNumber)].acknowledgement =
                qMax<qint64>(0, microseconds - row(number).microseconds);
            return;
        }
    }
}

void Inspection::addNoise(const QByteArray &bytes, qint64 microseconds, bool isTowardsUnit)
{
    InspectionRow row;
    row.kind = InspectionRow::Noise;
    row.microseconds = microseconds;
    row.isTowardsUnit = isTowardsUnit;
    row.bytes = bytes;
    append(row);
}

void Inspection::append(const InspectionRow &row)
{
    m_rows.push_back(row);
    if (int(m_rows.size()) > MostRows) {
        m_rows.erase(m_rows.begin(), m_rows.begin() + DroppedAtOnce);
        m_firstNumber += DroppedAtOnce;
    }
}

void Inspection::clear()
{
    m_firstNumber = endNumber();
    m_rows.clear();
    m_rates.clear();
    m_histories.clear();
    m_untaken.clear();
    m_unanswered[0].clear();
    m_unanswered[1].clear();
    done();
}

QString Inspection::nameOf(quint8 command, bool isTowardsUnit)
{
    const Command key{isTowardsUnit, command};
    if (!m_names.contains(key)) {
        m_names.insert(key, m_values ? m_values->commandName(command, isTowardsUnit) : QString());
    }
    return m_names.value(key);
}

// ------------------------------------------------------------------------------------------- the plug-in

void Inspection::taken(const QByteArray &frame)
{
    done();
    for (size_t i = 0; i < m_untaken.size(); ++i) {
        if (m_untaken[i] >= m_firstNumber && row(m_untaken[i]).bytes == frame) {
            m_current = m_untaken[i];
            m_rows[size_t(m_current - m_firstNumber)].isTaken = true;
            m_untaken.erase(m_untaken.begin(), m_untaken.begin() + int(i) + 1);
            return;
        }
    }
    InspectionRow early;
    early.bytes = frame;
    m_early.push_back(early);
    if (m_early.size() > MostWaiting) {
        m_early.pop_front();
    }
    m_isCurrentEarly = true;
}

void Inspection::unitKey(quint32 code, int phase)
{
    done();
    InspectionRow row;
    row.kind = InspectionRow::UnitKey;
    row.microseconds = m_now;
    row.isExplained = true;
    row.name =
        QString("0x%1 %2").arg(code, 0, 16).arg(QStringList{"release", "press", "repeat"}.value(phase));
    append(row);
    m_current = endNumber() - 1;
}

void Inspection::called(const QString &call)
{
    if (m_isCurrentEarly) {
        m_early.back().calls << call;
        return;
    }
    if (m_current >= m_firstNumber) {
        InspectionRow &row = m_rows[size_t(m_current - m_firstNumber)];
        if (row.calls.size() < MostCalls) {
            row.calls << call;
        }
        if (row.kind == InspectionRow::Package && row.known.isEmpty()) {
            row.isExplained = true;
            m_histories[{row.isTowardsUnit, row.command}].isExplained = true;
        }
        return;
    }
    InspectionRow row;
    row.kind = InspectionRow::Call;
    row.microseconds = m_now;
    row.isExplained = true;
    row.calls << call;
    append(row);
}

const InspectionRow *Inspection::current() const
{
    return m_isCurrentEarly ? &m_early.back() : m_current >= m_firstNumber ? &row(m_current) : nullptr;
}

void Inspection::done()
{
    m_current = -1;
    m_isCurrentEarly = false;
}
