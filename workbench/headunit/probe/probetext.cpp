#include "probetext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const char DialogNote[] = "A dialog opens and waits for an answer; what would come after it is not told.";

QStringList effects(const BitProbe::Row &row)
{
    QStringList lines;
    for (const BitProbe::Effect &effect : row.effects) {
        lines << (!row.isRun() ? effect.call + ' ' : effect.call + ": ") + effect.text;
    }
    if (lines.isEmpty()) {
        lines << (row.partner.isEmpty() ? QString("no effect")
                                        : "an effect only together with " + row.partner);
    }
    return lines;
}

} // namespace

QString ProbeText::bits(const BitProbe::Row &row)
{
    const QString byte = QString("d[%1]").arg(row.byte);
    return row.high - row.low == 7 ? byte
           : row.high == row.low   ? byte + QString(".%1").arg(row.low)
                                   : byte + QString(".%1-%2").arg(row.high).arg(row.low);
}

QString ProbeText::plain(const BitProbe &probe)
{
    QString text =
        probe.turn().isEmpty() ? QString() : QString("On the page to which %1 turns:\n").arg(probe.turn());
    for (const BitProbe::Row &row : probe.rows()) {
        QString head = bits(row).leftJustified(10);
        const QStringList lines = effects(row);
        for (int i = 0; i < lines.size(); ++i) {
            text += head + lines.at(i) + (i == 0 && row.dependsOnState ? "  (depends on state)" : "") + '\n';
            head.fill(' ');
        }
    }
    if (probe.hasDialogs()) {
        text += QString("%1\n").arg(DialogNote);
    }
    if (probe.isIdle()) {
        text += "Neither the package nor any of its bits causes anything.\n";
    }
    return text;
}

QString ProbeText::markdown(const BitProbe &probe)
{
    QString table;
    QStringList idle;
    for (const BitProbe::Row &row : probe.rows()) {
        if (row.effects.isEmpty() && row.partner.isEmpty() && !row.dependsOnState) {
            idle << '`' + bits(row) + '`';
        } else {
            table += QString("| `%1` | %2 | %3 |\n")
                         .arg(bits(row), effects(row).join("<br>").replace('|', "\\|"),
                              row.dependsOnState ? "matters" : "");
        }
    }
    QString text = table.isEmpty() ? QString() : "| bits | what they move | state |\n|---|---|---|\n" + table;
    if (!idle.isEmpty()) {
        text += (text.isEmpty() ? "Without effect: " : "\nWithout effect: ") + idle.join(", ") + ".\n";
    }
    if (probe.hasDialogs()) {
        text += QString("\n%1\n").arg(DialogNote);
    }
    return text;
}

QByteArray ProbeText::json(const BitProbe &probe)
{
    QJsonArray rows;
    for (const BitProbe::Row &row : probe.rows()) {
        QJsonArray list;
        for (const BitProbe::Effect &effect : row.effects) {
            list << QJsonObject{{"call", effect.call}, {"text", effect.text}};
        }
        rows << QJsonObject{{"byte", row.byte},
                            {"high", row.high},
                            {"low", row.low},
                            {"effects", list},
                            {"dependsOnState", row.dependsOnState},
                            {"partner", row.partner}};
    }
    return QJsonDocument(rows).toJson();
}
