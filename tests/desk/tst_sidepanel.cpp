#include "boxcatalog.h"
#include "boxkeyspage.h"
#include "boxpage.h"
#include "boxspeaker.h"
#include "carpage.h"
#include "decoderbox.h"
#include "desklooks.h"
#include "propertyeditors.h"
#include "sidepanel.h"
#include "unitpage.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The panel that moves a virtual box's car by hand.
class TestSidePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void controlsFollowTheCar_data();
    void controlsFollowTheCar();
    void panelOfEachBox_data();
    void panelOfEachBox();
    void temperatureScaleHasItsEnds();
    void keysStayPressedWhileHeld();
    void scenarioErrorsAreShown();
    void diskIsPulledOutBeforeItsFolderChanges();

private:
    static std::unique_ptr<DecoderBox> makeBox(int type);
};

void TestSidePanel::initTestCase()
{
    QVERIFY(wearDeskStyle());
}

std::unique_ptr<DecoderBox> TestSidePanel::makeBox(int type)
{
    QString error;
    return std::unique_ptr<DecoderBox>(BoxCatalog::createBox(type, nullptr, &error));
}

void TestSidePanel::controlsFollowTheCar_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("value");

    for (const char *row :
         {"doors.rear_left on", "climate.fan 6", "climate.left 23.5", "climate.left LO", "climate.right HI",
          "climate.circulation auto", "box.version 1.2.3", "steering.angle -200"}) {
        QTest::newRow(row) << QString(row).section(' ', 0, 0) << QString(row).section(' ', 1);
    }
}

// What the first control shows after the car has changed, a second control for another car can be set to;
// both directions are checked on the car's texts alone.
void TestSidePanel::controlsFollowTheCar()
{
    QFETCH(QString, property);
    QFETCH(QString, value);
    SimulatedCar car;
    const CarProperty *row = CarProperty::find(property);
    QVERIFY(row);
    std::unique_ptr<QWidget> control(PropertyEditors::create(*row, &car));
    control->resize(320, 220);
    const QImage before = control->grab().toImage();
    QVERIFY(car.setValue(property, value));
    const QImage shown = control->grab().toImage();
    QVERIFY2(shown != before, "the control follows the car");
    QCOMPARE(car.text(property), value); // showing it has not changed it

    SimulatedCar fresh;
    QVERIFY(fresh.setValue(property, value));
    std::unique_ptr<QWidget> same(PropertyEditors::create(*row, &fresh));
    same->resize(320, 220);
    QCOMPARE(same->grab().toImage(), shown);
}

void TestSidePanel::panelOfEachBox_data()
{
    QTest::addColumn<int>("type");
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (row.makeSpeaker) {
            QTest::newRow(row.className) << row.type;
        }
    }
}

void TestSidePanel::panelOfEachBox()
{
    QFETCH(int, type);
    const auto box = makeBox(type);
    CarPage page(box->car(), box->speaker()->properties() << "no.such.property");
    int switches = 0;
    for (const QString &name : box->speaker()->properties()) {
        const CarProperty *property = CarProperty::find(name);
        QVERIFY2(property, qPrintable(name));
        switches += property->kind == CarProperty::Switch;
    }
    // Each switch is tapped once: each one changes one property of its own.
    QSignalSpy spy(box->car(), &SimulatedCar::changed);
    for (QPushButton *chip : page.findChildren<QPushButton *>()) {
        if (chip->isCheckable() && !chip->group()) {
            chip->click();
        }
    }
    QCOMPARE(spy.count(), switches);

    // Nothing is clipped.
    SidePanel panel(box.get());
    panel.resize(panel.width(), 860);
    panel.show();
    for (int i = 0; i < panel.pageCount(); ++i) {
        panel.showPage(i);
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QCoreApplication::processEvents();
        takeScreenshot(&panel, QString("desk-panel-%1-%2").arg(type).arg(i));
        for (const QPushButton *chip : panel.findChildren<QPushButton *>()) {
            if (chip->isVisible()) {
                QVERIFY2(chip->fontMetrics().horizontalAdvance(chip->text()) <= chip->width(),
                         qPrintable(chip->text()));
                QVERIFY(chip->mapTo(&panel, QPoint(chip->width(), 0)).x() <= panel.width());
            }
        }
    }
}

void TestSidePanel::temperatureScaleHasItsEnds()
{
    SimulatedCar car;
    const CarProperty *left = CarProperty::find("climate.left");
    std::unique_ptr<QWidget> control(PropertyEditors::create(*left, &car));
    QSlider *slider = control->findChild<QSlider *>();
    slider->setValue(slider->minimum());
    QCOMPARE(car.text("climate.left"), QString("LO"));
    slider->setValue(slider->minimum() + 1);
    QCOMPARE(car.real("climate.left"), left->minimum);
    slider->setValue(slider->maximum() - 1);
    QCOMPARE(car.real("climate.left"), left->maximum);
    slider->setValue(slider->maximum());
    QCOMPARE(car.text("climate.left"), QString("HI"));
}

void TestSidePanel::keysStayPressedWhileHeld()
{
    const auto box = makeBox(9);
    QString error;
    QVERIFY2(box->open(QString(), &error), qPrintable(error));
    QFile unit(box->portPath());
    QVERIFY(unit.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    QStringList sent;
    connect(box.get(), &DecoderBox::logLine, this, [&](const QString &line) {
        if (line.contains("box>unit")) {
            sent << line;
            unit.write("\xFF"); // the unit acknowledges whatever comes
        }
    });
    box->start();
    QTRY_VERIFY(!sent.isEmpty() && sent.last().contains("doors"));
    sent.clear();

    BoxKeysPage page(box.get());
    QPushButton *key = buttonOf<QPushButton>(&page, "Volume up");
    QVERIFY(key);
    page.show();
    QTest::mousePress(key, Qt::LeftButton);
    QTRY_VERIFY2(sent.size() >= 3, "pressed, then held and held");
    QTest::mouseRelease(key, Qt::LeftButton);
    QTRY_VERIFY(sent.last().contains("2e20020100"));
    QVERIFY(sent.first().contains("2e20020101"));
    QVERIFY(sent.at(1).contains("2e20020102"));
}

void TestSidePanel::scenarioErrorsAreShown()
{
    const auto box = makeBox(9);
    QTemporaryDir folder;
    const QString path = folder.filePath("bad.scn");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("1.0 climate.left 21.5\n2.0 no.such.thing 1\n");
    file.close();
    BoxPage page(box.get());
    page.play(path);
    bool isNamed = false;
    for (const QLabel *label : page.findChildren<QLabel *>()) {
        isNamed = isNamed || label->text().contains("bad.scn:2");
    }
    QVERIFY2(isNamed, "file and line of the error are shown");
}

void TestSidePanel::diskIsPulledOutBeforeItsFolderChanges()
{
    UnitPage page;
    QSignalSpy spy(&page, &UnitPage::diskChanged);
    QVERIFY(!buttonOf<QPushButton>(&page, "Put in")->isEnabled());
    page.setDiskFolder("/one");
    buttonOf<QPushButton>(&page, "Put in")->click();
    QCOMPARE(spy.takeFirst(), (QVariantList{true, "/one"}));
    page.setDiskFolder("/two");
    QCOMPARE(spy.takeFirst(), (QVariantList{false, "/one"}));
    QVERIFY(!page.isDiskIn());
}

QTEST_MAIN(TestSidePanel)
#include "tst_sidepanel.moc"
