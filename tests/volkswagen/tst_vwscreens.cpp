#include "testmain.h"
#include "transcript.h"
#include "vwbench.h"

#include "volkswagen/carpicture.h"
#include "volkswagen/figurelabel.h"
#include "volkswagen/railbutton.h"
#include "volkswagen/tyreslot.h"
#include "volkswagen/volkswagenwindow.h"

#include "orbhost.h"

#include <QLabel>
#include <QLayout>

#include <cmath>

/// The screens as they follow packages and fingers: driving data, tyres, service data and reports. What
/// happens and what is then to be seen stands in vwscreens.txt; transcript.h tells how to read it.
class TestVwScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void screens();
    void marksLieOnTheTyres();
    void carKeepsItsPlace();
    void isDrawnClearly();
    void figuresHaveOneSize();
};

namespace {

/// Where the car is drawn in the window.
QRect place(const CarPicture &car)
{
    return car.pictureRect().translated(car.mapTo(car.window(), QPoint()));
}

int tens(int pixels)
{
    return (pixels + 5) / 10 * 10;
}

/// To ten pixels, because texts are a pixel higher or lower with another Qt: "410,60 170x320".
QString roughly(const QRect &picture)
{
    return QString("%1,%2 %3x%4")
        .arg(tens(picture.x()))
        .arg(tens(picture.y()))
        .arg(tens(picture.width()))
        .arg(tens(picture.height()));
}

/// Application ids of the settings pages that are open, the one in front last.
QStringList openPages()
{
    QStringList ids;
    for (QObject *child : OrbHost::instance()->windowArea()->children()) {
        const auto *page = qobject_cast<const VWFunctionSetting *>(child);
        if (page && page->isVisible()) {
            ids << QString::number(page->appId());
        }
    }
    return ids;
}

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
                const auto *rail = qobject_cast<const RailButton *>(part);
                seen[name] = part->property("text").toString() + ' ' + part->styleSheet() +
                             (part->isHidden() ? " hidden" : "") +
                             (part->property("checked").toBool() ? " checked" : "") +
                             (rail && rail->hasBadge() ? " badge" : "");
            } else if (const auto *slot = qobject_cast<const TyreSlot *>(part)) {
                seen[name] = slot->isKnown() ? "known" : "unknown";
            }
        }
        seen["car"] = window ? roughly(place(*window->findChild<CarPicture *>())) : QString();
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
    } else if (what == "wait") {
        QTest::qWait(with.toInt());
    } else if (what == "sweep") {
        const QPoint from(300, 300);
        TestScreen::drag(bench.window->findChild<QWidget *>("tabRange"), from,
                         from + QPoint(with.section(' ', 0, 0).toInt(), with.section(' ', 1).toInt()));
    } else if (what == "open") {
        VWFunctionSetting *const page = new VWFunctionSetting(with.toUInt(), &bench.adapter);
        page->show();
    } else if (what == "hide") {
        bench.window->hide();
    } else if (what == "show") {
        bench.window->show();
    } else if (what == "home") {
        VwBench::click(*OrbHost::instance()->frontWindow(), "btnHome");
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
            lines << "open pages " + openPages().join(' ');
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
            const QImage mark = bench.window->findChild<QWidget *>(frames[i])->grab().toImage();
            QCOMPARE(mark.pixelColor(mark.rect().center()), QColor(Qt::yellow));
            QVERIFY(mark.pixelColor(0, 0) != QColor(Qt::yellow));
        }
    }
}

// A report of either kind leaves the car where it is.
void TestVwScreens::carKeepsItsPlace()
{
    for (const QSize &size : {QSize(1024, 600), QSize(800, 480)}) {
        Bench bench;
        bench.screen.resize(size);
        carryOut(bench, "window");
        carryOut(bench, "click btnTPMS");
        QCoreApplication::processEvents();
        const CarPicture *car = bench.window->findChild<CarPicture *>();
        const QRect before = place(*car);
        for (const char *report : {"68 00 00", "65 01 02 00 00", "68 0f 04", "65 00 00 00 00", "68 00 01"}) {
            VwBench::feed(bench.adapter, report);
            QCoreApplication::processEvents();
            QCOMPARE(place(*car), before);
        }
        QSpacerItem *const spacer = bench.window->findChild<QLayout *>("layoutCar")->itemAt(1)->spacerItem();
        QCOMPARE(spacer->sizeHint(), QSize(20, 20));
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum));
    }
}

// Red on its ground has the contrast that small text needs; the bar of a checked button is a bar.
void TestVwScreens::isDrawnClearly()
{
    const auto luminance = [](const QColor &colour) {
        const auto part = [](double c) {
            return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    Bench bench;
    bench.screen.resize(800, 480);
    carryOut(bench, "window");
    carryOut(bench, "click btnTPMS");
    VwBench::feed(bench.adapter, "65 01 00 00 00");
    QCoreApplication::processEvents();
    const QImage label = bench.window->findChild<QLabel *>("labelTyreLeftFront")->grab().toImage();
    const QColor ground = label.pixelColor(8, label.height() / 2);
    QVERIFY((luminance(Qt::red) + 0.05) / (luminance(ground) + 0.05) >= 4.5);

    const QImage button = bench.window->findChild<RailButton *>("btnTPMS")->grab().toImage();
    const QColor bar = button.pixelColor(2, button.height() / 2);
    QVERIFY(bar != button.pixelColor(8, button.height() / 2));
    for (int y = 0; y < button.height(); ++y) {
        for (int x = 6; x < 16; ++x) {
            QVERIFY(button.pixelColor(x, y) != bar);
        }
    }
}

// Figures of one page have one size, which fits them all: no ink on first and last line or column, and all stand on one
// base line.
void TestVwScreens::figuresHaveOneSize()
{
    for (const QSize &size : {QSize(400, 40), QSize(140, 90), QSize(400, 30)}) {
        QWidget page;
        FigureGroup group;
        const QStringList texts{"11 km", "111 L/100km", "1111.1 mph(UK)", "1:11"};
        QList<FigureLabel *> figures;
        for (const QString &text : texts) {
            figures << new FigureLabel(&page);
            figures.last()->setText(text);
            figures.last()->resize(size);
            group.add(figures.last());
        }
        group.fit();
        QSet<int> tops;
        for (FigureLabel *figure : figures) {
            const QImage picture = figure->grab().toImage();
            const auto hasInk = [&picture](const QRect &area) {
                const QImage part = picture.copy(area);
                QImage blank(part.size(), part.format());
                blank.fill(picture.pixelColor(0, 0));
                return part != blank;
            };
            QVERIFY(!hasInk(QRect(0, 0, size.width(), 1)));
            QVERIFY(!hasInk(QRect(size.width() - 1, 0, 1, size.height())));
            int first = 0;
            while (!hasInk(QRect(0, first, 20, 1))) {
                ++first;
                QVERIFY(first < size.height());
            }
            tops.insert(first);
        }
        QCOMPARE(tops.size(), 1);
    }
}

CANBUS_TEST_MAIN(TestVwScreens)
#include "tst_vwscreens.moc"
