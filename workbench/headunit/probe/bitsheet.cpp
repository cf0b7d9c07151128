#include "bitsheet.h"

#include "boxcatalog.h"
#include "probestart.h"
#include "probetext.h"

namespace {

// The modes in front that the unit tells its plug-ins of.
const uint FirstMode = 2;
const uint LastMode = 18;
const int AnswerMs = 300;    // until what follows a change of the mode is said
const int SilenceMs = 12000; // in which the unit says what it says by itself
const int MostHexBytes = 24;

const char Yes[] = "yes";

QString hex(int value)
{
    return QString("0x%1").arg(value, 2, 16, QLatin1Char('0'));
}

QString hex(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.left(MostHexBytes).toHex(' ')) +
           (bytes.size() > MostHexBytes ? " ..." : "");
}

QString cell(QString text)
{
    return text.replace('|', "\\|");
}

// What a report is about: "climate" for "climate.left".
QStringList functionsOf(const BoxReport &report)
{
    QStringList names;
    for (const QString &property : report.concerns) {
        names << property.section('.', 0, 0);
    }
    names.removeDuplicates();
    return names;
}

} // namespace

BitSheet::BitSheet(ProbeUnit *unit, int type, BoxSpeaker *speaker, const DriveTraces &drives)
    : m_unit(unit), m_type(type), m_speaker(speaker), m_drives(drives)
{}

bool BitSheet::run(QString *error)
{
    for (int i = 0; i < m_speaker->reports().size(); ++i) {
        const BoxReport &report = m_speaker->reports().at(i);
        if (!probe(m_speaker->reportPackage(i), report.meaning, functionsOf(report), false, error)) {
            return false;
        }
    }
    QList<quint8> commands; // a key of each kind tells of all of them
    for (const BoxKey &key : m_speaker->keys()) {
        const QVector<BoxPackage> packages = key.source == BoxKey::Knob
                                                 ? QVector<BoxPackage>{m_speaker->knobPackage(key, 1)}
                                                 : m_speaker->keyPackages(key, BoxSpeaker::Pressed);
        if (!packages.isEmpty() && !commands.contains(packages.first().command)) {
            commands << packages.first().command;
            const QString name = key.source == BoxKey::Knob ? "knobs" : "keys";
            if (!probe(packages.first(), name, {name}, true, error)) {
                return false;
            }
        }
    }
    m_unit->tapAll();
    findSent();
    return true;
}

bool BitSheet::probe(const BoxPackage &package, const QString &name, const QStringList &functions,
                     bool isKeys, QString *error)
{
    m_fromBox += QString("### %1 %2\n\n`%3`\n\n").arg(hex(package.command), name, hex(package.data));
    bool isDecoded = false;
    bool isDrawn = false;
    if (!package.data.isEmpty()) {
        BitProbe probe(m_unit, *m_speaker, package);
        if (probe.run(-1, isKeys, error) != BitProbe::Done) {
            return false;
        }
        if (!probe.turn().isEmpty()) {
            m_fromBox += QString("On the page to which `%1` turns:\n\n").arg(probe.turn());
        }
        m_fromBox += ProbeText::markdown(probe) + '\n';
        for (const QString &call :
             probe.moved() + QSet<QString>(probe.base().keyBegin(), probe.base().keyEnd())) {
            isDecoded = true;
            isDrawn = isDrawn || !call.startsWith("car ");
        }
    }
    for (const QString &functionName : functions) {
        Function &function = m_functions[functionName];
        function.isDecoded = function.isDecoded || isDecoded;
        function.isDrawn = function.isDrawn || isDrawn;
        function.isDriven = function.isDriven || isDriven(package);
    }
    return true;
}

bool BitSheet::isDriven(const BoxPackage &package) const
{
    const bool isOneOfMany = ProbeStart::reportsOf(*m_speaker, package.command) > 1;
    for (const QByteArray &frame : m_drives.received()) {
        const BoxPackage driven = m_speaker->format().package(frame);
        if (driven.command == package.command && (!isOneOfMany || driven.d(0) == package.d(0))) {
            return true;
        }
    }
    return false;
}

void BitSheet::findSent()
{
    for (const QByteArray &frame : m_unit->sentAtStart()) {
        addSent(frame, "start");
    }
    for (uint mode = FirstMode; mode <= LastMode; ++mode) {
        for (const QByteArray &frame :
             m_unit->sentAfter([mode](HeadUnit *unit) { unit->setMode(mode); }, AnswerMs)) {
            addSent(frame, QString("mode %1").arg(mode));
        }
    }
    for (const QByteArray &frame : m_unit->sentAfter([](HeadUnit *) {}, SilenceMs)) {
        addSent(frame, "by itself");
    }
    for (const ScreenTour::Screen &screen : m_unit->screens().screens()) {
        for (const QByteArray &frame : screen.asked) {
            addSent(frame, "page " + screen.name);
        }
        for (const ScreenTour::Control &control : screen.controls) {
            for (const ScreenTour::Answer &answer : control.answers) {
                for (const QByteArray &frame : answer.sent) {
                    addSent(frame, screen.name + ": " + control.name);
                }
            }
        }
    }
    for (const QByteArray &frame : m_drives.sent()) {
        for (const QString &drive : m_drives.drivesOf(frame)) {
            addSent(frame, "drive " + drive);
        }
    }
}

