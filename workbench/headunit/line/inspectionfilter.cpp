#include "inspectionfilter.h"

#include "numbertext.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace {

using Term = std::function<bool(const InspectionRow &)>;

const char *const Words =
    "cmd=, dir=, bad, changed, explained, call=, screen=, hex=, d0=, d0.7=, ack<, ack>, t<, t>";

// Whether \a text is as \a pattern, in which * stands for any text and ? for any character, in any case. A ring of rows
// has half a million calls: regular expressions take ten times as long.
bool fits(QStringView pattern, QStringView text)
{
    qsizetype at = 0;
    qsizetype star = -1;   // the last * that was met
    qsizetype resumed = 0; // where its text ends for now
    for (qsizetype i = 0; i < text.size();) {
        const bool isStar = at < pattern.size() && pattern.at(at) == QLatin1Char('*');
        if (isStar) {
            star = at++;
            resumed = i;
        } else if (at < pattern.size() &&
                   (pattern.at(at) == QLatin1Char('?') || pattern.at(at).toLower() == text.at(i).toLower())) {
            ++at;
            ++i;
        } else if (star >= 0) {
            at = star + 1;
            i = ++resumed;
        } else {
            return false;
        }
    }
    while (at < pattern.size() && pattern.at(at) == QLatin1Char('*')) {
        ++at;
    }
    return at == pattern.size();
}

Term commandTerm(const QString &value, QString *error)
{
    QVector<quint32> commands;
    QStringList names;
    for (const QString &part : value.split(',')) {
        quint32 command = 0;
        if (!NumberText::read(part, &command)) {
            names << part;
        } else if (command <= 0xFF) {
            commands << command;
        } else {
            *error = QCoreApplication::translate("InspectionFilter", "a command is at most 0xff, not %1")
                         .arg(part);
        }
    }
    return [=](const InspectionRow &row) {
        const auto isNamed = [&](const QString &name) { return fits(name, row.name); };
        return row.isPackage() &&
               (commands.contains(quint32(row.command)) || std::any_of(names.begin(), names.end(), isNamed));
    };
}

Term directionTerm(const QString &value, QString *error)
{
    const bool isIn = value == "in" || value == "<";
    if (!isIn && value != "out" && value != ">") {
        *error = QCoreApplication::translate("InspectionFilter", "dir= takes in or out, not '%1'").arg(value);
    }
    return [=](const InspectionRow &row) {
        return (row.isPackage() || row.kind == InspectionRow::Noise) && row.isTowardsUnit == isIn;
    };
}

// Against the name alone, and against all of it: "setACEnable?true", since a blank would end the word.
Term callTerm(const QString &value)
{
    const bool hasObject = value.contains('.');
    return [=](const InspectionRow &row) {
        return std::any_of(row.calls.begin(), row.calls.end(), [&](const QString &call) {
            const QStringView text = QStringView(call).mid(hasObject ? 0 : call.indexOf('.') + 1);
            const qsizetype blank = call.indexOf(' ') - (call.size() - text.size());
            return fits(value, text) || (blank > 0 && fits(value, text.left(blank)));
        });
    };
}

Term hexTerm(const QString &value, QString *error)
{
    const QByteArray bytes = QByteArray::fromHex(value.toLatin1());
    if (bytes.isEmpty() || bytes.toHex() != value.toLower().toLatin1()) {
        *error = QCoreApplication::translate("InspectionFilter",
                                             "hex= takes pairs of hexadecimal digits, not '%1'")
                     .arg(value);
    }
    return [=](const InspectionRow &row) { return row.bytes.contains(bytes); };
}

// d2=0x1f, d0.6=1
Term dataTerm(const QRegularExpressionMatch &match, QString *error)
{
    const int at = match.captured(1).toInt();
    const int bit = match.captured(2).isEmpty() ? -1 : match.captured(2).toInt();
    quint32 value = 0;
    if (!NumberText::read(match.captured(3), &value) || value > (bit < 0 ? 0xFFU : 1U) || bit > 7) {
        *error =
            (bit < 0 ? QCoreApplication::translate("InspectionFilter", "'%1' takes a byte")
                     : QCoreApplication::translate("InspectionFilter", "'%1' takes a bit 0 to 7 and 0 or 1"))
                .arg(match.captured(0));
    }
    return [=](const InspectionRow &row) {
        if (!row.isPackage() || at >= row.data.size()) {
            return false;
        }
        const quint32 byte = quint8(row.data.at(at));
        return (bit < 0 ? byte : (byte >> bit) & 1U) == value;
    };
}

