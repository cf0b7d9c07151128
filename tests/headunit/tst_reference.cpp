#include "boxcommand.h"
#include "golden.h"
#include "scriptcommands.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTest>

/// docs/headunit-reference.md tells every option, command and call that there is, and no other.
class TestReference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageIsMadeFromTheProgram();
    void everyCallIsTold();
};

namespace {

const QString Page = PAGE;

QString cell(QString text)
{
    return text.replace('|', "\\|");
}

QStringList help(const QStringList &words)
{
    QProcess program;
    program.start(HEADUNIT, words + QStringList("--help"));
    program.waitForFinished();
    QStringList lines;
    for (const QString &line : QString::fromUtf8(program.readAllStandardOutput()).trimmed().split('\n')) {
        lines << (line.isEmpty() ? line : "    " + line);
    }
    return lines;
}

// The program's own, and those of each command in front of them.
QStringList options()
{
    QStringList lines = help({});
    const int last = int(lines.size());
    for (int i = int(lines.indexOf(QRegularExpression(" *Commands, .*"))) + 1; i > 0 && i < last; ++i) {
        lines << QString() << help({lines.at(i).simplified().section(' ', 0, 0)});
    }
    return lines;
}

QStringList commands()
{
    QStringList lines = {"| command | what it does |", "|---|---|"};
    for (const ScriptCommands::Syntax &command : ScriptCommands::syntax()) {
        lines << QString("| `%1` | %2 |")
                     .arg(cell(QString("%1 %2").arg(command.name, command.arguments).trimmed()),
                          cell(command.help));
    }
    return lines;
}

QStringList orders()
{
    QStringList lines = {"| order | what happens |", "|---|---|"};
    for (const BoxCommand::Syntax &order : BoxCommand::syntax()) {
        lines << QString("| `%1` | %2 |").arg(cell(order.order), cell(order.help));
    }
    return lines;
}

// The page's row of the trace that begins with \a object.
QString rowOf(const QString &page, const QString &object)
{
    for (const QString &line : page.split('\n')) {
        if (line.startsWith("| `" + object + "` |")) {
            return line;
        }
    }
    return QString();
}

} // namespace

void TestReference::pageIsMadeFromTheProgram()
{
    const QMap<QString, QStringList> blocks = {
        {"options", options()}, {"commands", commands()}, {"orders", orders()}};
    QStringList lines;
    bool isMade = false;
    int found = 0;
    for (const QString &line : QString::fromUtf8(TestSupport::contentOf(Page)).trimmed().split('\n')) {
        const QString block = line.mid(5).section(' ', 0, 0);
        isMade = isMade && line != "<!-- end -->";
        if (!isMade) {
            lines << line;
        }
        if (line.startsWith("<!-- ") && blocks.contains(block)) {
            lines << QString() << blocks.value(block) << QString();
            isMade = true;
            ++found;
        }
    }
    QCOMPARE(found, int(blocks.size()));
    const QString difference = TestSupport::goldenDifference(Page, lines);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

// What the framework's sources trace, and what the golden drives have in them.
void TestReference::everyCallIsTold()
{
    const QString page = QString::fromUtf8(TestSupport::contentOf(Page));
    QSet<QString> calls;
    const QRegularExpression call(
        R"re((?:\btrace|called|eventCalled)\((?:QLatin1String\()?"(\w+)"\)?(?:,\s*(?:QLatin1String\()?"(\w+)")?)re");
    QDir sources(FRAMEWORK_SOURCES);
    for (const QString &name : sources.entryList({"*.cpp"})) {
        const QString text = QString::fromUtf8(TestSupport::contentOf(sources.filePath(name)));
        for (auto all = call.globalMatch(text); all.hasNext();) {
            const QRegularExpressionMatch match = all.next();
            calls << (match.captured(2).isEmpty() ? match.captured(1) : match.captured(2));
        }
    }
    QVERIFY2(calls.size() > 20, qPrintable(QStringList(calls.values()).join(' ')));
    for (const QString &name : std::as_const(calls)) {
        QVERIFY2(page.contains('`' + name + '`') || !rowOf(page, name).isEmpty(), qPrintable(name));
    }
    QDir drives(SCENARIOS);
    for (const QString &name : drives.entryList({"*.trace"})) {
        for (const QByteArray &line : TestSupport::contentOf(drives.filePath(name)).split('\n')) {
            const QJsonObject row = QJsonDocument::fromJson(line).object();
            const QString object = row.value("object").toString();
            if (object.isEmpty() || object == "script" || object == "car" ||
                row.value("call") == "setVisible") {
                continue; // any command; any value; any window
            }
            QVERIFY2(rowOf(page, object).contains('`' + row.value("call").toString() + '`'),
                     line.constData());
        }
    }
}

QTEST_GUILESS_MAIN(TestReference)
#include "tst_reference.moc"
