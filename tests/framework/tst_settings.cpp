#include "debuglog.h"
#include "orbhost.h"
#include "orbiniconfig.h"
#include "testfiles.h"
#include "testmain.h"

#include <QRandomGenerator>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using TestSupport::contentOf;
using TestSupport::writeFile;

namespace {

/// A text that tells from which round it is, large enough for a write to be cut in the middle.
QString payloadOf(int round)
{
    return QString("%1-").arg(round).repeated(8000);
}

/// Writes round by round and reports each one that is finished, until the process is killed.
void writeWithoutAPause(int round, int finished)
{
    OrbIniConfig config("car.ini", "Car");
    while (config.setValue("payload", payloadOf(round)) &&
           ::write(finished, &round, sizeof round) == sizeof round) {
        ++round;
    }
    ::_exit(1);
}

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void missingFileIsEmpty();
    void valuesComeBack_data();
    void valuesComeBack();
    void valueThatIsThereTouchesNoFile();
    void objectsOnOneFileSeeEachOther();
    void fileByHand_data();
    void fileByHand();
    void damagedAnywhereThePredecessorIsUsed();
    void damagedInManyPlaces();
    void missingFileLeavesItsPredecessor();
    void fileThatCannotBeWritten();
    void writeThatStopsAtAnyByte_data();
    void writeThatStopsAtAnyByte();
    void killedWhileWriting();

private:
    QString path() const { return m_dir->filePath("set/car.ini"); }
    QString read(const QString &key) const
    {
        return OrbIniConfig("car.ini", "Car").value(key, "(default)").toString();
    }
    void writeBoth(const QString &key, const QString &first, const QString &second)
    {
        OrbIniConfig config("car.ini", "Car");
        QVERIFY(config.setValue(key, first));
        QVERIFY(config.setValue(key, second));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestSettings::init()
{
    // In memory where there is such a folder: flushing costs nothing there, so that more writes are cut.
    const QString memory("/dev/shm");
    const QString parent = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    m_dir.reset(new QTemporaryDir(parent + "/tst_settings-XXXXXX"));
    QVERIFY(m_dir->isValid());
    OrbHost::instance()->setSettingsDir(m_dir->filePath("set"));
}

void TestSettings::cleanup()
{
    m_dir.reset();
}

void TestSettings::missingFileIsEmpty()
{
    OrbIniConfig config("car.ini", "Car");
    QCOMPARE(config.filePath(), path());
    QVERIFY(!config.contains("SetItem1"));
    QVERIFY(!config.value("SetItem1").isValid());
    QCOMPARE(config.value("SetItem1", 3).toInt(), 3);
    QVERIFY2(!QFileInfo::exists(m_dir->filePath("set")), "reading must not write");
}

void TestSettings::valuesComeBack_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << "SetItem128" << QVariant(-12);
    QTest::newRow("umlauts and signs outside the first plane")
        << QString::fromUtf8("größe") << QVariant(QString::fromUtf8("21.5°C 车 😀"));
    QTest::newRow("blanks at the ends") << " a " << QVariant("  a b  ");
    QTest::newRow("wide blank at the start") << "a" << QVariant(QString(QChar(0x3000)) + "a");
    QTest::newRow("line ends and control characters")
        << "a" << QVariant(QString("1\n[x]\r\ny=2\t") + QChar(0));
    QTest::newRow("backslashes") << "a\\" << QVariant("C:\\u0041\\\\n, 2; \"3\"");
    QTest::newRow("key that looks like a section") << "[a]=;#" << QVariant("\"b\"");
    QTest::newRow("key that looks like a comment") << ";a" << QVariant("");
    QTest::newRow("value that looks like a checksum") << "a" << QVariant("\n; sha1=0\n");
}

void TestSettings::valuesComeBack()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    for (const char *group : {"Car", "", "[x] =;"}) {
        QVERIFY(OrbIniConfig("car.ini", group).setValue(key, value));
        QVERIFY(OrbIniConfig("car.ini", group).setValue("other", group));
    }
    DebugLog log;
    for (const char *group : {"Car", "", "[x] =;"}) {
        QCOMPARE(OrbIniConfig("car.ini", group).value(key).toString(), value.toString());
        QCOMPARE(OrbIniConfig("car.ini", group).value("other").toString(), QString(group));
    }
    QCOMPARE(log.lines(), QStringList());
    QVERIFY(!OrbIniConfig("car.ini", "Car").setValue("", 1));
}

