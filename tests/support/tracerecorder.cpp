#include "tracerecorder.h"

#include "orbevent.h"
#include "orbkeyset.h"

#include <utility>

namespace {

QString keySetText(const OrbKeySet &list)
{
    QStringList records;
    for (const OrbKeyRecord &pair : list) {
        records << QString::number(pair.keyCode, 16) + ':' + QString::number(pair.ctrlValue, 16);
    }
    return '[' + records.join(',') + ']';
}

QString valueText(const QVariant &value)
{
    if (value.userType() == QMetaType::QByteArray) {
        return QString::fromLatin1(value.toByteArray().toHex());
    }
    if (value.userType() == QMetaType::VoidStar) {
        return keySetText(*static_cast<const OrbKeySet *>(value.value<void *>()));
    }
    return value.toString();
}

} // namespace

TraceRecorder::TraceRecorder() : m_before(OrbTrace::setListener(this)) {}

TraceRecorder::~TraceRecorder()
{
    OrbTrace::setListener(m_before);
}

QStringList TraceRecorder::take()
{
    return std::exchange(m_lines, QStringList());
}

QStringList TraceRecorder::linesOf(const QString &prefix) const
{
    QStringList found;
    for (const QString &line : m_lines) {
        if (line.startsWith(prefix + '.') || line.startsWith(prefix + '(')) {
            found << line;
        }
    }
    return found;
}

void TraceRecorder::called(const QString &object, const QString &call, const QVariantList &args)
{
    QStringList texts;
    for (const QVariant &argument : args) {
        texts << valueText(argument);
    }
    m_lines << object + '.' + call + '(' + texts.join(',') + ')';
}

void TraceRecorder::eventCalled(const QString &call, const OrbEvent &event)
{
    QStringList texts;
    for (const unsigned int number :
         {event.getSource(), event.getId(), unsigned(event.type()), event.getParam(), event.getParam2()}) {
        texts << QString::number(number);
    }
    if (!event.getByteArrayParam().isNull()) {
        texts << "bytes=" + valueText(event.getByteArrayParam());
    }
    if (!event.getStringParam().isNull()) {
        texts << "string=" + event.getStringParam();
    }
    if (event.getVariantParam().isValid()) {
        texts << "variant=" + valueText(event.getVariantParam());
    }
    m_lines << call + '(' + texts.join(',') + ')';
}

void TraceRecorder::valueTold(const QString &name, const QVariant &value)
{
    m_lines << "value " + name + ' ' + (value.isValid() ? valueText(value) : "unknown");
}
