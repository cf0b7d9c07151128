#include "reportfit.h"

#include <QtAlgorithms>

#include <algorithm>
#include <cmath>

namespace {

const int MostTried = 1200;  // values of a property that are tried one by one; of more, numbers are read
const int MostRounds = 4;    // through all properties: one may decide what another's values look like
const int MostSearches = 32; // that are begun anew
const int LongestText = 24;

QVector<QVariant> valuesOf(const CarProperty &property)
{
    QVector<QVariant> values;
    switch (property.kind) {
    case CarProperty::Switch:
        return {false, true};
    case CarProperty::Choice:
        for (const QString &choice : property.choices) {
            values << choice;
        }
        return values;
    case CarProperty::Temperature:
        values << "LO"
               << "HI";
        break;
    case CarProperty::Integer:
    case CarProperty::Real:
        break;
    case CarProperty::Text:
    case CarProperty::NumberList:
        return {};
    }
    const double step = property.kind == CarProperty::Integer ? 1 : property.step;
    const int count = int((property.maximum - property.minimum) / step) + 1;
    for (int i = 0; i < count && count <= MostTried; ++i) {
        values << property.minimum + i * step;
    }
    return values;
}

// The bytes of a report in which it differs for some number of steps from what it is for the most.
template <typename Report>
QVector<int> placesThatChange(const Report &report, double most)
{
    const QByteArray last = report(std::floor(most));
    QVector<int> places;
    for (qint64 steps = qint64(most / 2); steps >= 1; steps /= 2) {
        const QByteArray other = report(double(steps));
        for (int i = 0; i < qMin(last.size(), other.size()); ++i) {
            if (other.at(i) != last.at(i) && !places.contains(i)) {
                places << i;
            }
        }
    }
    std::sort(places.begin(), places.end());
    return places;
}

bool isDecisive(const CarProperty &property)
{
    return property.kind == CarProperty::Switch || property.kind == CarProperty::Choice;
}

quint64 numberIn(const QByteArray &bytes, const QVector<int> &places)
{
    quint64 number = 0;
    for (const int place : places) {
        number = number << 8 | (place < bytes.size() ? quint8(bytes.at(place)) : 0);
    }
    return number;
}

} // namespace

ReportFit::ReportFit(const BoxReport &report) : m_report(report)
{
    for (const CarProperty &property : CarProperty::all()) {
        if (report.isAbout(property.name)) {
            m_rows.append({&property, valuesOf(property)});
        }
    }
}

QByteArray ReportFit::bits() const
{
    const QByteArray usual = m_report.data(SimulatedCar());
    QByteArray bits(usual.size(), '\0');
    const auto add = [&](const QString &name, const QVariant &value) {
        SimulatedCar car;
        car.setValue(name, value);
        const QByteArray other = m_report.data(car);
        bits += QByteArray(qMax(0, int(other.size() - bits.size())), '\0');
        for (int i = 0; i < other.size(); ++i) {
            const int before = i < usual.size() ? usual.at(i) : 0;
            bits[i] = char(bits.at(i) | (before ^ other.at(i)));
        }
    };
    for (const Row &row : m_rows) {
        const CarProperty &property = *row.property;
        const double step = property.kind == CarProperty::Integer ? 1 : property.step;
        for (const QVariant &value : row.values) {
            add(property.name, value);
        }
        for (double steps = 1; step > 0 && property.minimum + steps * step <= property.maximum; steps *= 2) {
            add(property.name, property.minimum + steps * step);
            add(property.name, property.maximum - steps * step);
        }
        if (property.kind == CarProperty::Text) {
            add(property.name, QString(LongestText, 'U')); // between them all bits of a character
            add(property.name, QString(LongestText, '*'));
        }
    }
    return bits;
}

int ReportFit::fit(const QByteArray &data, SimulatedCar *car) const
{
    int best = descend(data, car, [](const CarProperty &) { return false; });
    if (best > 0) {
        best = tryEveryWay(data, best, car);
    }
    return best;
}

// What a search ends in may be near and wrong: degrees where the box means Fahrenheit. So it is begun anew with the values
// of switches and choices held: all of them together, where that is few searches, else one at a time.
int ReportFit::tryEveryWay(const QByteArray &data, int best, SimulatedCar *car) const
{
    int ways = 1;
    int searches = 0;
    for (const Row &row : m_rows) {
        const int count = isDecisive(*row.property) ? int(row.values.size()) : 1;
        ways = qMin(ways * count, MostSearches + 1);
        searches += count > 1 ? count : 0;
    }
    const bool isTogether = ways <= MostSearches;
    for (int search = 0; search < (isTogether ? ways : qMin(searches, MostSearches)) && best > 0; ++search) {
        SimulatedCar other;
        QStringList held;
        int rest = search;
        for (const Row &row : m_rows) {
            const int count = isDecisive(*row.property) ? int(row.values.size()) : 1;
            if (count > 1 && (isTogether || (rest >= 0 && rest < count))) {
                other.setValue(row.property->name, row.values.at(rest % count));
                held << row.property->name;
            }
            rest = isTogether ? rest / count : rest - (count > 1 ? count : 0);
        }
        const int found = descend(
            data, &other, [&held](const CarProperty &property) { return held.contains(property.name); });
        if (found < best) {
            best = found;
            copy(other, car);
        }
    }
    return best;
}