void TestSettings::valueThatIsThereTouchesNoFile()
{
    OrbIniConfig config("car.ini", "Car");
    QVERIFY(config.setValue("SetItem1", 1));
    QVERIFY(QFile::remove(path()));
    QVERIFY(config.setValue("SetItem1", "1"));
    QVERIFY(!QFile::exists(path()));
    QVERIFY(config.setValue("SetItem1", 2));
    QVERIFY(QFile::exists(path()));
}

void TestSettings::objectsOnOneFileSeeEachOther()
{
    {
        OrbIniConfig first("car.ini", "Car");
        OrbIniConfig second(path(), "Car");
        QVERIFY(first.setValue("a", 1));
        QVERIFY(second.setValue("b", 2));
        QCOMPARE(second.value("a").toInt(), 1);
        QVERIFY(first.setValue("a", 3));
    }
    QCOMPARE(read("a"), QString("3"));
    QCOMPARE(read("b"), QString("2"));
}

void TestSettings::fileByHand_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("value");
    QTest::newRow("blanks, comments, DOS line ends, no last line end")
        << QByteArray("# mine\r\n\r\n [ Car ] \r\n ; note\r\n\tSetItem1 = 5") << "5";
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf[Car]\nSetItem1=5\n") << "5";
    QTest::newRow("quotes") << QByteArray("[Car]\nSetItem1=\" 5 \"\n") << " 5 ";
    QTest::newRow("a quote alone") << QByteArray("[Car]\nSetItem1=\"\n") << "\"";
    QTest::newRow("escape that is none")
        << QByteArray("[Car]\nSetItem1=C:\\new\\u00g\\") << "C:\\new\\u00g\\";
    QTest::newRow("the last of two counts") << QByteArray("[Car]\nSetItem1=4\nSetItem1=5\n") << "5";
    QTest::newRow("other section") << QByteArray("SetItem1=4\n[Bus]\nSetItem1=5\n") << "(default)";
    QTest::newRow("line that means nothing") << QByteArray("[Car]\nSetItem1=5\nrubbish\n") << "(default)";
    QTest::newRow("no key") << QByteArray("[Car]\nSetItem1=5\n=6\n") << "(default)";
    QTest::newRow("open bracket") << QByteArray("[Car]\nSetItem1=5\n[Bus\n") << "(default)";
    QTest::newRow("no UTF-8") << QByteArray("[Car]\nSetItem1=5\nx=\xff\n") << "(default)";
    QTest::newRow("NULs behind the text") << "[Car]\nSetItem1=5\n" + QByteArray(512, '\0') << "(default)";
    QTest::newRow("empty file") << QByteArray() << "(default)";
    QTest::newRow("larger than any settings file")
        << "[Car]\nSetItem1=5\n;" + QByteArray(1 << 20, 'x') << "(default)";
}

void TestSettings::fileByHand()
{
    QFETCH(QByteArray, content);
    QVERIFY(QDir().mkpath(m_dir->filePath("set")));
    writeFile(path(), content);
    QTEST(read("SetItem1"), "value");
    QVERIFY(OrbIniConfig("car.ini", "Car").setValue("SetItem2", 6));
    QTEST(read("SetItem1"), "value");
    QCOMPARE(read("SetItem2"), QString("6"));
}

