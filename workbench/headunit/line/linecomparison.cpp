#include "linecomparison.h"

#include <algorithm>
#include <cmath>

namespace {

using Packages = QVector<LineTraffic::Package>;
using LineComparison::Difference;

const int FewestIntervals = 4;
const double SteadyPart = 0.3;  // of the usual interval, by which a steady one may be off
const double ClearFactor = 1.5; // between two rhythms
const char *const Directions[] = {"box>unit", "unit>box"};

QString bitNames(int byte, int mask)
{
    QStringList names;
    for (int bit = 7; bit >= 0; --bit) {
        if (mask & (1 << bit)) {
            names << QString("d[%1].%2").arg(byte).arg(bit);
        }
    }
    return names.join(' ');
}

QString hex(const QByteArray &data)
{
    return data.isEmpty() ? QString("no data") : QString::fromLatin1(data.toHex(' '));
}

QStringList lengths(const Packages &packages)
{
    QMap<int, bool> sizes; // sorted
    for (const LineTraffic::Package &package : packages) {
        sizes.insert(int(package.data.size()), true);
    }
    QStringList texts;
    for (const int size : sizes.keys()) {
        texts << QString::number(size);
    }
    return texts;
}

// Which bits of a byte are ever set and ever clear.
struct Seen
{
    int set = 0;
    int clear = 0;
};

Seen seen(const Packages &packages, int byte)
{
    Seen seen;
    for (const LineTraffic::Package &package : packages) {
        if (byte < package.data.size()) {
            const int value = quint8(package.data.at(byte));
            seen.set |= value;
            seen.clear |= ~value & 0xFF;
        }
    }
    return seen;
}

int longest(const Packages &packages)
{
    int length = 0;
    for (const LineTraffic::Package &package : packages) {
        length = qMax(length, int(package.data.size()));
    }
    return length;
}

// Byte by byte, each package beside its own.
void comparePairs(const Packages &first, const Packages &second, const Difference &head,
                  QVector<Difference> *result)
{
    for (int byte = 0; byte < qMin(longest(first), longest(second)); ++byte) {
        int mask = 0;
        int count = 0;
        int example = -1;
        for (int i = 0; i < first.size(); ++i) {
            if (byte < first.at(i).data.size() && byte < second.at(i).data.size() &&
                first.at(i).data.at(byte) != second.at(i).data.at(byte)) {
                mask |= quint8(first.at(i).data.at(byte)) ^ quint8(second.at(i).data.at(byte));
                example = example < 0 ? i : example;
                ++count;
            }
        }
        if (mask != 0) {
            Difference difference = head;
            difference.text = QString("%1 in %2 of %3 packages: %4 became %5")
                                  .arg(bitNames(byte, mask))
                                  .arg(count)
                                  .arg(first.size())
                                  .arg(hex(first.at(example).data), hex(second.at(example).data));
            *result << difference;
        }
    }
}

void compareBits(const Packages &first, const Packages &second, bool isFirstWhole, bool isSecondWhole,
                 const Difference &head, QVector<Difference> *result)
{
    for (int byte = 0; byte < qMin(longest(first), longest(second)); ++byte) {
        const Seen one = seen(first, byte);
        const Seen other = seen(second, byte);
        // What a whole box can say beyond the log is no difference.
        const int onlyFirst = isFirstWhole ? 0 : (one.set & ~other.set) | (one.clear & ~other.clear);
        const int onlySecond = isSecondWhole ? 0 : (other.set & ~one.set) | (other.clear & ~one.clear);
        if ((onlyFirst | onlySecond) != 0) {
            Difference difference = head;
            QStringList parts;
            if (onlyFirst != 0) {
                parts << bitNames(byte, onlyFirst) + " with a value that the second never has";
            }
            if (onlySecond != 0) {
                parts << bitNames(byte, onlySecond) + " with a value that the first never has";
            }
            difference.text = parts.join("; ");
            *result << difference;
        }
    }
}

// The usual interval in ms of a command that comes steadily; 0 of another.
double rhythm(const Packages &packages)
{
    QVector<double> intervals;
    for (int i = 1; i < packages.size(); ++i) {
        intervals << double(packages.at(i).microseconds - packages.at(i - 1).microseconds) / 1000;
    }
    if (intervals.size() < FewestIntervals) {
        return 0;
    }
    std::sort(intervals.begin(), intervals.end());
    const double usual = intervals.at(intervals.size() / 2);
    const double spread = intervals.at(intervals.size() * 3 / 4) - intervals.at(intervals.size() / 4);
    return spread <= SteadyPart * usual ? usual : 0;
}

void compareCommand(const LineTraffic &a, const LineTraffic &b, int direction, quint8 command,
                    QVector<Difference> *result)
{
    const Packages first = a.packages[direction].value(command);
    const Packages second = b.packages[direction].value(command);
    if (first.isEmpty() || second.isEmpty()) {
        return; // a whole box understands it, whatever its data
    }
    const Difference head = {"bits", Directions[direction], command, QString()};
    const QStringList one = lengths(first);
    const QStringList other = lengths(second);
    // A whole box may say more than a log has heard.
    const auto isMore = [](const QStringList &some, const QStringList &all) {
        for (const QString &length : some) {
            if (!all.contains(length)) {
                return true;
            }
        }
        return false;
    };
    const bool isFirstMore = a.isWhole && !b.isWhole;
    const bool isSecondMore = b.isWhole && !a.isWhole;
    if ((!isFirstMore && isMore(one, other)) || (!isSecondMore && isMore(other, one))) {
        *result << Difference{"length", head.direction, command,
                              QString("%1 data bytes in the first, %2 in the second")
                                  .arg(one.join(" or "), other.join(" or "))};
    }
    if (first.size() == second.size() && !a.isWhole && !b.isWhole) {
        comparePairs(first, second, head, result);
    } else {
        compareBits(first, second, isFirstMore, isSecondMore, head, result);
    }
    const double before = a.hasTimes ? rhythm(first) : 0;
    const double after = b.hasTimes ? rhythm(second) : 0;
    if (before > 0 && after > 0 && (before > after * ClearFactor || after > before * ClearFactor)) {
        *result << Difference{"rhythm", head.direction, command,
                              QString("every %1 ms in the first, every %2 ms in the second")
                                  .arg(qRound(before))
                                  .arg(qRound(after))};
    }
}

} // namespace

