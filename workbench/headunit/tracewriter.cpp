#include "tracewriter.h"

#include "jsontext.h"
#include "lineoutput.h"

TraceWriter::TraceWriter(LineOutput *output, bool withValues) : m_output(output), m_withValues(withValues)
{
    m_clock.start();
}

void TraceWriter::called(const QString &object, const QString &call, const QVariantList &args)
{
    write(object, call, JsonText::fromVariant(args));
}

void TraceWriter::eventCalled(const QString &call, const OrbEvent &event)
{
    write("OrbApplication", call, '[' + JsonText::fromEvent(event) + ']');
}

void TraceWriter::valueTold(const QString &name, const QVariant &value)
{
    if (m_withValues) {
        write("car", name, JsonText::fromVariant(QVariantList{value}));
    }
}

void TraceWriter::write(const QString &object, const QString &call, const QByteArray &args)
{
    if (!m_output) {
        return;
    }
    m_output->writeLine("{\"t\": " + QByteArray::number(double(m_clock.elapsed()) / 1000.0, 'f', 3) +
                        ", \"object\": " + JsonText::fromVariant(object) +
                        ", \"call\": " + JsonText::fromVariant(call) + ", \"args\": " + args + '}');
}
