#include "debuglog.h"
#include "filesystemservice.h"
#include "gpiooperater.h"
#include "orbcommons.h"
#include "orbhost.h"
#include "orbtestmain.h"
#include "orbwindowmanager.h"
#include "tracerecorder.h"

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// A compiled translation of "CAN information" in the context OrbCommons: "CAN-Infos".
QByteArray germanTranslation()
{
    return QByteArray::fromHex(
        "3cb86418caef9c95cd211cbf60a1bddd42000000080948a45e0000000069000000400300000012"
        "00430041004e002d0049006e0066006f00730800000000060000000f43414e20696e666f726d61"
        "74696f6e070000000a4f7262436f6d6d6f6e7301");
}

class LanguageCounter : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            ++changes;
    }
};

} // namespace

class TestHost : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void ownTitles();
    void tickCount();
    void disks();
    void gpioInMemory();
    void gpioArguments_data();
    void gpioArguments();
    void gpioInFiles();
    void gpioExportsALine();
    void gpioFileThatCannotBeWritten_data();
    void gpioFileThatCannotBeWritten();
    void languageChangesAtRunTime();
    void registeredTitles();
    void appInFront();

private:
    OrbHost *host() { return OrbHost::instance(); }

    TraceRecorder m_trace;
};

void TestHost::cleanup()
{
    host()->setGpioRoot(QString());
    m_trace.take();
}

void TestHost::ownTitles()
{
    QCOMPARE(AppTitleFromAppId(204), QString("CAN information"));
    QCOMPARE(AppTitleFromAppId(513), QString());
    QVERIFY(host()->titledApps().isEmpty());
}

void TestHost::registeredTitles()
{
    QSignalSpy changed(host(), &OrbHost::appTitleChanged);
    AppendAppTitle(769, "Car infos");
    AppendAppTitle(513, "360");
    AppendAppTitle(204, "Own");
    TranslateAppTitle(769, "Fahrzeug");
    TranslateAppTitle(769, "Fahrzeug");
    TranslateAppTitle(782, "");
    AppendAppTitle(204, "");

    QCOMPARE(host()->titledApps(), QList<unsigned int>({769, 513, 204, 782}));
    QCOMPARE(AppTitleFromAppId(769), QString("Fahrzeug"));
    QCOMPARE(AppTitleFromAppId(513), QString("360"));
    QCOMPARE(AppTitleFromAppId(204), QString());
    QCOMPARE(changed.count(), 6);
    QCOMPARE(changed.at(3), QVariantList({769u, "Fahrzeug"}));
    const QStringList lines = m_trace.take();
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines.first(), QString("OrbCommons.AppendAppTitle(769,Car infos)"));
    QCOMPARE(lines.at(3), QString("OrbCommons.TranslateAppTitle(769,Fahrzeug)"));
}

void TestHost::tickCount()
{
    const quint64 start = GetTickCountMs();
    QElapsedTimer timer;
    timer.start();
    QTest::qWait(20);
    const quint64 passed = GetTickCountMs() - start;
    QVERIFY(passed >= 19 && qint64(passed) <= timer.elapsed() + 1);

    host()->holdTickCount(~quint64(0));
    QCOMPARE(GetTickCountMs(), ~quint64(0));
    host()->holdTickCount(0);
    QCOMPARE(GetTickCountMs(), quint64(0));
    host()->releaseTickCount();
    QVERIFY(GetTickCountMs() >= start + 19);
}

void TestHost::disks()
{
    QVERIFY(FileSystemService::getDiskPartitionPaths(0).isEmpty());
    host()->setDiskPartitions(0, {"/media/a1", "/media/a2"});
    host()->setDiskPartitions(7, {"/media/b"});
    QCOMPARE(FileSystemService::getDiskPartitionPaths(0), QStringList({"/media/a1", "/media/a2"}));
    host()->setDiskPartitions(0, {});
    QVERIFY(FileSystemService::getDiskPartitionPaths(0).isEmpty());
    QCOMPARE(FileSystemService::getDiskPartitionPaths(7), QStringList("/media/b"));
    QVERIFY(FileSystemService::getDiskPartitionPaths(-1).isEmpty());
}

void TestHost::gpioInMemory()
{
    QSignalSpy changed(host(), &OrbHost::gpioChanged);
    {
        GPIOOperater line(30);
        QCOMPARE(line.direction(), QString("in"));
        QCOMPARE(line.value(), 0);
        line.setDirection("out");
        line.setValue(1);
        line.setValue(1);
    }
    QCOMPARE(GPIOOperater(30).value(), 1);
    QCOMPARE(GPIOOperater(30).direction(), QString("out"));
    QCOMPARE(GPIOOperater(33).value(), 0);
    QCOMPARE(host()->gpioValue(30), 1);
    QCOMPARE(host()->gpioDirection(30), QString("out"));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.last(), QVariantList({30, "out", 1}));
    QCOMPARE(m_trace.take(), QStringList({"GPIOOperater.setDirection(30,out)", "GPIOOperater.setValue(30,1)",
                                          "GPIOOperater.setValue(30,1)"}));
}

