// What the inspector makes of a line: filters, what has changed, who acknowledged what, what a package has caused.

#include "inspection.h"
#include "inspectionfilter.h"
#include "inspectiontext.h"
#include "keytester.h"
#include "keytext.h"
#include "packagevalues.h"

#include <QTest>

namespace {

const int Toyota = 9;

// Feeds "MS <|> HEX", "MS take HEX", "MS call TEXT", "MS key CODE PHASE" and "done", one a line.
void play(Inspection *inspection, const QString &script)
{
    for (const QString &line : script.split('\n', Qt::SkipEmptyParts)) {
        const QString word = line.section(' ', 1, 1);
        const QString rest = line.section(' ', 2);
        LineRecord record;
        record.microseconds = line.section(' ', 0, 0).toLongLong() * 1000;
        record.kind = word == "<" ? LineRecord::ToUnit : LineRecord::ToBox;
        record.bytes = QByteArray::fromHex(rest.toLatin1());
        inspection->setNow(record.microseconds);
        if (word == "<" || word == ">") {
            inspection->feed(record);
        } else if (word == "take") {
            inspection->taken(record.bytes);
        } else if (word == "call") {
            inspection->called(rest);
        } else if (word == "key") {
            inspection->unitKey(rest.section(' ', 0, 0).toUInt(nullptr, 0), rest.section(' ', 1).toInt());
        } else {
            inspection->done();
        }
    }
    inspection->pass(inspection->now() + 1000000);
}

QString textOf(const Inspection &inspection)
{
    QString text;
    for (qint64 i = inspection.firstNumber(); i < inspection.endNumber(); ++i) {
        text += InspectionText::plain(inspection.row(i));
    }
    return text;
}

const char *const Doors = "10 < 2e2401805a\n";

} // namespace

class TestInspection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows();
    void ringKeepsTheNewest();
    void filters_data();
    void filters();
    void keys_data();
    void keys();
};

void TestInspection::rows_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("text");
    QTest::newRow("acknowledged, called, then a timer")
        << QString(Doors) + "11 take 2e2401805a\n11 call A.b 1\n11 done\n12 > ff\n20 call Timer.c\n"
        << "    0.010000 < 0x24 doors           80  ack 2.0 ms\n                A.b 1\n"
           "    0.020000 · CALL Timer.c\n";
    // The framework's framer may be sure of a package before the log's is.
    QTest::newRow("taken before it is framed")
        << "10 take 2e2401805a\n10 call A.b\n10 done\n10 < 2e2401805a\n"
        << "    0.010000 < 0x24 doors           80\n                A.b\n";
    QTest::newRow("said twice, answered once") << QString(Doors) + "60 < 2e2401805a\n63 > ff\n"
                                               << "    0.010000 < 0x24 doors           80\n"
                                                  "    0.060000 < 0x24 doors           80  ack 3.0 ms\n";
    QTest::newRow("two, then both answers") << QString(Doors) + "11 < 2e24010 0da\n12 > ffff\n"
                                            << "    0.010000 < 0x24 doors           80  ack 2.0 ms\n"
                                               "    0.011000 < 0x24 doors           [00]  ack 1.0 ms\n";
    QTest::newRow("a bit that nobody knows") << QString(Doors) + "20 < 2e240181 59\n"
                                             << "    0.010000 < 0x24 doors           80\n"
                                                "    0.020000 < 0x24 doors           {81}\n";
    QTest::newRow("a bad one, and the good one in it")
        << "10 < 2e24042e2401805a00\n"
        << "    0.010000 < BAD 0x24             2e 24 01 80\n    0.010000 < 0x24 doors           80\n    "
           "0.010000 < NO PACKAGE           00\n";
    QTest::newRow("a key of the unit") << "10 key 0x2f00003 1\n10 call OrbApplication.simulateKey 1 true\n"
                                       << "    0.010000 · KEY                  0x2f00003 press\n"
                                          "                OrbApplication.simulateKey 1 true\n";
}

void TestInspection::rows()
{
    QFETCH(QString, script);
    QFETCH(QString, text);
    Inspection inspection(Toyota);
    play(&inspection, script);
    QCOMPARE(textOf(inspection), text);
}

void TestInspection::ringKeepsTheNewest()
{
    Inspection inspection(Toyota);
    LineRecord record;
    record.bytes = QByteArray::fromHex("2e2401805a");
    for (int i = 0; i <= Inspection::MostRows; ++i) {
        record.microseconds = qint64(i) * 5000;
        inspection.feed(record);
    }
    QVERIFY(inspection.endNumber() - inspection.firstNumber() <= Inspection::MostRows);
    QCOMPARE(inspection.endNumber(), qint64(Inspection::MostRows) + 1);
    QCOMPARE(inspection.row(inspection.endNumber() - 1).microseconds, record.microseconds);
    QCOMPARE(inspection.rates().first().perSecond(inspection.now()), 200.0);
    inspection.taken(record.bytes); // of packages that are waited for none has gone
    inspection.called("A.b");
    QCOMPARE(inspection.row(inspection.endNumber() - 64).calls, QStringList("A.b"));
}

