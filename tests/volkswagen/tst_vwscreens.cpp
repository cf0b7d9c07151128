#include "testmain.h"
#include "transcript.h"
#include "vwbench.h"

#include "volkswagen/carpicture.h"
#include "volkswagen/volkswagenwindow.h"

#include "orbhost.h"

#include <QLabel>

/// The screens as they follow packages and fingers: driving data, tyres, service data and reports. What
/// happens and what is then to be seen stands in vwscreens.txt; transcript.h tells how to read it.
class TestVwScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void screens();
    void marksLieOnTheTyres();
};

namespace {

/// Adapter, screen and at most one window of each kind.
struct Bench
{
    /// What there is to see: texts, colours and presence of the parts by name, and the rows of a page.
    QMap<QString, QString> state() const
    {
        QMap<QString, QString> seen;
        for (QWidget *part : window ? window->findChildren<QWidget *>() : QList<QWidget *>()) {
            const QString name = part->objectName();
            if (name.contains(QRegularExpression("^(label|frameTyre|dot|tab[RT]|btn)"))) {
                seen[name] = part->property("text").toString() + ' ' + part->styleSheet() +
                             (part->isHidden() ? " hidden" : "") +
                             (part->property("checked").toBool() ? " checked" : "");
            }
        }
        for (int row = 0; page && row < VwBench::rowsOf(*page).size(); ++row) {
            seen[QString("row %1").arg(row)] = VwBench::rowsOf(*page).at(row);
        }
        seen["title"] = page ? page->windowTitle() : QString();
        return seen;
    }

    TestScreen screen;
    TraceRecorder trace;
    VwBench::SettingsFolder settings;
    CanBus_Raise_Volkswagen adapter;
    std::unique_ptr<VolkswagenWindow> window;
    QPointer<VWFunctionSetting> page;
};

void carryOut(Bench &bench, const QString &order)
{
    const QString what = order.section(' ', 0, 0);
    const QString with = order.section(' ', 1);
    if (what == "window") {
        bench.window.reset(new VolkswagenWindow(&bench.adapter));
        bench.window->show();
    } else if (what == "page") {
        delete bench.page;
        bench.page = new VWFunctionSetting(with.toUInt(), &bench.adapter);
        bench.page->show();
    } else if (what == "feed") {
        VwBench::feed(bench.adapter, with.toLatin1());
    } else if (what == "click") {
        VwBench::click(*bench.window, with.toLatin1());
    } else if (what == "turn") {
        bench.window->changeRangeIndex(with.toInt());
    } else if (what == "ask") {
        bench.window->syncDrivingData(with.toInt());
    } else if (what == "language") {
        OrbHost::instance()->setLanguage(with);
        QCoreApplication::sendPostedEvents();
    } else if (what == "hide") {
        bench.window->hide();
    } else if (what == "show") {
        bench.window->show();
    } else if (what == "home") {
        qobject_cast<OrbMainWindow *>(OrbHost::instance()->frontWindow())->home();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } else {
        qFatal("unknown order: %s", qPrintable(order));
    }
}

} // namespace

void TestVwScreens::initTestCase()
{
    TestSupport::watchConnects();
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
}

void TestVwScreens::screens()
{
    std::unique_ptr<Bench> bench;
    QMap<QString, QString> newWindow; // every later one is told by what it has else
    const auto act = [&](const QString &order) {
        if (order.startsWith("==")) {
            bench.reset();
            bench.reset(new Bench);
            return QStringList();
        }
        const QMap<QString, QString> before = order == "window" ? newWindow : bench->state();
        carryOut(*bench, order);
        const QMap<QString, QString> after = bench->state();
        newWindow = newWindow.isEmpty() ? after : newWindow;
        QStringList lines;
        for (const QString &part : before.keys() + after.keys()) {
            if (before.value(part) != after.value(part)) {
                lines << (part + ": " + after.value(part, "gone")).simplified();
            }
        }
        lines.sort();
        lines.removeDuplicates();
        const QStringList sent = VwBench::sent(bench->trace);
        lines << (sent.isEmpty() ? QStringList() : QStringList("sent " + sent.join(" | ")));
        const auto *front = qobject_cast<OrbMainWindow *>(OrbHost::instance()->frontWindow());
        if (front && front != bench->window.get() && front != bench->page) {
            lines << QString("page %1 lies in front").arg(front->appId());
        }
        return lines;
    };
    COMPARE_WITH_TRANSCRIPT("vwscreens.txt", act);
}

void TestVwScreens::marksLieOnTheTyres()
{
    const char *const frames[] = {"frameTyreLeftFront", "frameTyreRightFront", "frameTyreLeftRear",
                                  "frameTyreRightRear"};
    Bench bench;
    carryOut(bench, "window");
    carryOut(bench, "click btnTPMS");
    VwBench::feed(bench.adapter, "68 0f 03");
    const CarPicture *car = bench.window->findChild<CarPicture *>();
    for (const QSize &size : {QSize(1024, 600), QSize(800, 480)}) {
        bench.screen.resize(size);
        QCoreApplication::processEvents();
        const QRect picture = car->pictureRect();
        QVERIFY(picture.height() > 200 && car->rect().contains(picture));
        for (int i = 0; i < 4; ++i) {
            const QRect frame = bench.window->findChild<QWidget *>(frames[i])->geometry();
            QCOMPARE(frame.size(), QSize(qRound(picture.width() * 0.15), qRound(picture.height() * 0.23)));
            QVERIFY(picture.contains(frame));
            QCOMPARE(frame.center().x() > picture.center().x(), i % 2 == 1);
            QCOMPARE(frame.center().y() > picture.center().y(), i >= 2);
        }
    }
}

CANBUS_TEST_MAIN(TestVwScreens)
#include "tst_vwscreens.moc"