void TestSettings::damagedAnywhereThePredecessorIsUsed()
{
    writeBoth("SetItem1", "old", "new");
    QCOMPARE(read("SetItem1"), QString("new"));
    const QByteArray whole = contentOf(path());
    const QByteArray predecessor = contentOf(path() + ".bak");
    QByteArrayList damaged = {whole + "SetItem1=later\n"};
    for (int i = 0; i < whole.size(); ++i) {
        damaged << whole.left(i) << whole;
        damaged.last()[i] = char(whole.at(i) ^ (1 << (i % 8)));
    }
    DebugLog log;
    for (const QByteArray &content : damaged) {
        writeFile(path(), content);
        QVERIFY2(read("SetItem1") == "old", content.constData());
    }
    QCOMPARE(log.lines().size(), damaged.size());
    // The next write keeps the good predecessor and leaves nothing beside.
    QVERIFY(OrbIniConfig("car.ini", "Car").setValue("SetItem2", 1));
    QCOMPARE(contentOf(path() + ".bak"), predecessor);
    QCOMPARE(read("SetItem1"), QString("old"));
    QCOMPARE(QDir(m_dir->filePath("set")).entryList(QDir::Files), QStringList({"car.ini", "car.ini.bak"}));
}

// Whatever befalls a file, in one place or in several: it loads what was written, or counts as absent.
void TestSettings::damagedInManyPlaces()
{
    writeBoth("SetItem1", "old", "new");
    const QByteArray whole = contentOf(path());
    const int firstLine = int(whole.indexOf('\n'));
    const int lastLine = int(whole.lastIndexOf('\n', whole.size() - 2)) + 1;
    QVERIFY(QFile::remove(path() + ".bak"));
    DebugLog log;
    QRandomGenerator random(15);
    const int rounds = qEnvironmentVariableIsSet("ORB_MANY_DAMAGES") ? 100000 : 10000;
    for (int round = 0; round < rounds; ++round) {
        QByteArray content = whole;
        // Half of them in both lines by which the file is known, the others anywhere.
        const bool isInBoth = round % 2 == 0;
        for (int place = isInBoth ? 0 : random.bounded(1, 5); place < (isInBoth ? 2 : 5); ++place) {
            const int from = isInBoth && place == 1 ? lastLine : 0;
            const int to = isInBoth && place == 0 ? firstLine : int(whole.size());
            const int at = qMin(random.bounded(from, to), int(content.size()) - 1);
            const int count = random.bounded(1, 4);
            switch (at < 0 ? 3 : int(random.bounded(4))) {
            case 0:
                content[at] = char(content.at(at) ^ (1 << random.bounded(8)));
                break;
            case 1:
                content.remove(at, count);
                break;
            case 2:
                content.insert(at, QByteArray(count, char(random.bounded(32, 127))));
                break;
            default:
                content.replace(qMax(at, 0), count, QByteArray(count, '\xFF'));
            }
        }
        writeFile(path(), content);
        const QString value = read("SetItem1");
        QVERIFY2(content == whole || value == "(default)", content.constData());
    }
}