// Packages that agree in command and, when there are more data, in the first data byte are of one kind.
void BitSheet::addSent(const QByteArray &frame, const QString &cause)
{
    if (!m_speaker->format().isFrame(frame)) {
        return;
    }
    const BoxPackage package = m_speaker->format().package(frame);
    const QByteArray kind = char(package.command) + package.data.left(1) + char(package.n() > 1);
    if (!m_sentKinds.contains(kind)) {
        QString meaning;
        const BoxSpeaker::Understanding understanding = m_speaker->receive(package, &meaning);
        Function &function = m_functions[meaning.section(' ', 0, 0)];
        function.isSent = function.isSent || understanding == BoxSpeaker::Understood;
        m_sentKinds.insert(kind, int(m_sent.size()));
        m_sent << Sent{frame,
                       understanding == BoxSpeaker::Understood ? meaning
                                                               : QString("the box knows no such command"),
                       {},
                       0};
    }
    Sent &sent = m_sent[m_sentKinds.value(kind)];
    sent.others += frame == sent.frame || sent.causes.contains(cause) ? 0 : 1;
    if (!sent.causes.contains(cause)) {
        sent.causes << cause;
    }
    const QString word = sent.meaning.section(' ', 0, 0);
    if (cause.startsWith("drive ") && m_functions.contains(word)) {
        m_functions[word].isDriven = true;
    }
}

QString BitSheet::text() const
{
    const QString className = BoxCatalog::className(m_type);
    QString text =
        QString(
            "# %1\n\n"
            "The box of type %2. This sheet is made by `headunit probe --all docs/boxes` from the "
            "plug-in's calls, its screens and the virtual box's names; a change by hand is overwritten.\n\n"
            "## From the box\n\n")
            .arg(className)
            .arg(m_type);
    text += m_fromBox;
    text += "## To the box\n\n| command | data | what the box makes of it | when |\n|---|---|---|---|\n";
    for (const Sent &sent : m_sent) {
        const BoxPackage package = m_speaker->format().package(sent.frame);
        text += QString("| %1 | `%2`%3 | %4 | %5 |\n")
                    .arg(hex(package.command), hex(package.data), sent.others > 0 ? " and others" : "",
                         cell(sent.meaning), sent.causes.join(", "));
    }
    return text + screenTables() + "\n## Functions\n\n" + functionTable();
}

// What each tap says to the box.
QString BitSheet::screenTables() const
{
    QString text;
    for (const ScreenTour::Screen &screen : m_unit->screens().screens()) {
        text += QString("\n### %1\n\n").arg(screen.name);
        text += screen.openedBy.isEmpty() ? QString() : QString("Opened by %1. ").arg(screen.openedBy);
        text += screen.asked.isEmpty() ? QString("Asks for nothing.\n")
                                       : QString("Asks `%1`.\n").arg(framesText(screen.asked));
        text += screen.controls.isEmpty() ? "" : "\n| what is tapped | what it sends |\n|---|---|\n";
        for (const ScreenTour::Control &control : screen.controls) {
            QStringList answers;
            for (const ScreenTour::Answer &answer : control.answers) {
                const QString choice = answer.choice.isEmpty() ? QString() : answer.choice.trimmed() + ": ";
                answers << choice + '`' + framesText(answer.sent) + '`';
            }
            text += QString("| %1 | %2 |\n").arg(cell(control.name), cell(answers.join("<br>")));
        }
    }
    return text.isEmpty() ? text : "\n## Screens\n" + text;
}

QString BitSheet::framesText(const QVector<QByteArray> &frames) const
{
    QStringList texts;
    for (const QByteArray &frame : frames) {
        const BoxPackage package = m_speaker->format().package(frame);
        texts << hex(package.command) + ' ' + hex(package.data);
    }
    return texts.join("`, `");
}

QString BitSheet::functionTable() const
{
    QString text = "| function | decoded | drawn | sent | driven |\n|---|---|---|---|---|\n";
    for (auto at = m_functions.cbegin(); at != m_functions.cend(); ++at) {
        const auto mark = [](bool is) { return QLatin1String(is ? Yes : ""); };
        text +=
            QString("| %1 | %2 | %3 | %4 | %5 |\n")
                .arg(at.key(), mark(at->isDecoded), mark(at->isDrawn), mark(at->isSent), mark(at->isDriven));
    }
    return text;
}

QMap<QString, BitSheet::Function> BitSheet::functionsIn(const QString &sheet)
{
    QMap<QString, Function> functions;
    for (const QString &line : sheet.section("\n## Functions\n", 1).split('\n')) {
        const QStringList cells = line.split('|');
        if (cells.size() == 7 && cells.at(1).trimmed() != "function" && !cells.at(1).startsWith("--")) {
            const auto is = [&cells](int i) { return cells.at(i).trimmed() == QLatin1String(Yes); };
            functions.insert(cells.at(1).trimmed(), {is(2), is(3), is(4), is(5)});
        }
    }
    return functions;
}
