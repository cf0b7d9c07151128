#ifndef ADAPTERFACTORY_H
#define ADAPTERFACTORY_H

#include "canbustype.h"

#include <QList>
#include <QMetaObject>

class CanBusAdapter;

/// The decoders of this plug-in by their numbers. Each puts itself in here, with one line of its own source
/// file, so that a new car is new files and nothing here knows it:
///
///     CANBUS_ADAPTER(CanBusTypeRaiseToyota, CanBus_Raise_Toyota)
class AdapterFactory
{
public:
    /// One decoder. Rows are static objects that live as long as the library.
    class Row
    {
    public:
        typedef CanBusAdapter *(*Make)();

        /// Registers the decoder. A \a type that is taken already is refused with a warning: the row stays
        /// outside.
        Row(CanBusType type, const QMetaObject &metaObject, Make make);
        ~Row();

    private:
        Q_DISABLE_COPY(Row)
        friend class AdapterFactory;

        const CanBusType m_type;
        const QMetaObject &m_metaObject;
        const Make m_make;
        Row *m_next;
    };

    /// All types that there is a decoder for, in order of their numbers.
    static QList<CanBusType> types();

    /// Class name of the decoder of \a type; null for an unknown one.
    static const char *className(CanBusType type);

    /// A new decoder, which is the caller's and not started; null for an unknown \a type.
    static CanBusAdapter *create(CanBusType type);

    /// How a row of CANBUS_ADAPTER makes its decoder.
    template <class Adapter>
    static CanBusAdapter *make()
    {
        return new Adapter;
    }

private:
    static const Row *find(CanBusType type);

    static Row *s_rows; // chained in order of their numbers
};

/// The row of a decoder with a default constructor; once per decoder, at file scope of its source file.
#define CANBUS_ADAPTER(Type, Class)                                                                          \
    namespace {                                                                                              \
    const AdapterFactory::Row row##Class(Type, Class::staticMetaObject, AdapterFactory::make<Class>);        \
    }

#endif // ADAPTERFACTORY_H
