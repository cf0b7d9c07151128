#ifndef PACKAGEVALUES_H
#define PACKAGEVALUES_H

#include "boxspeaker.h"
#include "linevaluesource.h"
#include "reportfit.h"

#include <QCache>
#include <QHash>

#include <memory>

/// What the packages of one box and its unit say, in the names of the simulated car, its keys, and what the unit can
/// tell. Reports are understood by trial: the car that the virtual box would report in the same bytes is looked for.
class PackageValues : public LineValueSource
{
public:
    /// Values for CAN-bus type \a type. Null, with one sentence in \a error, when its box is not known.
    static std::unique_ptr<PackageValues> create(int type, QString *error);

    Meaning meaning(const BoxPackage &package, bool isTowardsUnit) override;

    /// The name of a command without its values: "climate", "key", "setting"; empty when nobody knows it.
    QString commandName(quint8 command, bool isTowardsUnit);
    /// For each data byte of \a package, which comes from the box, the bits of which the box's description says what
    /// they mean; bytes past the end mean nothing. Empty for a command that the box does not report.
    QByteArray toldBits(const BoxPackage &package);
    /// Every command that has a name.
    QVector<quint8> commands(bool isTowardsUnit) const;

    const FrameFormat &format() const { return m_speaker->format(); }
    const BoxSpeaker &speaker() const { return *m_speaker; }

private:
    explicit PackageValues(BoxSpeaker *(*makeSpeaker)(SimulatedCar *));

    Meaning fromBox(const BoxPackage &package);
    Meaning fromUnit(const BoxPackage &package);
    bool readKey(const BoxPackage &package, Meaning *meaning) const;
    bool readReport(const BoxPackage &package, Meaning *meaning) const;

    SimulatedCar m_car;
    std::unique_ptr<BoxSpeaker> m_speaker;
    QVector<ReportFit> m_fits;           // of m_speaker->reports()
    QCache<QByteArray, Meaning> m_known; // by command and data
    QHash<quint8, QByteArray> m_bits;    // toldBits() of reports, by command
    QVector<Value> m_told;               // by the unit, while its package is taken in
    bool m_isListening = false;
};

#endif // PACKAGEVALUES_H
