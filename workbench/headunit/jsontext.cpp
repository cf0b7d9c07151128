#include "jsontext.h"

#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbkeyset.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

// Texts and fractions, which have rules of their own, are left to Qt.
QByteArray fromJsonValue(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

template <typename List>
QByteArray fromList(const List &values)
{
    QByteArrayList texts;
    for (const auto &value : values) {
        texts << JsonText::fromVariant(value);
    }
    return '[' + texts.join(", ") + ']';
}

QByteArray member(const char *key, const QByteArray &value)
{
    return '"' + QByteArray(key) + "\": " + value;
}

QByteArray fromKeySet(const OrbKeySet &keys)
{
    QByteArrayList records;
    for (const OrbKeyRecord &key : keys) {
        records << '{' + member("keyCode", QByteArray::number(key.keyCode)) + ", " +
                       member("ctrlValue", QByteArray::number(key.ctrlValue)) + '}';
    }
    return '[' + records.join(", ") + ']';
}

bool isKeySetRegistration(const OrbEvent &event)
{
    return event.getSource() == 400 && event.getId() == 1 && int(event.type()) == OrbEventType::Notify &&
           event.getParam() == 20497 && event.getParam2() == 21;
}

QByteArray fromEventVariant(const OrbEvent &event)
{
    const QVariant variant = event.getVariantParam();
    if (variant.userType() != QMetaType::VoidStar) {
        return JsonText::fromVariant(variant);
    }
    const auto *keys = static_cast<const OrbKeySet *>(variant.value<void *>());
    // Behind any other address nobody knows what there is.
    return keys && isKeySetRegistration(event) ? fromKeySet(*keys) : QByteArray("null");
}

} // namespace

QByteArray JsonText::fromVariant(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::SChar:
    case QMetaType::Char:
        return QByteArray::number(value.toLongLong());
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        return QByteArray::number(value.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double:
        return fromJsonValue(value.toDouble());
    case QMetaType::QString:
        return fromJsonValue(value.toString());
    case QMetaType::QByteArray:
        return '"' + value.toByteArray().toHex() + '"';
    case QMetaType::QVariantList:
        return fromList(value.toList());
    case QMetaType::QStringList:
        return fromList(value.toStringList());
    default:
        return "null";
    }
}

QByteArray JsonText::fromEvent(const OrbEvent &event)
{
    QByteArrayList members = {member("source", QByteArray::number(event.getSource())),
                              member("id", QByteArray::number(event.getId())),
                              member("type", QByteArray::number(int(event.type()))),
                              member("param", QByteArray::number(event.getParam())),
                              member("param2", QByteArray::number(event.getParam2()))};
    if (!event.getByteArrayParam().isNull()) {
        members << member("bytes", fromVariant(event.getByteArrayParam()));
    }
    if (!event.getStringParam().isNull()) {
        members << member("string", fromVariant(event.getStringParam()));
    }
    if (event.getVariantParam().isValid()) {
        members << member("variant", fromEventVariant(event));
    }
    return '{' + members.join(", ") + '}';
}