// The unit stopped between its two renames, or somebody took the file away.
void TestSettings::missingFileLeavesItsPredecessor()
{
    writeBoth("SetItem1", "old", "new");
    QVERIFY(QFile::remove(path()));
    DebugLog log;
    QCOMPARE(read("SetItem1"), QString("old"));
    // Nor does a pipe of that name hold the unit up.
    QCOMPARE(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    QCOMPARE(read("SetItem1"), QString("old"));
    // The file beside is never somebody else's.
    const QString other = m_dir->filePath("other");
    writeFile(other, "untouched");
    QVERIFY(QFile::remove(path()) && QFile::link(other, path() + ".new"));
    QVERIFY(OrbIniConfig("car.ini", "Car").setValue("SetItem1", "next"));
    QCOMPARE(contentOf(other), QByteArray("untouched"));
    QCOMPARE(read("SetItem1"), QString("next"));
}

void TestSettings::fileThatCannotBeWritten()
{
    writeFile(m_dir->filePath("set"), "a file where the folder should be");
    OrbIniConfig config("car.ini", "Car");
    DebugLog log;
    QVERIFY(!config.setValue("a", 1));
    QCOMPARE(log.lines().size(), 1);
    QCOMPARE(config.value("a").toInt(), 1);
    QVERIFY(!config.setValue("a", 1));
    QVERIFY(QFile::remove(m_dir->filePath("set")));
    QVERIFY2(config.setValue("a", 1), "a value that did not reach the disk is written when it is set again");
    const QByteArray before = contentOf(path());
    QVERIFY(before.contains("a=1\n"));
    QVERIFY2(!config.setValue("b", QString(1 << 20, 'x')), "a value that no file should hold");
    QCOMPARE(contentOf(path()), before);
}

void TestSettings::writeThatStopsAtAnyByte_data()
{
    QTest::addColumn<bool>("dies");
    QTest::newRow("the process dies") << true;
    QTest::newRow("the disk is full") << false;
}

/// A process that may write so many bytes to a file and no more. Up to the size of the version before, it
/// fails at the copy that becomes the predecessor, after that at the new version.
void TestSettings::writeThatStopsAtAnyByte()
{
    QFETCH(bool, dies);
    writeBoth("payload", "first", "second");
    const QString large = payloadOf(3).left(600);
    int stopped = 0;
    for (rlim_t size = 0; read("payload") == "second"; size += 5) {
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            const rlimit limit = {size, size};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            ::signal(SIGXFSZ, dies ? SIG_DFL : SIG_IGN);
            DebugLog quiet;
            ::_exit(OrbIniConfig("car.ini", "Car").setValue("payload", large) ? 0 : 1);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        if (status != 0) {
            ++stopped;
            QVERIFY(dies || QDir(m_dir->filePath("set")).entryList({"*.new"}).isEmpty());
        }
        DebugLog log;
        QVERIFY(read("payload") == (status != 0 ? "second" : large));
        const QString before = OrbIniConfig("car.ini.bak", "Car").value("payload").toString();
        QVERIFY(before == "first" || before == "second");
        QCOMPARE(log.lines(), QStringList());
    }
    QCOMPARE(stopped, (contentOf(path()).size() + 4) / 5);
}

/// A process that writes without a pause is killed at arbitrary moments. Whatever stands there then was
/// written whole, is from the round that was last finished or the one after, and its predecessor is whole
/// too.
void TestSettings::killedWhileWriting()
{
    int lastRound = 0;
    for (int kill = 0; kill < 20; ++kill) {
        int finished[2];
        QCOMPARE(::pipe(finished), 0);
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            writeWithoutAPause(lastRound + 1, finished[1]);
        }
        ::close(finished[1]);
        // The first round is waited for, so that every child is killed while it writes.
        int round = 0;
        QCOMPARE(::read(finished[0], &round, sizeof round), ssize_t(sizeof round));
        ::usleep(useconds_t(307 * kill));
        QCOMPARE(::kill(child, SIGKILL), 0);
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        while (::read(finished[0], &round, sizeof round) == ssize_t(sizeof round)) {
        }
        ::close(finished[0]);

        DebugLog log;
        const QString payload = read("payload");
        QCOMPARE(log.lines(), QStringList());
        lastRound = payload.section('-', 0, 0).toInt();
        QVERIFY(lastRound == round || lastRound == round + 1);
        QVERIFY(payload == payloadOf(lastRound));
        if (QFile::exists(path() + ".bak")) {
            const QString before = OrbIniConfig("car.ini.bak", "Car").value("payload").toString();
            QCOMPARE(log.lines(), QStringList());
            QVERIFY(before == payloadOf(before.section('-', 0, 0).toInt()));
        }
    }
}

CANBUS_TEST_MAIN(TestSettings)
#include "tst_settings.moc"
