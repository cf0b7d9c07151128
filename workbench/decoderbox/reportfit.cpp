#include "reportfit.h"

#include <QtAlgorithms>

#include <algorithm>
#include <cmath>

namespace {

const int MostTried = 1200;   // values of a property that are tried one by one; of more, numbers are read
const int MostRounds = 4;     // through all properties: one may decide what another's values look like
const int MostRestarted = 12; // values of switches and choices that a search is begun with

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

int ReportFit::fit(const QByteArray &data, SimulatedCar *car) const
{
    int best = descend(data, car);
    // What a search ends in may be near and wrong: degrees where the box means Fahrenheit.
    int restarts = 0;
    for (const Row &row : m_rows) {
        const bool isDecisive =
            row.property->kind == CarProperty::Switch || row.property->kind == CarProperty::Choice;
        for (int i = 0; isDecisive && i < row.values.size() && best > 0 && restarts < MostRestarted;
             ++i, ++restarts) {
            SimulatedCar other;
            other.setValue(row.property->name, row.values.at(i));
            const int found = descend(data, &other);
            if (found < best) {
                best = found;
                for (const Row &changed : m_rows) {
                    car->setValue(changed.property->name, other.value(changed.property->name));
                }
            }
        }
    }
    return best;
}

QVector<const CarProperty *> ReportFit::told(const QByteArray &data, SimulatedCar *car) const
{
    QVector<const CarProperty *> told;
    const QByteArray now = m_report.data(*car);
    for (const Row &row : m_rows) {
        const QVariant value = car->value(row.property->name);
        QVector<QVariant> values = row.values;
        if (values.isEmpty()) {
            values << row.property->minimum << row.property->maximum << "1"
                   << "x";
        }
        bool changes = false;
        bool isRight = now.size() == data.size();
        for (const QVariant &other : qAsConst(values)) {
            car->setValue(row.property->name, other);
            const QByteArray changed = m_report.data(*car);
            for (int i = 0; i < now.size(); ++i) {
                const int bits = i < changed.size() ? quint8(now.at(i) ^ changed.at(i)) : 0xFF;
                changes = changes || bits != 0;
                isRight = isRight && ((now.at(i) ^ data.at(i)) & bits) == 0;
            }
        }
        car->setValue(row.property->name, value);
        if (changes && isRight) {
            told << row.property;
        }
    }
    return told;
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
int ReportFit::descend(const QByteArray &data, SimulatedCar *car) const
{
    int best = distance(data, *car);
    for (int round = 0; round < MostRounds && best > 0; ++round) {
        const int before = best;
        for (const Row &row : m_rows) {
            best = choose(row, data, best, car);
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

// The value whose report has the number that stands in data, where the report tells it as one that grows with the value.
QVector<QVariant> ReportFit::numbersIn(const QByteArray &data, const CarProperty &property,
                                       SimulatedCar *car) const
{
    const auto report = [&](double value) {
        car->setValue(property.name, value);
        return m_report.data(*car);
    };
    const QVariant before = car->value(property.name);
    const QByteArray least = report(property.minimum);
    const double step = property.kind == CarProperty::Integer ? 1 : property.step;
    QVector<int> places;
    for (int i = 0; i < least.size(); ++i) {
        bool changes = false;
        for (double value = property.maximum; value >= 1 && !changes; value /= 2) {
            const QByteArray other = report(value);
            changes = other.size() != least.size() || other.at(i) != least.at(i);
        }
        if (changes) {
            places << i;
        }
    }
    QVector<QVariant> values;
    for (int order = 0; order < 2; ++order) {
        double low = 0;
        double high = std::floor((property.maximum - property.minimum) / step);
        while (low < high) {
            const double middle = std::floor((low + high) / 2);
            if (numberIn(report(property.minimum + middle * step), places) < numberIn(data, places)) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        values << property.minimum + low * step;
        std::reverse(places.begin(), places.end());
    }
    car->setValue(property.name, before);
    return values;
}