void TestHost::gpioArguments_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("keptDirection");
    QTest::addColumn<int>("keptValue");
    QTest::newRow("any number is 1") << 40 << "out" << -5 << "out" << 1;
    QTest::newRow("unknown direction") << 41 << "high" << 0 << "in" << 0;
    QTest::newRow("no such line") << -1 << "out" << 1 << "in" << 0;
}

void TestHost::gpioArguments()
{
    QFETCH(int, line);
    QFETCH(QString, direction);
    QFETCH(int, value);
    GPIOOperater operater(line);
    operater.setDirection(direction);
    operater.setValue(value);
    QTEST(operater.direction(), "keptDirection");
    QTEST(operater.value(), "keptValue");
}

void TestHost::gpioInFiles()
{
    QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkdir("gpio34"));
    writeFile(root.filePath("gpio34/direction"), "in\n");
    writeFile(root.filePath("gpio34/value"), "1\n");
    host()->setGpioRoot(root.path());

    GPIOOperater line(34);
    QCOMPARE(line.value(), 1); // an input reads as its file says
    line.setDirection("out");
    line.setValue(3);
    QCOMPARE(contentOf(root.filePath("gpio34/direction")), QByteArray("out"));
    QCOMPARE(contentOf(root.filePath("gpio34/value")), QByteArray("1"));
    line.setValue(0);
    QCOMPARE(contentOf(root.filePath("gpio34/value")), QByteArray("0"));
    QCOMPARE(line.value(), 0);
}

void TestHost::gpioExportsALine()
{
    QTemporaryDir root;
    writeFile(root.filePath("export"), "");
    host()->setGpioRoot(root.path());
    DebugLog log;
    GPIOOperater(35).setValue(1);
    QCOMPARE(contentOf(root.filePath("export")), QByteArray("35"));
    QVERIFY(!QDir(root.filePath("gpio35")).exists());
    QCOMPARE(log.lines().size(), 1);
    QCOMPARE(GPIOOperater(35).value(), 1);
}

void TestHost::gpioFileThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("root that is not there") << "";
    QTest::newRow("line without its files") << "gpio36";
    QTest::newRow("a folder in the file's place") << "gpio36/value";
}

void TestHost::gpioFileThatCannotBeWritten()
{
    QFETCH(QString, folder);
    QTemporaryDir root;
    const QString path = folder.isEmpty() ? root.filePath("absent") : root.path();
    QVERIFY(folder.isEmpty() || QDir(path).mkpath(folder));
    host()->setGpioRoot(path);
    GPIOOperater line(36);
    DebugLog log;
    line.setValue(1);
    line.setValue(0);
    QCOMPARE(log.lines().size(), 2);
    QCOMPARE(line.value(), 0);
}

void TestHost::languageChangesAtRunTime()
{
    QTemporaryDir folder;
    writeFile(folder.filePath("orb_de.qm"), germanTranslation());
    writeFile(folder.filePath("broken_fr.qm"), "not a translation");
    host()->addTranslationDir(folder.path());
    LanguageCounter window;

    QVERIFY(host()->setLanguage("de"));
    QCOMPARE(host()->language(), QString("de"));
    QCOMPARE(AppTitleFromAppId(204), QString("CAN-Infos"));
    QCoreApplication::processEvents();
    QVERIFY(window.changes > 0);
    for (const char *unknown : {"fr", "it", "*", "", "../de"}) {
        QVERIFY2(!host()->setLanguage(unknown), unknown);
        QCOMPARE(host()->language(), QString("de"));
        QCOMPARE(AppTitleFromAppId(204), QString("CAN-Infos"));
    }
    QVERIFY(host()->setLanguage("en"));
    QCOMPARE(AppTitleFromAppId(204), QString("CAN information"));
}

void TestHost::appInFront()
{
    QCOMPARE(OrbWindowManager::getCurWindowAppId(), 0u);
    host()->setCurWindowAppId(770);
    QCOMPARE(OrbWindowManager::getCurWindowAppId(), 770u);
    host()->setCurWindowAppId(0);
    QCOMPARE(OrbWindowManager::getCurWindowAppId(), 0u);
    host()->setCurWindowAppId(-1);
    QCOMPARE(OrbWindowManager::getCurWindowAppId(), 0u);
    QVERIFY(host()->windows().isEmpty());
    QVERIFY(!host()->frontWindow());
}

ORB_TEST_MAIN(TestHost)
#include "tst_host.moc"
