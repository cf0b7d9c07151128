#include "sweep.h"

#include "decoderbox.h"

namespace {

// Both ends of what the property may be, and all choices.
QStringList edges(const CarProperty &property)
{
    const QString least = QString::number(property.minimum, 'g', 15);
    const QString most = QString::number(property.maximum, 'g', 15);
    switch (property.kind) {
    case CarProperty::Switch:
        return {"on", "off"};
    case CarProperty::Integer:
    case CarProperty::Real:
        return {least, most};
    case CarProperty::Temperature:
        return {"LO", least, most, "HI"};
    case CarProperty::Choice:
        return property.choices;
    case CarProperty::Text:
        return {QString(), QString(int(property.maximum), '~')};
    case CarProperty::NumberList:
        return {"-", least, QStringList(QVector<QString>(int(property.step), most).toList()).join(',')};
    }
    return {};
}

QStringList keyOrders(const BoxSpeaker &speaker)
{
    QStringList orders;
    for (const BoxKey &key : speaker.keys()) {
        if (key.source == BoxKey::Knob) {
            orders << "knob " + key.name + " 0"
                   << "knob " + key.name + " 3";
        } else {
            orders << "key " + key.name + " tap";
        }
    }
    return orders;
}

} // namespace

QStringList Sweep::orders(const DecoderBox &box, const QString &what)
{
    if (what == "keys") {
        return keyOrders(*box.speaker());
    }
    QStringList orders;
    for (const QString &name : box.speaker()->properties()) {
        if (what != "properties" && what != name && !(what.endsWith('.') && name.startsWith(what))) {
            continue;
        }
        const CarProperty &property = *CarProperty::find(name);
        QStringList values = edges(property);
        values.removeAll(property.initial);
        values << (property.kind == CarProperty::NumberList && property.initial.isEmpty() ? "-"
                                                                                          : property.initial);
        for (const QString &value : values) {
            orders << name + ' ' + value;
        }
    }
    return orders;
}
