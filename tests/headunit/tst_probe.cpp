#include "bitprobe.h"
#include "headunitrun.h"
#include "transcript.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

/// The command `probe` with the real plug-in: which bit of a package does what.
class TestProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mappings_data();
    void mappings();
    void probes();
};

void TestProbe::mappings_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("text");
    QTest::newRow("steps of a half") << QStringList{"LO", "16.0°C", "16.5°C", "17.0°C", "HI"}
                                     << "0 = LO, 1..3 = 16.0°C..17.0°C, 4 = HI";
    QTest::newRow("rounded") << QStringList{"0", "-1", "-3", "-5", "-6"} << "0..4 = 0..-6";
    QTest::newRow("a step in between")
        << QStringList{"0", "1", "2", "5", "6", "7"} << "0..2 = 0..2, 3..5 = 5..7";
    QTest::newRow("the rest") << QStringList{"x", "7", "x", "x", "x"} << "1 = 7, else x";
    QTest::newRow("one for all") << QStringList{"a", "a", "a", "a"} << "always a";
    QTest::newRow("a unit changes") << QStringList{"1 m", "2 m", "3 ft", "4 ft"}
                                    << "0 = 1 m, 1 = 2 m, 2 = 3 ft, 3 = 4 ft";
}

void TestProbe::mappings()
{
    QFETCH(QStringList, values);
    QTEST(BitProbe::mapping(values), "text");
}

void TestProbe::probes()
{
    const auto act = [](const QString &order) {
        if (order.startsWith("==")) {
            return QStringList();
        }
        QStringList words;
        for (const QString &word : order.split(' ')) {
            words << QString(word).replace('_', ' ');
        }
        QProcess program;
        program.start(HEADUNIT, QStringList("probe") + words);
        program.waitForFinished(60000);
        QString said = QString::fromUtf8(program.readAllStandardOutput());
        said += QString::fromUtf8(program.readAllStandardError()).section("\nUsage", 0, 0);
        // Empty lines and those with # are the reader's in a transcript.
        return said.split('\n').filter(QRegularExpression("^[^#]")) +
               QStringList(QString("ends with %1").arg(program.exitCode()));
    };
    COMPARE_WITH_TRANSCRIPT("probe.txt", act);
}

QTEST_GUILESS_MAIN(TestProbe)
#include "tst_probe.moc"
