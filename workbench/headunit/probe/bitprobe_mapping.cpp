// A run's values in words.

#include "bitprobe.h"

#include <QRegularExpression>

namespace {

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

} // namespace

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
