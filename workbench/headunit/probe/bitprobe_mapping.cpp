// A run's values in words.

#include "bitprobe.h"

#include <QRegularExpression>
#include <QtMath>

#include <cmath>

namespace {

// What a text says: "21.5°C" and "512 L/100km" are a number and its unit, "4:16" is 256 minutes, "0a00" of a list of
// bytes is one long number.
struct Figure
{
    bool isOne = false;
    double number = 0;
    double lastDigit = 1; // what it counts
    QString unit;
};

Figure readFigure(const QString &text, bool isBytes)
{
    static const QRegularExpression amount("^(-?[0-9]+(?:\\.([0-9]+))?)((?:[^0-9.:].*)?)$");
    static const QRegularExpression time("^([0-9]+):([0-9]{1,2})$");
    Figure figure;
    if (isBytes) {
        figure.number = double(text.toULongLong(&figure.isOne, 16));
        return figure;
    }
    QRegularExpressionMatch match = time.match(text);
    if (match.hasMatch()) {
        figure.number = match.captured(1).toDouble() * 60 + match.captured(2).toDouble();
        figure.unit = ":";
    } else {
        match = amount.match(text);
        figure.number = match.captured(1).toDouble();
        figure.lastDigit = qPow(10, -match.captured(2).size());
        figure.unit = match.captured(3);
    }
    figure.isOne = match.hasMatch();
    return figure;
}

// Up to eight bytes in hexadecimal digits each, and no numbers that happen to be as long.
bool areBytes(const QStringList &values)
{
    static const QRegularExpression bytes("^([0-9a-f]{2}){2,8}$");
    bool hasOwnDigit = false;
    for (const QString &value : values) {
        if (value.size() != values.first().size() || !bytes.match(value).hasMatch()) {
            return false;
        }
        hasOwnDigit = hasOwnDigit || value.startsWith('0') || value.contains(QRegularExpression("[a-f]"));
    }
    return hasOwnDigit;
}

QString numberText(int number)
{
    return number < 10 ? QString::number(number) : "0x" + QString::number(number, 16);
}

// Numbers that rise or fall along a line. Ten or more may also follow one as far as their last digit shows it: then they
// go by two amounts, which differ by that digit (a car's 1.6 km are 1, 3, 4, 6 ...). Fewer are a table, and stairs of few
// steps are levels.
class Line
{
public:
    // Whether \a number goes on in the direction of those before it.
    bool append(double number)
    {
        if (!m_numbers.isEmpty()) {
            const double step = number - m_numbers.last();
            if (step * m_direction < 0) {
                return false;
            }
            m_direction = m_direction != 0 ? m_direction : step;
            m_least = m_numbers.size() == 1 ? qAbs(step) : qMin(m_least, qAbs(step));
            m_most = qMax(m_most, qAbs(step));
            m_levels += step != 0;
        }
        m_numbers << number;
        return true;
    }

    bool isStrict() const { return m_levels + 1 == m_numbers.size(); }

    bool isSteady(double lastDigit) const
    {
        const int last = int(m_numbers.size()) - 1;
        const double most = last < 9 ? 0 : lastDigit;
        if (m_levels < qMin(last, 4) || m_most - m_least > most + lastDigit * 0.001) {
            return false;
        }
        const double step = (m_numbers.last() - m_numbers.first()) / last;
        for (int k = 1; k < last; ++k) {
            if (qAbs(m_numbers.at(k) - m_numbers.first() - k * step) > most + lastDigit * 0.001) {
                return false;
            }
        }
        return true;
    }

    // What the last digit counts when the numbers are bytes: the place of the byte that changes.
    double changingByte() const { return qPow(256, std::floor(std::log2(qMax(m_most, 1.0)) / 8)); }

private:
    QVector<double> m_numbers;
    double m_direction = 0;
    double m_least = 0; // steps
    double m_most = 0;
    int m_levels = 0;
};

// How many values from \a from on rise or fall steadily, in the same unit.
int steadyCount(const QStringList &values, int from, bool isBytes)
{
    Line line;
    const Figure first = readFigure(values.at(from), isBytes);
    int strict = 1;
    int steady = 1;
    for (int i = from; i < values.size(); ++i) {
        const Figure figure = readFigure(values.at(i), isBytes);
        if (!figure.isOne || figure.unit != first.unit || !line.append(figure.number)) {
            break;
        }
        const int count = i - from + 1;
        if (line.isStrict()) {
            strict = count;
        }
        if (line.isSteady(isBytes ? line.changingByte() : first.lastDigit)) {
            steady = count;
        }
    }
    // A level at the end is the limit that the values reach, and no part of stairs.
    return steady >= 2 * strict ? steady : qMin(strict, steady);
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
    const bool isBytes = areBytes(values);
    QStringList parts;
    bool hasRest = false;
    for (int i = 0; i < values.size();) {
        const int steady = steadyCount(values, i, isBytes);
        int count = steady > 2 ? steady : 1;
        while (steady <= 2 && i + count < values.size() && values.at(i + count) == values.at(i)) {
            ++count;
        }
        if (values.at(i) != rest || (steady > 2 && values.at(i + 1) != values.at(i))) {
            const bool isOne = values.at(i) == values.at(i + count - 1);
            parts << QString("%1 = %2").arg(
                count == 1 ? numberText(i) : numberText(i) + ".." + numberText(i + count - 1),
                isOne ? values.at(i) : values.at(i) + ".." + values.at(i + count - 1));
        } else {
            hasRest = true;
        }
        i += count;
    }
    if (hasRest) {
        parts << (parts.isEmpty() ? "always " : "else ") + rest;
    }
    return parts.join(", ");
}
