#include "bitprobe.h"
#include "frameformat.h"
#include "headunitrun.h"
#include "transcript.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

/// The commands `probe`, which bit of a package does what with the real plug-in, and `diff`, how two boxes differ.
class TestProbe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mappings_data();
    void mappings();
    void probes();
    void compares();

private:
    static QStringList run(const QStringList &words);
};

void TestProbe::mappings_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("text");
    QTest::newRow("steps of a half") << QStringList{"LO", "16.0°C", "16.5°C", "17.0°C", "HI"}
                                     << "0 = LO, 1..3 = 16.0°C..17.0°C, 4 = HI";
    QTest::newRow("rounded") << QStringList{"0", "-1", "-3", "-5", "-6", "-8", "-9", "-11", "-12", "-14"}
                             << "0..9 = 0..-14";
    QTest::newRow("a step in between")
        << QStringList{"0", "1", "2", "5", "6", "7"} << "0..2 = 0..2, 3..5 = 5..7";
    QTest::newRow("the rest") << QStringList{"x", "7", "x", "x", "x"} << "1 = 7, else x";
    QTest::newRow("one for all") << QStringList{"a", "a", "a", "a"} << "always a";
    QTest::newRow("a number in the unit")
        << QStringList{"0.0 L/100km", "25.6 L/100km", "51.2 L/100km"} << "0..2 = 0.0 L/100km..51.2 L/100km";
    QTest::newRow("a short table") << QStringList{"0", "1", "2", "4", "6"} << "0..2 = 0..2, 3 = 4, 4 = 6";
    QTest::newRow("hours and minutes")
        << QStringList{"3:23", "7:39", "11:55", "16:11"} << "0..3 = 3:23..16:11";
    QTest::newRow("bytes") << QStringList{"0800", "0900", "0a00", "0b00"} << "0..3 = 0800..0b00";
    QTest::newRow("stairs") << QStringList{"0", "1", "1", "2", "3", "3", "4", "5", "5", "6"} << "0..9 = 0..6";
    QTest::newRow("up to a limit") << QStringList{"0", "1", "2", "3", "4", "4"} << "0..4 = 0..4, 5 = 4";
    QTest::newRow("two levels") << QStringList{"0", "0", "0", "0", "0", "1", "1", "1", "1", "1", "1"}
                                << "0..4 = 0, else 1";
    QTest::newRow("bytes with a step in between")
        << QStringList{"0000", "0100", "0a00", "0b00"} << "0 = 0000, 1 = 0100, 2 = 0a00, 3 = 0b00";
    QTest::newRow("no bytes") << QStringList{"1008", "1009", "1010", "1011"} << "0..3 = 1008..1011";
    QTest::newRow("a unit changes") << QStringList{"1 m", "2 m", "3 ft", "4 ft"}
                                    << "0 = 1 m, 1 = 2 m, 2 = 3 ft, 3 = 4 ft";
}

void TestProbe::mappings()
{
    QFETCH(QStringList, values);
    QTEST(BitProbe::mapping(values), "text");
}

QStringList TestProbe::run(const QStringList &words)
{
    QProcess program;
    program.start(HEADUNIT, words);
    program.waitForFinished(60000);
    QString said = QString::fromUtf8(program.readAllStandardOutput());
    // The usage behind a complaint is the same for each; an emulated processor tells of each crash.
    const QStringList complaints = QString::fromUtf8(program.readAllStandardError()).split('\n');
    said += complaints.filter(QRegularExpression("^(?!qemu: )")).value(0);
    // Empty lines and those with # are the reader's in a transcript.
    return said.split('\n').filter(QRegularExpression("^[^#]")) +
           QStringList(QString("ends with %1").arg(program.exitCode()));
}

void TestProbe::probes()
{
    const auto act = [](const QString &order) {
        QStringList words;
        for (const QString &word : order.split(' ')) {
            words << QString(word).replace('_', ' ').replace("FRAGILE", FRAGILE_PLUGIN);
        }
        return order.startsWith("==") ? QStringList() : run(QStringList("probe") + words);
    };
    COMPARE_WITH_TRANSCRIPT("probe.txt", act);
}

// An order: two sides, either with what is done to the log first, "DIRECTION COMMAND BYTE MASK" flips the bits of one
// package, "drop COMMAND" leaves a command out, "slow" lets twice the time pass.
void TestProbe::compares()
{
    QTemporaryDir folder;
    const auto change = [&](const QString &side, const QString &order) {
        QFile log(QString(LOGS "/%1.orblog").arg(side));
        if (order.isEmpty() || !log.open(QIODevice::ReadOnly)) {
            return log.exists() ? log.fileName() : side;
        }
        const QStringList words = order.split(',');
        const FrameFormat &format = FrameFormat::raise();
        QByteArrayList lines;
        bool isDone = false;
        for (const QByteArray &line : log.readAll().split('\n')) {
            const QByteArrayList parts = line.split(' ');
            const QByteArray frame = QByteArray::fromHex(parts.value(2));
            BoxPackage package = format.isFrame(frame) ? format.package(frame) : BoxPackage();
            const bool isMeant = package.command == words.value(1).toInt(nullptr, 16);
            if (words.first() == "drop" && isMeant) {
                continue;
            }
            QByteArray changed = line;
            if (words.first() == "flip" && isMeant && !isDone) {
                const int byte = words.at(2).toInt();
                package.data[byte] = char(package.data.at(byte) ^ words.at(3).toInt(nullptr, 16));
                changed = parts.at(0) + ' ' + parts.at(1) + ' ' + format.frame(package).toHex();
                isDone = true;
            } else if (words.first() == "longer" && isMeant) {
                package.data += char(0);
                changed = parts.at(0) + ' ' + parts.at(1) + ' ' + format.frame(package).toHex();
            } else if (words.first() == "slow" && line.startsWith('(')) {
                const double time = parts.at(0).mid(1, parts.at(0).size() - 2).toDouble();
                changed = '(' + QByteArray::number(2 * time, 'f', 6) + line.mid(parts.at(0).size() - 1);
            }
            lines << changed;
        }
        TestSupport::writeFile(folder.filePath("changed.orblog"), lines.join('\n'));
        return folder.filePath("changed.orblog");
    };
    const auto act = [&](const QString &order) {
        const QStringList words = order.split(' ');
        QStringList said =
            run(QStringList{"diff", change(words.at(0), QString()), change(words.value(1), words.value(2))} +
                words.mid(3));
        return said.replaceInStrings(LOGS "/", "").replaceInStrings(folder.path() + '/', "");
    };
    COMPARE_WITH_TRANSCRIPT("diff.txt", act);
}

QTEST_GUILESS_MAIN(TestProbe)
#include "tst_probe.moc"
