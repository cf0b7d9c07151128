#ifndef REPORTFIT_H
#define REPORTFIT_H

#include "boxspeaker.h"

#include <QVector>

/// Looks for the car that a box would report in given bytes, by trying values of the properties that the report is about.
class ReportFit
{
public:
    explicit ReportFit(const BoxReport &report);

    /// Changes \a car to what \a data say. The number of bits that its report still has otherwise.
    int fit(const QByteArray &data, SimulatedCar *car) const;

    /// The properties whose values \a data tell, with \a car as fit() has left it: each that changes bits of the report,
    /// where all of those are as in \a data, and that could not be otherwise.
    QVector<const CarProperty *> told(const QByteArray &data, SimulatedCar *car) const;

    /// The bits of the report that some property moves by itself, one byte for each of the longest report.
    QByteArray bits() const;

    const BoxReport &report() const { return m_report; }

private:
    struct Row
    {
        const CarProperty *property;
        QVector<QVariant> values; // to try; few enough
    };

    int tryEveryWay(const QByteArray &data, int best, SimulatedCar *car) const;
    int distance(const QByteArray &data, const SimulatedCar &car) const;
    using IsFixed = std::function<bool(const CarProperty &)>;

    int descend(const QByteArray &data, SimulatedCar *car, const IsFixed &isFixed) const;
    bool changesWhatFits(const Row &row, const QByteArray &data, SimulatedCar *car) const;
    bool couldBeOtherwise(const Row &row, const QByteArray &data, const SimulatedCar &car) const;
    void copy(const SimulatedCar &from, SimulatedCar *to) const;
    int choose(const Row &row, const QByteArray &data, int best, SimulatedCar *car) const;
    QVector<QVariant> textsIn(const QByteArray &data, const CarProperty &property) const;
    QVector<QVariant> numbersIn(const QByteArray &data, const CarProperty &property, SimulatedCar *car) const;

    BoxReport m_report;
    QVector<Row> m_rows;
};

#endif // REPORTFIT_H
