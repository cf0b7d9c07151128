#ifndef CARPROPERTY_H
#define CARPROPERTY_H

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/// What one property of the simulated car is called and may hold.
///
/// A value is a QVariant of the kind's own type; read() turns a text (a scenario line) or a loosely typed
/// value (a slider's int) into it, text() turns it back.
///
/// kind        | type of the value            | texts
/// ------------|------------------------------|---------------------------------------------
/// Switch      | bool                         | on, off (also true/false, yes/no, 1/0)
/// Integer     | int, minimum..maximum        | decimal
/// Real        | double, minimum..maximum     | decimal with a point
/// Temperature | double (°C) or "LO" or "HI"  | decimal with a point, LO, HI
/// Choice      | QString, one of choices      | the choice
/// Text        | QString, at most maximum     | the text, Latin-1 characters only
/// NumberList  | QString "3,5,17"             | at most `step` numbers, each minimum..maximum; "-" or "": none
struct CarProperty
{
    enum Kind { Switch, Integer, Real, Temperature, Choice, Text, NumberList };

    QString name; ///< "climate.left"; what stands before the last point groups the properties
    Kind kind;
    double minimum;
    double maximum;
    double step;  ///< between two values that a slider should offer; NumberList: the most numbers
    QString unit; ///< "°C", "km", empty for none
    QStringList choices;
    QString initial; ///< as text; always readable by read()

    /// "climate" of "climate.left"; the name itself when it has no point.
    QString group() const;

    /// Reads \a value, typed or as text, into \a result. False when it does not fit the property, with one
    /// sentence in \a error that names the property and what it takes; \a result is then unchanged. Neither
    /// pointer may be null.
    bool read(const QVariant &value, QVariant *result, QString *error) const;

    /// What read() takes, in words: "a whole number from 0 to 7".
    QString takes() const;

    /// \a value, as read() gave it, as text.
    QString text(const QVariant &value) const;

    /// Every property of the car, in the order in which a panel should show them.
    static const QVector<CarProperty> &all();

    /// The property called \a name, or null.
    static const CarProperty *find(const QString &name);
};

#endif // CARPROPERTY_H
