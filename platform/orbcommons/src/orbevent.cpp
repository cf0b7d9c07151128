#include "orbevent.h"

OrbEvent::OrbEvent(unsigned int source, unsigned int id, int type)
    : QEvent(static_cast<QEvent::Type>(type)), m_source(source), m_id(id), m_param(0), m_param2(0)
{}

OrbEvent::~OrbEvent() {}

unsigned int OrbEvent::getSource() const
{
    return m_source;
}

unsigned int OrbEvent::getId() const
{
    return m_id;
}

unsigned int OrbEvent::getParam() const
{
    return m_param;
}

unsigned int OrbEvent::getParam2() const
{
    return m_param2;
}

QByteArray OrbEvent::getByteArrayParam() const
{
    return m_bytes;
}

QString OrbEvent::getStringParam() const
{
    return m_string;
}

QVariant OrbEvent::getVariantParam() const
{
    return m_variant;
}

void OrbEvent::setParams(unsigned int param, unsigned int param2)
{
    m_param = param;
    m_param2 = param2;
}

void OrbEvent::setByteArrayParams(const QByteArray &bytes)
{
    m_bytes = bytes;
}

void OrbEvent::setStringParam(const QString &text)
{
    m_string = text;
}

void OrbEvent::setVariantParam(const QVariant &value)
{
    m_variant = value;
}
