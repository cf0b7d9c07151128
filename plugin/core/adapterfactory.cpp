#include "adapterfactory.h"

// Constant-initialised: the rows of other files register before any code of this one has run.
AdapterFactory::Row *AdapterFactory::s_rows = nullptr;

AdapterFactory::Row::Row(CanBusType type, const QMetaObject &metaObject, Make make)
    : m_type(type), m_metaObject(metaObject), m_make(make), m_next(nullptr)
{
    Row **place = &s_rows;
    while (*place && (*place)->m_type < type) {
        place = &(*place)->m_next;
    }
    if (*place && (*place)->m_type == type) {
        qWarning("CAN-bus type %u is %s already, %s is left out", unsigned(type),
                 (*place)->m_metaObject.className(), metaObject.className());
        return;
    }
    m_next = *place;
    *place = this;
}

AdapterFactory::Row::~Row()
{
    for (Row **place = &s_rows; *place; place = &(*place)->m_next) {
        if (*place == this) {
            *place = m_next;
            return;
        }
    }
}

const AdapterFactory::Row *AdapterFactory::find(CanBusType type)
{
    for (const Row *row = s_rows; row; row = row->m_next) {
        if (row->m_type == type) {
            return row;
        }
    }
    return nullptr;
}

QList<CanBusType> AdapterFactory::types()
{
    QList<CanBusType> all;
    for (const Row *row = s_rows; row; row = row->m_next) {
        all.append(row->m_type);
    }
    return all;
}

const char *AdapterFactory::className(CanBusType type)
{
    const Row *const row = find(type);
    return row ? row->m_metaObject.className() : nullptr;
}

CanBusAdapter *AdapterFactory::create(CanBusType type)
{
    const Row *const row = find(type);
    return row ? row->m_make() : nullptr;
}