Term acknowledgementTerm(QChar sign, const QString &value, QString *error)
{
    if (sign == '=' && value == "none") {
        return [](const InspectionRow &row) {
            return row.kind == InspectionRow::Package && row.acknowledgement < 0;
        };
    }
    bool isNumber = false;
    const double ms = value.toDouble(&isNumber);
    if (!isNumber || sign == '=') {
        *error =
            QCoreApplication::translate("InspectionFilter", "ack takes < or > and milliseconds, or =none");
    }
    return [=](const InspectionRow &row) {
        const double answer = double(row.acknowledgement) / 1000;
        return row.acknowledgement >= 0 && (sign == '<' ? answer < ms : answer > ms);
    };
}

Term timeTerm(QChar sign, const QString &value, QString *error)
{
    bool isNumber = false;
    const double seconds = value.toDouble(&isNumber);
    if (!isNumber || sign == '=') {
        *error = QCoreApplication::translate("InspectionFilter", "t takes < or > and seconds");
    }
    return [=](const InspectionRow &row) {
        const double at = double(row.microseconds) / 1e6;
        return sign == '<' ? at < seconds : at > seconds;
    };
}

Term plainTerm(const QString &word)
{
    if (word == "bad") {
        return [](const InspectionRow &row) {
            return row.kind == InspectionRow::BadPackage || row.kind == InspectionRow::Noise;
        };
    }
    if (word == "changed") {
        return [](const InspectionRow &row) { return row.isFirst || row.hasChanged(); };
    }
    if (word == "explained") {
        return [](const InspectionRow &row) { return row.isExplained; };
    }
    return nullptr;
}

} // namespace

bool InspectionFilter::parse(const QString &text, QString *error)
{
    QVector<Term> terms;
    QString problem;
    for (const QString &word : text.split(' ', Qt::SkipEmptyParts)) {
        const bool isNegative = word.startsWith('!');
        const Term one = term(word.mid(isNegative ? 1 : 0), &problem);
        if (!problem.isEmpty()) {
            *error = problem;
            return false;
        }
        terms << (isNegative ? Term([one](const InspectionRow &row) { return !one(row); }) : one);
    }
    m_terms = terms;
    return true;
}

InspectionFilter::Term InspectionFilter::term(const QString &word, QString *error)
{
    static const QRegularExpression pair("^([a-z]+)([=<>])(?![=<>])(.*)$",
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression data("^d([0-9]{1,3})(?:\\.([0-9]))?=(.*)$",
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch ofData = data.match(word);
    if (ofData.hasMatch()) {
        return dataTerm(ofData, error);
    }
    const QRegularExpressionMatch match = pair.match(word);
    const QString key = match.captured(1).toLower();
    const QChar sign = match.captured(2).isEmpty() ? QChar() : match.captured(2).at(0);
    const QString value = match.captured(3);
    if (match.hasMatch() && value.isEmpty()) {
        *error = QCoreApplication::translate("InspectionFilter", "'%1' lacks its value").arg(word);
        return nullptr;
    }
    if (key == "ack") {
        return acknowledgementTerm(sign, value, error);
    }
    if (key == "t") {
        return timeTerm(sign, value, error);
    }
    if (sign == '=' && key == "cmd") {
        return commandTerm(value, error);
    }
    if (sign == '=' && key == "dir") {
        return directionTerm(value.toLower(), error);
    }
    if (sign == '=' && key == "call") {
        return callTerm(value);
    }
    if (sign == '=' && key == "screen") {
        return [value](const InspectionRow &row) {
            const QStringList screens = row.screens();
            return std::any_of(screens.begin(), screens.end(),
                               [&](const QString &screen) { return fits(value, screen); });
        };
    }
    if (sign == '=' && key == "hex") {
        return hexTerm(value, error);
    }
    const Term plain = plainTerm(word.toLower());
    if (!plain) {
        *error = QCoreApplication::translate("InspectionFilter", "'%1' is no word of a filter; there are %2")
                     .arg(word, QLatin1String(Words));
    }
    return plain;
}

bool InspectionFilter::matches(const InspectionRow &row) const
{
    return std::all_of(m_terms.begin(), m_terms.end(), [&](const Term &term) { return term(row); });
}
