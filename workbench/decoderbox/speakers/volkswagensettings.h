#ifndef VOLKSWAGENSETTINGS_H
#define VOLKSWAGENSETTINGS_H

#include "simulatedcar.h"

/// Where one setting of the car stands in the pages that the box sends.
struct VolkswagenSetting
{
    int item;             ///< number by which the unit changes it; 0: it cannot, the page only shows it
    const char *property; ///< of the simulated car
    quint8 page;          ///< first byte of its page; 0: no page tells it
    int byte;             ///< within the page
    int low;              ///< lowest bit
    int width;            ///< in bits
    int scale;            ///< the field and the written value are scale * value + bias,
    int bias;             ///< where value is 0 or 1, the number, or the place of the choice

    /// The whole table.
    static const QVector<VolkswagenSetting> &all();
    /// The numbers of the pages, in order.
    static QVector<quint8> pages();
    /// Names of the properties that \a page tells.
    static QStringList propertiesOf(quint8 page);
    /// The data of \a page for \a car, its number first.
    static QByteArray pageData(quint8 page, const SimulatedCar &car);
    /// The row by which the unit changes \a item, or null.
    static const VolkswagenSetting *find(int item);

    /// Changes the property to what the unit has written; false when it does not fit.
    bool write(SimulatedCar *car, int written) const;

private:
    int field(const SimulatedCar &car) const;
};

#endif // VOLKSWAGENSETTINGS_H