QVector<const CarProperty *> ReportFit::told(const QByteArray &data, SimulatedCar *car) const
{
    QVector<const CarProperty *> told;
    for (const Row &row : m_rows) {
        if (changesWhatFits(row, data, car) && !couldBeOtherwise(row, data, *car)) {
            told << row.property;
        }
    }
    return told;
}

// Whether other values of the property change the report, and only where it is as in the data.
bool ReportFit::changesWhatFits(const Row &row, const QByteArray &data, SimulatedCar *car) const
{
    const QByteArray now = m_report.data(*car);
    const QVariant value = car->value(row.property->name);
    QVector<QVariant> values = row.values;
    if (values.isEmpty()) {
        values << row.property->minimum << row.property->maximum << "1"
               << "x";
    }
    bool changes = false;
    bool fits = now.size() == data.size();
    for (const QVariant &other : qAsConst(values)) {
        car->setValue(row.property->name, other);
        const QByteArray changed = m_report.data(*car);
        for (int i = 0; i < now.size() && fits; ++i) {
            const int bits = i < changed.size() ? quint8(now.at(i) ^ changed.at(i)) : 0xFF;
            changes = changes || bits != 0;
            fits = ((now.at(i) ^ data.at(i)) & bits) == 0;
        }
    }
    car->setValue(row.property->name, value);
    return changes && fits;
}

// Whether a car with another value of a switch or choice is reported as well: the box has one code for several ways in
// which the air goes.
bool ReportFit::couldBeOtherwise(const Row &row, const QByteArray &data, const SimulatedCar &car) const
{
    if (!isDecisive(*row.property)) {
        return false;
    }
    const int best = distance(data, car);
    SimulatedCar other;
    for (const QVariant &value : row.values) {
        if (value != car.value(row.property->name)) {
            copy(car, &other);
            other.setValue(row.property->name, value);
            const auto isIt = [&row](const CarProperty &property) { return &property == row.property; };
            if (descend(data, &other, isIt) <= best) {
                return true;
            }
        }
    }
    return false;
}

void ReportFit::copy(const SimulatedCar &from, SimulatedCar *to) const
{
    for (const Row &row : m_rows) {
        to->setValue(row.property->name, from.value(row.property->name));
    }
}

int ReportFit::distance(const QByteArray &data, const SimulatedCar &car) const
{
    const QByteArray now = m_report.data(car);
    const int common = int(qMin(now.size(), data.size()));
    int bits = 8 * int(qMax(now.size(), data.size()) - common);
    for (int i = 0; i < common; ++i) {
        bits += int(qPopulationCount(quint8(now.at(i) ^ data.at(i))));
    }
    return bits;
}

// Takes for each property in turn what fits best, until nothing gets better.
int ReportFit::descend(const QByteArray &data, SimulatedCar *car, const IsFixed &isFixed) const
{
    int best = distance(data, *car);
    for (int round = 0; round < MostRounds && best > 0; ++round) {
        const int before = best;
        for (const Row &row : m_rows) {
            best = isFixed(*row.property) ? best : choose(row, data, best, car);
        }
        if (best == before) {
            break;
        }
    }
    return best;
}

int ReportFit::choose(const Row &row, const QByteArray &data, int best, SimulatedCar *car) const
{
    const QString &name = row.property->name;
    QVector<QVariant> values = row.values;
    if (row.property->kind == CarProperty::Text) {
        values = textsIn(data, *row.property);
    } else if (values.isEmpty() && row.property->kind != CarProperty::NumberList) {
        values = numbersIn(data, *row.property, car);
    }
    QVariant chosen = car->value(name);
    for (int i = 0; i < values.size() && best > 0; ++i) {
        car->setValue(name, values.at(i));
        const int found = distance(data, *car);
        if (found < best) {
            best = found;
            chosen = car->value(name);
        }
    }
    car->setValue(name, chosen);
    return best;
}

// The texts that end the data, or stand in it up to a NUL.
QVector<QVariant> ReportFit::textsIn(const QByteArray &data, const CarProperty &property) const
{
    QVector<QVariant> texts;
    for (int from = 0; from < qMin(4, int(data.size())); ++from) {
        const QByteArray text = data.mid(from, int(property.maximum));
        texts << QString::fromLatin1(text.left(text.indexOf('\0'))).trimmed();
    }
    return texts;
}

// The values whose reports have the number that stands in the data, where a report tells it as one that grows with the
// value's amount: high byte first or last, to either side of 0.
QVector<QVariant> ReportFit::numbersIn(const QByteArray &data, const CarProperty &property,
                                       SimulatedCar *car) const
{
    const double step = property.kind == CarProperty::Integer ? 1 : property.step;
    const QVariant before = car->value(property.name);
    QVector<QVariant> values;
    for (const double limit : {property.maximum, property.minimum}) {
        const double unit = limit < 0 ? -step : step;
        const auto report = [&](double steps) {
            car->setValue(property.name, steps * unit);
            return m_report.data(*car);
        };
        QVector<int> places = placesThatChange(report, limit / unit);
        for (int order = 0; order < 2; ++order) {
            double low = limit == property.maximum ? qMax(0.0, std::ceil(property.minimum / step)) : 0;
            double high = std::floor(limit / unit);
            while (low < high) {
                const double middle = std::floor((low + high) / 2);
                if (numberIn(report(middle), places) < numberIn(data, places)) {
                    low = middle + 1;
                } else {
                    high = middle;
                }
            }
            values << low * unit;
            std::reverse(places.begin(), places.end());
        }
    }
    car->setValue(property.name, before);
    return values;
}
