#include "apptile.h"
#include "boxcatalog.h"
#include "boxkeyspage.h"
#include "boxpage.h"
#include "buttonof.h"
#include "carpage.h"
#include "carview.h"
#include "carwords.h"
#include "decoderbox.h"
#include "keycard.h"
#include "keystrip.h"
#include "launcher.h"
#include "propertyeditors.h"
#include "unitcontrols.h"
#include "unitpage.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>

#include <memory>

/// The desk's own widgets and its panel: what they paint, and what they do under a finger.
class TestDeskWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carViewShowsWhatWasReported();
    void carViewClipsNothing();
    void cardShowsEachMoveOfAKey();
    void heldKeyRepeats();
    void launcherOpensByFingerAndByKeys();
    void controlsChangeTheCar();
    void controlsFollowTheCar();
    void carKeysStayPressedWhileHeld();
    void scenarioErrorsAreShown();
    void diskIsPulledOutBeforeItsFolderChanges();
    void everyNameHasItsWordInEachLanguage();
};

namespace {

const int HeadingHeight = 64;
const QSize StandardView(410, 528); // on a unit of 1024x600
const QSize SmallView(320, 408);    // on one of 800x480

/// A view of a car with levels (front, then rear), doors and steering angle.
QImage picture(const QByteArray &levels, std::optional<int> doors = 0, int angle = 0,
               const QSize &size = StandardView)
{
    CarState state;
    std::copy(levels.begin(), levels.begin() + CarState::Sensors, state.front);
    std::copy(levels.begin() + CarState::Sensors, levels.end(), state.rear);
    state.hasFront = state.hasRear = true;
    state.doors = doors;
    state.steering = angle;
    CarView view;
    view.resize(size);
    view.setState(state);
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The middle, seen from the car's, of the pixels below the heading that are other ones in \a after.
QPointF change(const QImage &before, const QImage &after)
{
    CarView view;
    view.resize(StandardView);
    QPointF sum;
    int count = 0;
    for (int y = HeadingHeight; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y)) {
                sum += QPointF(x, y);
                ++count;
            }
        }
    }
    return count == 0 ? QPointF() : sum / count - view.carRect().center();
}

std::unique_ptr<DecoderBox> makeBox(int type)
{
    QString error;
    return std::unique_ptr<DecoderBox>(BoxCatalog::createBox(type, nullptr, &error));
}

/// Knows no word, but which ones it was asked for.
class WordCollector : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "CarWords") == 0) {
            words << text;
        }
        return QString();
    }
    bool isEmpty() const override { return false; }

    mutable QList<QByteArray> words;
};

} // namespace

void TestDeskWidgets::carViewShowsWhatWasReported()
{
    const QByteArray none(8, '\0');
    const QImage before = picture(none);
    for (int i = 0; i < none.size(); ++i) { // sensors from left to right, in front and behind
        const QPointF place = change(before, picture(QByteArray(none).replace(i, 1, "\3")));
        QVERIFY(!place.isNull() && (place.y() < 0) == (i < 4) && (place.x() < 0) == (i % 4 < 2));
    }
    for (int i = 0; i < 4; ++i) { // doors from left to right, in front and behind
        const QPointF place = change(before, picture(none, 1 << i));
        QVERIFY(!place.isNull() && (place.y() < 0) == (i < 2) && (place.x() < 0) == (i % 2 == 0));
    }
    QVERIFY(change(before, picture(none, 0, -40)).x() < change(before, picture(none, 0, -10)).x());
    QVERIFY(change(before, picture(none, 0, 10)).x() < change(before, picture(none, 0, 40)).x());
    // What lies past the scale is drawn at its end, and told.
    QVERIFY(picture(QByteArray(8, '\6')) != picture(QByteArray(8, '\7')));
    QVERIFY(picture(none, 0, -391) != picture(none, 0, -40));
    QVERIFY(change(picture(none, 0, -391), picture(none, 0, -40)).isNull());
    const QImage unknown = picture(none, std::nullopt);
    QVERIFY2(unknown != before && unknown != picture(none, 1), "nobody knows whether a door is open");
    CarView view;
    QVERIFY2(view.steeringText().isEmpty(), "nothing was reported yet");
    CarState state;
    state.steering = -391;
    view.setState(state);
    QCOMPARE(view.steeringText(), QString("Steering -391°"));
}

