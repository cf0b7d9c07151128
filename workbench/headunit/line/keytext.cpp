#include "keytext.h"

#include <QMetaEnum>

namespace {

QString hex(quint64 value, int digits)
{
    return QString("0x%1").arg(value, digits, 16, QLatin1Char('0'));
}

QString seconds(qint64 microseconds)
{
    return QString::number(double(microseconds) / 1e6, 'f', 3);
}

QString tableName(KeyStroke::Group group)
{
    return group == KeyStroke::Wheel ? "WheelKeys" : group == KeyStroke::Panel ? "PanelKeys" : "KnobKeys";
}

QString tableRow(const KeyStroke &stroke)
{
    const bool isKnown = !stroke.becomes.isEmpty();
    const QString row =
        QString("    {%1, CarKeys::%2},")
            .arg(hex(stroke.code, 2), isKnown ? KeyText::key(stroke.becomes.first()) : "NoKey");
    const QString remark = !isKnown ? "the adapter makes nothing of it" : stroke.name;
    return remark.isEmpty() ? row + '\n' : QString("%1 // %2\n").arg(row, -44).arg(remark);
}

} // namespace

QString KeyText::group(const KeyStroke &stroke)
{
    const char *const names[] = {"wheel", "panel", "knob", "unit"};
    return names[stroke.group];
}

QString KeyText::key(quint32 code)
{
    const char *const name = QMetaEnum::fromType<Qt::Key>().valueToKey(int(code));
    if (!name) {
        return hex(code, 0);
    }
    QString result;
    for (const QString &word : QString(name).section('_', 1).split('_')) { // Key_Mode_switch
        result += word.left(1).toUpper() + word.mid(1);
    }
    return result.at(0).isDigit() ? "Digit" + result : result;
}

QString KeyText::raw(const KeyStroke &stroke)
{
    if (stroke.group == KeyStroke::Unit) {
        return hex(stroke.code, 0) +
               (stroke.lineValue == 0 ? QString() : QString(" (line %1)").arg(hex(stroke.lineValue, 0)));
    }
    const QString codes = hex(quint64(stroke.command), 2) + ' ' + hex(stroke.code, 2);
    return stroke.name.isEmpty() ? codes : codes + ' ' + stroke.name;
}

QString KeyText::becomes(const QVector<quint32> &keys)
{
    QStringList names;
    for (const quint32 code : keys) {
        names << key(code);
    }
    return names.isEmpty() ? "nothing" : names.join(", ");
}

QString KeyText::alarm(const KeyStroke &stroke)
{
    return QString("the %1's key %2 is down since %3 s and does not come up")
        .arg(group(stroke), raw(stroke), seconds(stroke.pressed));
}

QString KeyText::plain(const KeyStroke &stroke, qint64 now)
{
    QString text = QString("%1 s  %2 %3 ")
                       .arg(seconds(stroke.pressed < 0 ? stroke.released : stroke.pressed), 10)
                       .arg(group(stroke), -6)
                       .arg(raw(stroke), -28);
    if (stroke.group == KeyStroke::Knob) {
        text += QString("turned by %1").arg(stroke.clicks);
    } else if (stroke.pressed < 0) {
        text += "came up without a press";
    } else {
        text +=
            QString(stroke.isDown() ? "still down after %1 ms" : "down for %1 ms").arg(stroke.downFor(now));
        text += stroke.holds == 0 ? QString() : QString(", held %1 times").arg(stroke.holds);
    }
    text += ": " + becomes(stroke.becomes);
    if (stroke.group == KeyStroke::Unit && !stroke.redefined.isEmpty()) {
        text += ", redefined as " + becomes(stroke.redefined);
    }
    return stroke.isStuck ? text + "; it was down for more than 10 s" : text;
}

QString KeyText::tables(const std::deque<KeyStroke> &strokes)
{
    QMap<QPair<int, int>, QString> rows; // by command and group
    QMap<QPair<int, int>, QSet<quint32>> codes;
    for (const KeyStroke &stroke : strokes) {
        const QPair<int, int> table(stroke.command, stroke.group);
        if (stroke.group != KeyStroke::Unit && !codes[table].contains(stroke.code)) {
            codes[table].insert(stroke.code);
            rows[table] += tableRow(stroke);
        }
    }
    QString text;
    for (auto table = rows.cbegin(); table != rows.cend(); ++table) {
        text += QString("// Command %1\nconst CarKeys::Mapping %2[] = {\n%3};\n")
                    .arg(hex(quint64(table.key().first), 2), tableName(KeyStroke::Group(table.key().second)),
                         table.value());
    }
    return text;
}
