#ifndef LINEVALUESOURCE_H
#define LINEVALUESOURCE_H

#include "frameformat.h"

#include <QVector>

/// Who knows what packages mean, by name; a log of values asks it.
class LineValueSource
{
public:
    struct Value
    {
        QString name;  ///< "climate.left"
        QString value; ///< "21.5"
    };

    /// What a package says.
    struct Meaning
    {
        QString name; ///< of the command: "climate"; empty when nobody knows it
        QVector<Value> values;
    };

    virtual ~LineValueSource() = default;

    /// What \a package means, to the unit or to the box.
    virtual Meaning meaning(const BoxPackage &package, bool isTowardsUnit) = 0;
};

#endif // LINEVALUESOURCE_H