void TestDeskWidgets::carViewClipsNothing()
{
    for (const QSize &size : {StandardView, SmallView}) {
        const QRect bottom(0, size.height() - 4, size.width(), 4);
        const QImage bare = picture(QByteArray(8, '\0'), 0, 0, size).copy(bottom);
        for (const int angle : {-40, 0, 40}) {
            QVERIFY(picture(QByteArray(8, '\xFF'), 0xF, angle, size).copy(bottom) == bare);
        }
    }
}

void TestDeskWidgets::cardShowsEachMoveOfAKey()
{
    UnitControls controls;
    KeyCard card(&controls);
    QList<QImage> pictures{card.grab().toImage()};
    const bool moves[][2] = {{true, false}, {true, true}, {false, false}, {true, false}}; // press, repeat
    for (const auto &move : moves) {
        controls.key(Qt::Key_Hangup, move[0], move[1]);
        const QImage now = card.grab().toImage();
        QVERIFY(!pictures.contains(now));
        pictures << now;
    }
}

void TestDeskWidgets::heldKeyRepeats()
{
    KeyStrip strip(2);
    strip.show();
    QList<int> phases;
    connect(&strip, &KeyStrip::keyUsed, this,
            [&](int code, int phase) { phases << (code == 0x2F00006 ? phase : -code); });
    const QList<QToolButton *> keys = strip.findChildren<QToolButton *>();
    const auto isRaw = [](const QToolButton *button) { return button->toolTip() == "0x2f00006"; };
    QToolButton *key = *std::find_if(keys.begin(), keys.end(), isRaw); // a raw key of the set

    QTest::mousePress(key, Qt::LeftButton);
    QTRY_COMPARE(phases, (QList<int>{KeyStrip::Press, KeyStrip::Repeat, KeyStrip::Repeat}));
    QTest::mouseRelease(key, Qt::LeftButton);
    QVERIFY2(!strip.findChild<QTimer *>()->isActive(), "a key that was let go repeats no more");
    QTest::mousePress(key, Qt::LeftButton);
    strip.hide(); // a key that is left behind is released
    QCOMPARE(phases.mid(3), (QList<int>{KeyStrip::Release, KeyStrip::Press, KeyStrip::Release}));
}

void TestDeskWidgets::launcherOpensByFingerAndByKeys()
{
    Launcher launcher;
    launcher.resize(560, 376);
    QVector<Launcher::Entry> entries;
    for (const uint id : {6, 9, 513, 514, 515}) {
        entries << Launcher::Entry{id < 513 ? Launcher::Entry::Source : Launcher::Entry::Application, id,
                                   "Name", QString(), QString()};
    }
    launcher.setEntries(entries);
    launcher.setMode(6);
    launcher.show();
    QVector<uint> opened;
    connect(&launcher, &Launcher::chosen, this, [&](const Launcher::Entry &entry) { opened << entry.id; });
    QTest::mouseClick(launcher.tile(2), Qt::LeftButton);
    QVERIFY(QTest::qWaitForWindowActive(&launcher));
    launcher.tile(0)->setFocus();
    // Nothing to the left of the first one, and no tile in the row below the second one.
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Enter, Qt::Key_Down, Qt::Key_Enter,
                          Qt::Key_Left, Qt::Key_Down, Qt::Key_Enter}) {
        launcher.navigate(key);
    }
    QCOMPARE(opened, (QVector<uint>{513, 9, 9, 515}));
    QVERIFY2(launcher.tile(0)->isChecked() && !launcher.tile(1)->isChecked(), "a tap asks; the mode answers");
    launcher.setMode(9);
    QVERIFY(!launcher.tile(0)->isChecked() && launcher.tile(1)->isChecked());
}

void TestDeskWidgets::controlsChangeTheCar()
{
    SimulatedCar car;
    const std::unique_ptr<QWidget> left(PropertyEditors::create(*CarProperty::find("climate.left"), &car));
    QSlider *slider = left->findChild<QSlider *>();
    QStringList texts;
    for (const int place : {0, 1, 2, slider->maximum() - 1, slider->maximum()}) {
        slider->setValue(place);
        texts << car.text("climate.left");
    }
    QCOMPARE(texts, (QStringList{"LO", "15", "15.5", "32", "HI"}));
    CarPage page(&car, {"doors.rear_left", "no.such.property", "climate.circulation"});
    buttonOf<QPushButton>(&page, "Rear left")->click();
    buttonOf<QPushButton>(&page, "Auto")->click();
    QVERIFY(car.flag("doors.rear_left") && car.text("climate.circulation") == "auto");
}

