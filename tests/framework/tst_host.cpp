#include "filesystemservice.h"
#include "gpiooperater.h"
#include "orbcommons.h"
#include "orbevent.h"
#include "orbeventtypes.h"
#include "orbhost.h"
#include "testfiles.h"
#include "testmain.h"
#include "tracerecorder.h"
#include "transcript.h"

using TestSupport::writeFile;

/// What the framework keeps: titles, icons, GPIO lines, language; and what it passes on. Mostly as it stands
/// in framework.txt; transcript.h tells how to read that.
class TestHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transcript();
    void tickCount();

private:
    static OrbHost *host() { return OrbHost::instance(); }
    void watch();
    QString carryOut(const QString &order);
    void note(const QString &text) { m_lines << m_trace.take() << text; }

    TraceRecorder m_trace;
    QStringList m_lines; // calls and signals in the order in which they came
};

void TestHost::watch()
{
    connect(host(), &OrbHost::appTitleChanged, this, [this](unsigned int id, const QString &title) {
        note(QString("signal: title of %1: \"%2\"").arg(id).arg(title));
    });
    connect(host(), &OrbHost::appIconsChanged, this, [this](unsigned int id) {
        note(QString("signal: icons of %1 [%2]").arg(id).arg(host()->appIcons(id).join(" | ")));
    });
    connect(host(), &OrbHost::gpioChanged, this, [this](int line, const QString &direction, int value) {
        note(QString("signal: line %1 is %2 %3").arg(line).arg(direction).arg(value));
    });
    OrbApplication *const app = OrbApplication::instance();
    connect(app, &OrbApplication::orbEventDispatched, this,
            [this](const OrbEvent *) { note("signal: event"); });
    connect(app, &OrbApplication::orbEventReceived, this,
            [this](const OrbEvent *) { note("signal: received"); });
    connect(app, &OrbApplication::keySimulated, this, [this](int key, bool press, bool repeat, int last) {
        note(QString("signal: key %1 %2 %3 %4").arg(key).arg(press).arg(repeat).arg(last));
    });
}

/// Carries out an order and tells what the framework then knows.
QString TestHost::carryOut(const QString &order)
{
    const QString what = order.section(' ', 0, 0);
    const QString first = order.section(' ', 1, 1);
    const QString rest = order.section(' ', 2);
    OrbApplication *const app = OrbApplication::instance();
    OrbEvent event(400, 12, first.toInt());
    event.setParams(0xFFFFFFFFu, 7);
    event.setByteArrayParams(QByteArray::fromHex("00ff"));
    event.setStringParam("text");
    event.setVariantParam(5);
    QEvent other(static_cast<QEvent::Type>(first.toInt())); // the same number, of somebody else
    const unsigned int id = first.toUInt();
    if (what == "append") {
        AppendAppTitle(id, rest);
    } else if (what == "translate") {
        TranslateAppTitle(id, rest);
    } else if (what == "language") {
        const bool taken = host()->setLanguage(first);
        return (taken ? "taken: " : "refused: ") + host()->language();
    } else if (what == "icons") {
        OrbEvent icons(400, 10, OrbEventType::AppIcon);
        icons.setParams(id, 0);
        icons.setStringParam(rest);
        app->dispatchOrbEvent(&icons);
        return QString();
    } else if (what == "direction") {
        GPIOOperater(first.toInt()).setDirection(rest);
    } else if (what == "value") {
        GPIOOperater(first.toInt()).setValue(rest.toInt());
    } else if (what == "dispatch") {
        app->dispatchOrbEvent(&event);
        app->dispatchOrbEvent(nullptr);
        return QString();
    } else if (what == "send") {
        QCoreApplication::sendEvent(app, &other);
        return QCoreApplication::sendEvent(app, &event) ? "taken" : "refused";
    } else if (what == "key") {
        OrbApplication::simulateKey(first.toInt(), true, false, rest.toInt());
        return QString();
    }
    if (what == "direction" || what == "value" || what == "line") {
        const GPIOOperater line(first.toInt());
        return QString("line %1: %2 %3").arg(first, line.direction()).arg(line.value());
    }
    QStringList titles{'"' + AppTitleFromAppId(id) + '"'};
    for (const unsigned int titled : host()->titledApps()) {
        titles << QString::number(titled);
    }
    return titles.join(", ");
}

void TestHost::transcript()
{
    QTemporaryDir folder;
    writeFile(folder.filePath("broken_fr.qm"), "not a translation");
    host()->addTranslationDir(folder.path());
    host()->addTranslationDir(TRANSLATION_FOLDER);
    watch();
    const auto act = [this](const QString &order) {
        m_lines.clear();
        m_trace.take();
        const QString result = order.startsWith("==") ? QString() : carryOut(order);
        return m_lines + m_trace.take() + (result.isEmpty() ? QStringList() : QStringList(result));
    };
    COMPARE_WITH_TRANSCRIPT("framework.txt", act);
    disconnect(host(), nullptr, this, nullptr);
    disconnect(OrbApplication::instance(), nullptr, this, nullptr);
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

CANBUS_TEST_MAIN(TestHost)
#include "tst_host.moc"
