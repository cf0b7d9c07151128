#include "debuglog.h"
#include "filesystemservice.h"
#include "gpiooperater.h"
#include "orbcommons.h"
#include "orbhost.h"
#include "testfiles.h"
#include "testmain.h"
#include "tracerecorder.h"

using TestSupport::contentOf;
using TestSupport::writeFile;

class TestHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void tickCount();
    void gpioInMemory();
    void gpioInFiles();
    void gpioExportsALine();
    void gpioFileThatCannotBeWritten();
    void languageChangesAtRunTime();
    void registeredTitles();

private:
    OrbHost *host() { return OrbHost::instance(); }

    TraceRecorder m_trace;
};

void TestHost::cleanup()
{
    host()->setGpioRoot(QString());
    m_trace.take();
}

void TestHost::registeredTitles()
{
    QCOMPARE(AppTitleFromAppId(204), QString("CAN information"));
    QCOMPARE(AppTitleFromAppId(513), QString());
    QVERIFY(host()->titledApps().isEmpty());
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
    QTRY_VERIFY(GetTickCountMs() >= start + 20);
    const quint64 passed = GetTickCountMs() - start;
    QVERIFY(qint64(passed) <= timer.elapsed() + 1);

    host()->holdTickCount(~quint64(0));
    QCOMPARE(GetTickCountMs(), ~quint64(0));
    host()->holdTickCount(0);
    QCOMPARE(GetTickCountMs(), quint64(0));
    host()->releaseTickCount();
    QVERIFY(GetTickCountMs() >= start + 19);
}

void TestHost::gpioInMemory()
{
    QSignalSpy changed(host(), &OrbHost::gpioChanged);
    GPIOOperater line(30);
    QCOMPARE(line.direction(), QString("in"));
    QCOMPARE(line.value(), 0);
    line.setDirection("out");
    line.setDirection("high");
    line.setValue(-5); // any number is 1
    line.setValue(1);
    // The line's state outlives the object.
    QCOMPARE(GPIOOperater(30).value(), 1);
    QCOMPARE(GPIOOperater(30).direction(), QString("out"));
    QCOMPARE(GPIOOperater(33).value(), 0);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.last(), QVariantList({30, "out", 1}));
    const QStringList lines = m_trace.take();
    QCOMPARE(lines.first(), QString("GPIOOperater.setDirection(30,out)"));
    QCOMPARE(lines.last(), QString("GPIOOperater.setValue(30,1)"));
    GPIOOperater none(-1);
    none.setDirection("out");
    none.setValue(1);
    QCOMPARE(none.direction() + QString::number(none.value()), QString("in0"));
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

void TestHost::gpioFileThatCannotBeWritten()
{
    QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath("no-files/gpio36"));
    QVERIFY(QDir(root.path()).mkpath("folder/gpio36/value"));
    for (const char *path : {"absent", "no-files", "folder"}) {
        host()->setGpioRoot(root.filePath(path));
        GPIOOperater line(36);
        DebugLog log;
        line.setValue(1);
        line.setValue(0);
        QCOMPARE(log.lines().size(), 2);
        QCOMPARE(line.value(), 0);
    }
}

void TestHost::languageChangesAtRunTime()
{
    QTemporaryDir folder;
    writeFile(folder.filePath("broken_fr.qm"), "not a translation");
    host()->addTranslationDir(folder.path());
    host()->addTranslationDir(TRANSLATION_FOLDER);
    QVERIFY(host()->setLanguage("de"));
    QCOMPARE(host()->language(), QString("de"));
    QCOMPARE(AppTitleFromAppId(204), QString("CAN-Informationen"));
    for (const char *unknown : {"fr", "it", "*", "", "../de"}) {
        QVERIFY2(!host()->setLanguage(unknown), unknown);
        QCOMPARE(host()->language(), QString("de"));
    }
    QCOMPARE(AppTitleFromAppId(204), QString("CAN-Informationen"));
    QVERIFY(host()->setLanguage("en"));
    QCOMPARE(AppTitleFromAppId(204), QString("CAN information"));
}

CANBUS_TEST_MAIN(TestHost)
#include "tst_host.moc"
