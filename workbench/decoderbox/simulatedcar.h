#ifndef SIMULATEDCAR_H
#define SIMULATEDCAR_H

#include "carproperty.h"

#include <QHash>
#include <QObject>

/// A temperature that the driver has chosen.
struct ClimateTemperature
{
    enum Kind { Low, Degrees, High };
    Kind kind;
    double celsius; ///< of Degrees only

    /// Whole degrees Fahrenheit, of Degrees only.
    int fahrenheit() const;
};

/// The car behind a virtual decoder box: a table of named values, whatever box is fitted. A box's speaker
/// turns changes into packages; scenarios, scripts and panels make the changes. No value is ever outside its
/// property's range.
///
/// Conventions: steering.angle is the angle of the steering wheel in degrees, 540 from the middle to either
/// lock, negative to the left. A radar sensor (1 to 4 from left to right) is 0 when it sees nothing, else 1
/// (nearest) to 6.
class SimulatedCar : public QObject
{
    Q_OBJECT

public:
    explicit SimulatedCar(QObject *parent = nullptr);

    /// Whether the car has a property called \a name.
    static bool has(const QString &name);

    /// The value of \a name in its own type (see CarProperty); invalid when there is no such property.
    QVariant value(const QString &name) const;

    /// The value as a scenario would write it ("on", "21.5", "LO"); empty when there is no such property.
    QString text(const QString &name) const;

    /// Shorthands for a property that is known to be of the kind asked for.
    bool flag(const QString &name) const;
    int number(const QString &name) const;
    double real(const QString &name) const;
    ClimateTemperature temperature(const QString &name) const;
    /// The place of a Choice's value among its choices.
    int choice(const QString &name) const;
    QVector<int> numbers(const QString &name) const;

    /// Changes \a name to \a value, typed or text. False, with one sentence in \a error when given, when
    /// there is no such property or the value does not fit; nothing changes then. Emits changed() when the
    /// value is another one.
    bool setValue(const QString &name, const QVariant &value, QString *error = nullptr);

    /// As setValue(), but changes nothing.
    static bool check(const QString &name, const QVariant &value, QString *error);

    /// Every property whose name begins with \a prefix goes back to its initial value.
    void reset(const QString &prefix);

Q_SIGNALS:
    void changed(const QString &name);

private:
    static bool read(const QString &name, const QVariant &value, QVariant *result, QString *error);

    QHash<QString, QVariant> m_values;
};

#endif // SIMULATEDCAR_H