void TestInspection::filters_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("left"); // of the rows below; or what is wrong
    const QPair<const char *, const char *> rows[] = {
        {"", "0 1 2 3 4"},
        {"cmd=0x28", "0 1"},
        {"cmd=36,0x28", "0 1 2 3"},
        {"cmd=CLIM*", "0 1"},
        {"!cmd=climate dir=in", "2 3"},
        {"dir=out", "4"},
        {"bad", "3"},
        {"changed", "0 1 2 4"},
        {"explained", "0 2 4"},
        {"call=setTemp*", "0"},
        {"call=Air*.set?emperature", "0"},
        {"call=setVisible?true", "0"},
        {"screen=aircond*", "0"},
        {"hex=2e28", "0 1"},
        {"d0.6=1", "1"},
        {"d0=0x80 !changed", "3"},
        {"d250=1", ""},
        {"ack<3", "0"},
        {"ack=none cmd=0x28", "1"},
        {"t>0.015 t<0.035", "1 2"},
        {"  cmd=0x28   changed ", "0 1"},
        {"cmd=", "'cmd=' lacks its value"},
        {"cmd=0x128", "a command is at most 0xff, not 0x128"},
        {"dir=up", "dir= takes in or out, not 'up'"},
        {"hex=2", "hex= takes pairs of hexadecimal digits, not '2'"},
        {"d0.9=1", "'d0.9=1' takes a bit 0 to 7 and 0 or 1"},
        {"d0.1=2", "'d0.1=2' takes a bit 0 to 7 and 0 or 1"},
        {"d0=256", "'d0=256' takes a byte"},
        {"ack=5", "ack takes < or > and milliseconds, or =none"},
        {"t=5", "t takes < or > and seconds"},
        {"cmd<5", "'cmd<5' is no word of a filter"},
        {"cmd==5", "'cmd==5' is no word of a filter"},
        {"Climate", "'Climate' is no word of a filter"},
        {"!", "'' is no word of a filter"}};
    for (const auto &row : rows) {
        QTest::newRow(row.first) << row.first << row.second;
    }
}

void TestInspection::filters()
{
    QFETCH(QString, words);
    QFETCH(QString, left);
    Inspection inspection(Toyota);
    play(&inspection,
         "10 < 2e28048002070743\n10 take 2e28048002070743\n10 call AirConditionDlg.setTemperature a b\n"
         "10 call AirConditionDlg.setVisible true\n10 done\n12 > ff\n20 < 2e2804c102070702\n"
         "30 < 2e2401805a\n40 < 2e24018000\n50 > 2e8101017c\n");
    InspectionFilter filter;
    QString problem;
    if (!filter.parse(words, &problem)) {
        QVERIFY2(problem.startsWith(left) && !left.isEmpty(), qPrintable(problem));
        return;
    }
    QStringList rows;
    for (qint64 i = 0; i < inspection.endNumber(); ++i) {
        if (filter.matches(inspection.row(i))) {
            rows << QString::number(i);
        }
    }
    QCOMPARE(rows.join(' '), left);
}

void TestInspection::keys_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("text");
    QTest::newRow("two at once, each with its own release")
        << 9 << "100 < 2e200201 01db\n200 < 2e2002 0301d9\n300 < 2e20020100dc\n400 < 2e20020300da\n"
        << "     0.100 s  wheel  0x20 0x01 volume_up          down for 200 ms: nothing\n"
           "     0.200 s  wheel  0x20 0x03 next               down for 200 ms: nothing\n";
    QTest::newRow("a release without a press")
        << 9 << "300 < 2e20020100dc\n"
        << "     0.300 s  wheel  0x20 0x01 volume_up          came up without "
           "a press: nothing\n";
    QTest::newRow("down for too long")
        << 9 << "100 < 2e20020101db\n300 < 2e20020102da\n10200 < 2e2401805a\n"
        << "     0.100 s  wheel  0x20 0x01 volume_up          still down after 11100 "
           "ms, held 1 times: nothing; it was down for more than 10 s\n";
    // XinHang has the state first; a cursor key is said once.
    QTest::newRow("state before code")
        << 4 << "100 < f0030301 0dee\n200 < f00303000def\n300 < f002870177\n"
        << "     0.100 s  wheel  0x03 0x0d volume_up          down for 100 ms: nothing\n"
           "     0.300 s  panel  0x87 0x01 cursor_down        down for 0 ms: nothing\n";
    QTest::newRow("of the unit, redefined")
        << 9
        << "10 call OrbApplication.event type=51007 param=20497 param2=21 variant=[{\"keyCode\": 49283075, "
           "\"ctrlValue\": 16711880}]\n"
           "100 key 0x2f00003 1\n100 done\n200 key 0x2f00003 0\n200 call OrbApplication.simulateKey 16777234 "
           "true "
           "false 0\n200 done\n"
        << "     0.100 s  unit   0x2f00003 (line 0xff00c8)    down for 100 ms: 0x2f00003, redefined as "
           "Left\n";
}

void TestInspection::keys()
{
    QFETCH(int, type);
    QFETCH(QString, script);
    QFETCH(QString, text);
    Inspection inspection(type);
    play(&inspection, script);
    KeyTester tester(KeyReader(inspection.values()->speaker()));
    for (qint64 i = 0; i < inspection.endNumber(); ++i) {
        tester.take(inspection.row(i));
    }
    QString lines;
    for (const KeyStroke &stroke : tester.strokes()) {
        lines += KeyText::plain(stroke, inspection.now()) + '\n';
    }
    QCOMPARE(lines, text);
}

QTEST_GUILESS_MAIN(TestInspection)
#include "tst_inspection.moc"