// What a control shows after the car has changed, another one for a car that is so from the start shows as well.
void TestDeskWidgets::controlsFollowTheCar()
{
    const QStringList lines{"doors.rear_left on", "climate.fan 6",      "climate.left 23.5",
                            "climate.left LO",    "climate.right HI",   "climate.circulation auto",
                            "box.version 1.2",    "steering.angle -200"};
    for (const QString &line : lines) {
        const QString name = line.section(' ', 0, 0);
        const QString value = line.section(' ', 1);
        const CarProperty *property = CarProperty::find(name);
        SimulatedCar car;
        SimulatedCar other;
        QVERIFY(other.setValue(name, value));
        const std::unique_ptr<QWidget> control(PropertyEditors::create(*property, &car));
        const QImage wanted =
            std::unique_ptr<QWidget>(PropertyEditors::create(*property, &other))->grab().toImage();
        QVERIFY2(control->grab().toImage() != wanted, qPrintable(line));
        QVERIFY(car.setValue(name, value));
        QVERIFY2(control->grab().toImage() == wanted, qPrintable(line));
        QCOMPARE(car.text(name), value); // showing it has not changed it
    }
}

void TestDeskWidgets::carKeysStayPressedWhileHeld()
{
    const auto box = makeBox(9);
    QString error;
    QVERIFY2(box->open(QString(), &error), qPrintable(error));
    QFile unit(box->portPath());
    QVERIFY(unit.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    QStringList keys;
    connect(box.get(), &DecoderBox::logLine, this, [&](const QString &line) {
        if (line.contains("box>unit")) {
            unit.write("\xFF"); // the unit acknowledges whatever comes
            keys << QStringList(line).filter("2e2002");
        }
    });
    box->start();
    BoxKeysPage page(box.get());
    QPushButton *key = buttonOf<QPushButton>(&page, "Volume up");
    QVERIFY(key);
    QTest::mousePress(key, Qt::LeftButton);
    QTRY_VERIFY(keys.size() >= 3);
    QTest::mouseRelease(key, Qt::LeftButton);
    QTRY_VERIFY(keys.last().contains("2e20020100"));
    QVERIFY(keys.at(0).contains("2e20020101") && keys.at(1).contains("2e20020102"));
}

void TestDeskWidgets::scenarioErrorsAreShown()
{
    const auto box = makeBox(9);
    BoxPage page(box.get());
    page.play("no/such.scn");
    QStringList shown;
    for (const QLabel *label : page.findChildren<QLabel *>()) {
        shown << label->text();
    }
    QVERIFY(!shown.filter("no/such.scn").isEmpty());
}

void TestDeskWidgets::diskIsPulledOutBeforeItsFolderChanges()
{
    UnitPage page;
    QSignalSpy spy(&page, &UnitPage::diskChanged);
    QVERIFY(!buttonOf<QPushButton>(&page, "Put in")->isEnabled());
    page.setDiskFolder("/one");
    buttonOf<QPushButton>(&page, "Put in")->click();
    page.setDiskFolder("/two");
    QCOMPARE(spy, (QList<QVariantList>{{true, "/one"}, {false, "/one"}}));
}

// A new property, choice or key needs its word in carwords_LANGUAGE.ts.
void TestDeskWidgets::everyNameHasItsWordInEachLanguage()
{
    Q_INIT_RESOURCE(headunit_i18n);
    WordCollector asked;
    QVERIFY(QCoreApplication::installTranslator(&asked));
    for (const CarProperty &property : CarProperty::all()) {
        CarWords::groupText(property.group());
        CarWords::propertyText(property.name);
        for (const QString &choice : property.choices) {
            CarWords::text(choice);
        }
    }
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (row.makeSpeaker) {
            BoxKeysPage page(makeBox(row.type).get());
        }
    }
    QVERIFY(asked.words.contains("To window") && asked.words.contains("Cursor up"));
    for (const QString &language : UnitPage::languages().mid(1)) { // after English
        QTranslator translator;
        QVERIFY(translator.load(":/i18n/carwords_" + language));
        for (const QByteArray &word : asked.words) {
            QVERIFY2(!translator.translate("CarWords", word.constData()).isEmpty(),
                     qPrintable(language + ": " + word));
        }
    }
}

QTEST_MAIN(TestDeskWidgets)
#include "tst_deskwidgets.moc"