void LineTraffic::add(Direction direction, const BoxPackage &package, qint64 microseconds)
{
    packages[direction][package.command] << Package{package.data, microseconds};
}

QString LineComparison::Difference::line() const
{
    return QString("%1 0x%2 %3: %4").arg(direction).arg(command, 2, 16, QLatin1Char('0')).arg(kind, text);
}

QVector<LineComparison::Difference> LineComparison::differences(const LineTraffic &first,
                                                                const LineTraffic &second)
{
    QVector<Difference> result;
    for (const int direction : {int(LineTraffic::ToUnit), int(LineTraffic::ToBox)}) {
        QMap<quint8, bool> commands; // sorted
        for (const LineTraffic *side : {&first, &second}) {
            for (const quint8 command : side->packages[direction].keys()) {
                commands.insert(command, true);
            }
        }
        for (const quint8 command : commands.keys()) {
            const bool isInFirst = first.packages[direction].contains(command);
            const bool isInSecond = second.packages[direction].contains(command);
            if (isInFirst && isInSecond) {
                compareCommand(first, second, direction, command, &result);
            } else if (isInFirst && !isInSecond && (!first.isWhole || second.isWhole)) {
                result << Difference{"missing", Directions[direction], command, "only the first has it"};
            } else if (isInSecond && !isInFirst && (!second.isWhole || first.isWhole)) {
                result << Difference{"extra", Directions[direction], command, "only the second has it"};
            }
        }
    }
    return result;
}
