#include "inspectiontext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const int CallIndent = 16;

const char *kindName(InspectionRow::Kind kind)
{
    switch (kind) {
    case InspectionRow::Package:
        return "package";
    case InspectionRow::BadPackage:
        return "bad";
    case InspectionRow::Noise:
        return "noise";
    case InspectionRow::State:
        return "state";
    case InspectionRow::Call:
        return "call";
    case InspectionRow::UnitKey:
        break;
    }
    return "key";
}

QString hexByte(int byte)
{
    return QString("%1").arg(byte, 2, 16, QLatin1Char('0'));
}

double average(const Inspection::Rate &rate)
{
    return rate.last > rate.first ? double(rate.count - 1) * 1e6 / double(rate.last - rate.first) : 0;
}

} // namespace

QString InspectionText::seconds(qint64 microseconds)
{
    return QString::number(double(microseconds) / 1e6, 'f', 6);
}

QString InspectionText::subject(const InspectionRow &row)
{
    const QString command = "0x" + hexByte(row.command);
    switch (row.kind) {
    case InspectionRow::Package:
        return row.name.isEmpty() ? command : command + ' ' + row.name;
    case InspectionRow::BadPackage:
        return "BAD " + command;
    case InspectionRow::Noise:
        return "NO PACKAGE";
    case InspectionRow::State:
        return "LINE";
    case InspectionRow::Call:
        return "CALL";
    case InspectionRow::UnitKey:
        break;
    }
    return "KEY";
}

QString InspectionText::bytes(const InspectionRow &row)
{
    if (row.kind == InspectionRow::State || row.kind == InspectionRow::UnitKey) {
        return row.name;
    }
    if (!row.isPackage()) {
        return QString::fromLatin1(row.bytes.toHex(' '));
    }
    QStringList bytes;
    for (int i = 0; i < row.data.size(); ++i) {
        const QString byte = hexByte(quint8(row.data.at(i)));
        const bool hasChanged = i < row.changed.size() && row.changed.at(i) != '\0';
        bytes << (row.strangeBits(i) != 0 ? '{' + byte + '}' : hasChanged ? '[' + byte + ']' : byte);
    }
    return bytes.join(' ');
}

QString InspectionText::acknowledgement(const InspectionRow &row)
{
    return row.acknowledgement < 0 ? QString()
                                   : QString("%1 ms").arg(double(row.acknowledgement) / 1000, 0, 'f', 1);
}

QString InspectionText::plain(const InspectionRow &row)
{
    const bool hasDirection = row.isPackage() || row.kind == InspectionRow::Noise;
    const char *const sign = !hasDirection ? "·" : row.isTowardsUnit ? "<" : ">";
    QString text = QString("%1 %2 %3 %4")
                       .arg(seconds(row.microseconds), 12)
                       .arg(QString::fromUtf8(sign))
                       .arg(subject(row), -20)
                       .arg(bytes(row));
    if (row.acknowledgement >= 0) {
        text += "  ack " + acknowledgement(row);
    }
    while (text.endsWith(' ')) {
        text.chop(1);
    }
    if (row.kind == InspectionRow::Call) {
        return text + ' ' + row.calls.join(' ') + '\n';
    }
    text += '\n';
    for (const QString &call : row.calls) {
        text += QString(CallIndent, ' ') + call + '\n';
    }
    return text;
}

QByteArray InspectionText::json(const InspectionRow &row)
{
    QJsonObject object{{"t", double(row.microseconds) / 1e6}, {"kind", kindName(row.kind)}};
    if (row.isPackage() || row.kind == InspectionRow::Noise) {
        object.insert("dir", row.isTowardsUnit ? "in" : "out");
        object.insert("bytes", QString::fromLatin1(row.bytes.toHex()));
    }
    if (row.isPackage()) {
        object.insert("command", "0x" + hexByte(row.command));
        object.insert("data", QString::fromLatin1(row.data.toHex()));
    }
    if (!row.name.isEmpty()) {
        object.insert("name", row.name);
    }
    if (row.kind == InspectionRow::Package) {
        QByteArray strange;
        for (int i = 0; i < row.changed.size(); ++i) {
            strange += char(row.strangeBits(i));
        }
        object.insert("changed", QString::fromLatin1(row.changed.toHex()));
        object.insert("strange", QString::fromLatin1(strange.toHex()));
        object.insert("first", row.isFirst);
        object.insert("explained", row.isExplained);
        object.insert("ack-ms", row.acknowledgement < 0 ? QJsonValue() : double(row.acknowledgement) / 1000);
    }
    if (!row.calls.isEmpty()) {
        object.insert("calls", QJsonArray::fromStringList(row.calls));
        object.insert("screens", QJsonArray::fromStringList(row.screens()));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString InspectionText::rates(const Inspection &inspection)
{
    QString text = QString("%1 %2 %3 %4 %5\n")
                       .arg("command", -24)
                       .arg("packages", 8)
                       .arg("a second", 9)
                       .arg("changes", 8)
                       .arg("bad", 5);
    for (auto i = inspection.rates().cbegin(); i != inspection.rates().cend(); ++i) {
        const Inspection::Rate &rate = i.value();
        const QString name = QString("%1 0x%2 %3")
                                 .arg(QLatin1Char(i.key().isTowardsUnit ? '<' : '>'))
                                 .arg(hexByte(i.key().command), rate.name);
        text += QString("%1 %2 %3 %4 %5\n")
                    .arg(name, -24)
                    .arg(rate.count, 8)
                    .arg(average(rate), 9, 'f', 1)
                    .arg(rate.changes, 8)
                    .arg(rate.bad, 5);
    }
    return text;
}

QByteArray InspectionText::jsonRates(const Inspection &inspection)
{
    QJsonArray rows;
    for (auto i = inspection.rates().cbegin(); i != inspection.rates().cend(); ++i) {
        const Inspection::Rate &rate = i.value();
        rows << QJsonObject{{"dir", i.key().isTowardsUnit ? "in" : "out"},
                            {"command", "0x" + hexByte(i.key().command)},
                            {"name", rate.name},
                            {"packages", rate.count},
                            {"per-second", average(rate)},
                            {"changes", rate.changes},
                            {"bad", rate.bad}};
    }
    return QJsonDocument(rows).toJson(QJsonDocument::Compact);
}
