#include "boxcatalog.h"
#include "buttonof.h"
#include "carpage.h"
#include "carpicker.h"
#include "carview.h"
#include "decoderbox.h"
#include "deskmemory.h"
#include "deskwindow.h"
#include "exactfield.h"
#include "frameformat.h"
#include "headunit.h"
#include "homepage.h"
#include "linepage.h"
#include "linestrip.h"
#include "panelsearch.h"
#include "propertyeditors.h"
#include "qextserialport.h"
#include "sidepanel.h"
#include "unitpage.h"
#include "unitshell.h"
#include "unitview.h"
#include "virtualmain.h"

#include "orbapplication.h"
#include "orbhost.h"
#include "orbmainwindow.h"
#include "orbtrace.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <memory>

/// The desk around the unit: its room, its keyboard, its panel, its line, and what it remembers.
class TestDeskWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void unitTakesTheRoom();
    void touchesHitWhatIsBelow();
    void keyboardIsTheUnitsKeys();
    void panelFoldsAndIsRemembered();
    void panelScrollsByFingerButNotOnSliders();
    void valuesAreTypedAndFound();
    void lineIsAlwaysInSight();
    void lineLogIsATable();
    void pickerOffersWhatCanRun();

private:
    void hear(const QByteArray &hex);
    CarView *carView() const { return m_desk->shell()->homePage()->carView(); }

    QTemporaryDir m_configuration;
    std::unique_ptr<DecoderBox> m_box;
    std::unique_ptr<HeadUnit> m_unit;
    std::unique_ptr<DeskWindow> m_desk;
};

void TestDeskWindow::init()
{
    qputenv("XDG_CONFIG_HOME", m_configuration.path().toLocal8Bit());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_configuration.path());
    OrbHost::instance()->setTag(0x10008, 3);
    QString error;
    m_box.reset(BoxCatalog::createBox(3, nullptr, &error));
    m_unit.reset(new HeadUnit);
    m_desk.reset(new DeskWindow(m_unit.get(), m_box.get()));
    m_desk->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_desk.get()));
}

void TestDeskWindow::cleanup()
{
    m_desk.reset();
    m_unit.reset();
}

void TestDeskWindow::hear(const QByteArray &hex)
{
    const PortSettings settings = {BAUD38400, DATA_8, PAR_NONE, STOP_1, FLOW_OFF, 0};
    for (SerialTapObserver *observer : SerialTap::observers()) {
        if (hex.isEmpty()) {
            observer->opened("/nowhere/port", settings, SerialTap::now());
        } else {
            observer->received(QByteArray::fromHex(hex), SerialTap::now());
        }
    }
}

void TestDeskWindow::unitTakesTheRoom()
{
    const UnitView *view = m_desk->view();
    m_desk->resize(m_desk->minimumSizeHint());
    QTRY_COMPARE(view->scale(), UnitView::LeastScale);
    m_desk->resize(1920, 1080);
    QTRY_VERIFY(view->scale() > 1.3);
    QVERIFY(view->scale() * 600 <= view->height() && view->scale() * 1024 <= view->width());
    m_desk->resize(5000, 3000);
    QTRY_COMPARE(view->scale(), UnitView::GreatestScale);
}

void TestDeskWindow::touchesHitWhatIsBelow()
{
    for (const QSize &size : {m_desk->minimumSizeHint(), QSize(1900, 1000)}) {
        m_desk->resize(size);
        QTest::qWait(50);
        OrbMainWindow window;
        QPushButton button("Here", &window);
        button.setGeometry(600, 300, 120, 60);
        int clicks = 0;
        connect(&button, &QPushButton::clicked, this, [&] { ++clicks; });
        window.show();
        QCoreApplication::processEvents();
        const QPoint middle = button.mapTo(m_desk->screen(), button.rect().center());
        QTest::mouseClick(m_desk->view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          m_desk->view()->mapFromScene(middle));
        QCOMPARE(clicks, 1);
    }
}

void TestDeskWindow::keyboardIsTheUnitsKeys()
{
    OrbMainWindow lower;
    OrbMainWindow upper;
    QListWidget list(&upper);
    list.addItems({"one", "two", "three"});
    list.resize(300, 200);
    QStringList tapped;
    connect(&list, &QListWidget::itemClicked, this,
            [&](const QListWidgetItem *item) { tapped << item->text(); });
    lower.show();
    upper.show();
    list.setFocus();
    list.setCurrentRow(0);
    for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_Up, Qt::Key_Enter}) {
        QTest::keyClick(m_desk->view(), Qt::Key(key));
        QCoreApplication::processEvents();
    }
    QCOMPARE(tapped, QStringList({"three", "two"}));
    QTest::keyClick(m_desk->view(), Qt::Key_Escape);
    QTRY_VERIFY(!upper.isVisible());
    QVERIFY(lower.isVisible());
    QTest::keyClick(m_desk.get(), Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(!m_desk->isVisible());
}

void TestDeskWindow::panelFoldsAndIsRemembered()
{
    QCOMPARE(DeskMemory().canBusType(), 0);
    QTest::keyClick(m_desk.get(), Qt::Key_F9);
    QVERIFY(m_desk->isPanelFolded() && !m_desk->sidePanel()->isVisible() && m_desk->lineStrip()->isVisible());
    const QString before = OrbHost::instance()->language();
    Q_EMIT m_desk->sidePanel()->unitPage()->languageChosen("de");
    m_desk->resize(1333, 777);
    DeskMemory().store(m_desk.get(), 7);
    DeskMemory().store(m_desk.get(), 0); // a unit without a car
    cleanup();
    init();
    DeskMemory().restore(m_desk.get());
    QVERIFY(m_desk->isPanelFolded());
    QCOMPARE(OrbHost::instance()->language(), QString("de"));
    QCOMPARE(DeskMemory().canBusType(), 7);
    m_desk->chooseLanguage(before);
    m_desk->foldPanel(false);
    DeskMemory().store(m_desk.get(), 7);
}

void TestDeskWindow::panelScrollsByFingerButNotOnSliders()
{
    m_desk->resize(1300, 700);
    QScrollArea *area =
        qobject_cast<QScrollArea *>(m_desk->sidePanel()->findChild<QStackedWidget *>()->currentWidget());
    const auto drag = [&](const QPoint &from) {
        QWindow *window = m_desk->windowHandle();
        const QPoint start = area->viewport()->mapTo(m_desk.get(), from);
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
        for (int y = 10; y <= 200; y += 10) {
            QTest::mouseMove(window, start - QPoint(0, y));
            QTest::qWait(5); // Qt 6 takes a delay for a time stamp, and lets no time pass
        }
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 200));
        QTest::qWait(100);
    };
    QSlider *slider = area->findChild<QSlider *>();
    drag(slider->mapTo(area->viewport(), slider->rect().center()));
    QCOMPARE(area->verticalScrollBar()->value(), 0);
    drag(QPoint(area->width() / 2, 300)); // between controls, and on them
    QTRY_VERIFY(area->verticalScrollBar()->value() > 50);
}

void TestDeskWindow::valuesAreTypedAndFound()
{
    SimulatedCar car;
    CarPage page(&car, {"climate.left", "climate.fan", "steering.angle", "doors.rear_left"});
    const struct
    {
        const char *name;
        const char *typed;
        const char *value;
    } rows[] = {{"climate.left", "23,5", "23.5"},    {"climate.left", "19.5 °C", "19.5"},
                {"climate.left", "hi", "HI"},        {"climate.fan", "9", "2"},
                {"steering.angle", "-137°", "-137"}, {"steering.angle", "much", "-137"}};
    for (const auto &row : rows) {
        const CarProperty &property = *CarProperty::find(row.name);
        const std::unique_ptr<QWidget> editor(PropertyEditors::create(property, &car));
        ExactField *field = editor->findChild<ExactField *>();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, row.typed);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(car.text(row.name), QString(row.value));
        QVERIFY(field->text().startsWith(row.value));
    }
    PanelSearch::find(&page, "door LEFT");
    QVERIFY(!buttonOf<QPushButton>(&page, "Rear left")->isHidden());
    QVERIFY(page.findChild<QSlider *>()->parentWidget()->isHidden());
    PanelSearch::find(&page, " ");
    QVERIFY(!page.findChild<QSlider *>()->parentWidget()->isHidden());
}

void TestDeskWindow::lineIsAlwaysInSight()
{
    hear("");
    QTRY_COMPARE(m_desk->lineStrip()->text(),
                 QString("Volkswagen · /nowhere/port · waiting for the box's first word"));
    QVERIFY(m_desk->windowTitle().startsWith("Volkswagen · /nowhere/port"));
    hear("2e2401805a");
    QTRY_VERIFY(m_desk->lineStrip()->text().endsWith("talking") && carView()->doubt().isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(carView()->doubt().contains("silent for 5 s"), 7000);
    const QImage grey = carView()->grab().toImage();
    carView()->setDoubt(QString());
    QVERIFY(carView()->grab().toImage() != grey);
    m_box->holdTongue(2000000000);
    QTRY_VERIFY(m_desk->lineStrip()->text().endsWith("box stopped"));
}

// What is hidden is not looked for: only who looks at the table costs the unit anything.
void TestDeskWindow::lineLogIsATable()
{
    hear("");
    hear("2e2401805a2e1d0400000000de"); // doors, radar
    LinePage *page = m_desk->sidePanel()->linePage();
    QTableView *table = page->findChild<QTableView *>();
    m_desk->sidePanel()->showPage(3);
    QTRY_COMPARE(table->model()->rowCount(), 3);
    buttonOf<QPushButton>(page, "Pause")->click();
    hear("2e240100da");
    QTest::qWait(600);
    QCOMPARE(table->model()->rowCount(), 3);
    buttonOf<QPushButton>(page, "Pause")->click();
    QTRY_COMPARE(table->model()->rowCount(), 4);
    QComboBox *filter = page->findChild<QComboBox *>();
    filter->setEditText("cmd=0x24");
    QCOMPARE(table->model()->rowCount(), 2);
    filter->setEditText("cmd=0x24 and"); // told, and the last one that could be read stays
    QCOMPARE(table->model()->rowCount(), 2);
    filter->setEditText("");
    buttonOf<QPushButton>(page, "Changes")->click();
    QCOMPARE(table->model()->rowCount(), 3);
    QSignalSpy chosen(page, &LinePage::packageChosen);
    table->selectRow(2);
    QVERIFY(chosen.isEmpty());
    // Two taps on a row whose calls fill the lines below, with packages in between.
    const QByteArray climate = FrameFormat::raise().frame({0x21, QByteArray::fromHex("c8530c0e2021010c")});
    const auto hearDoors = [&] {
        for (const QByteArray &state : QVector<QByteArray>(12, "2e2401805a2e240100da")) {
            hear(state);
        }
    };
    hearDoors();
    hear(climate.toHex());
    OrbTrace::listener->called("ProtocolUtils", "recvProtocolData", {climate});
    for (int volume = 0; volume < 8; ++volume) {
        OrbTrace::listener->called("AirConditionDlg", "setAirVolume", {volume});
    }
    QTRY_COMPARE(table->model()->rowCount(), 28);
    QScrollBar *bar = table->verticalScrollBar();
    QTRY_VERIFY(bar->value() > 0 && bar->value() == bar->maximum());
    m_desk->resize(1400, 900);
    QTRY_VERIFY(table->visibleRegion().boundingRect().height() == table->height());
    QTRY_COMPARE(bar->value(), bar->maximum());
    const QPoint place = table->visualRect(table->model()->index(27, 3)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTRY_COMPARE(table->currentIndex().row(), 27);
    hearDoors();
    QTRY_COMPARE(table->model()->rowCount(), 52);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(chosen.value(0), QVariantList({3, climate}));
    table->selectRow(2);
    buttonOf<QPushButton>(page, "Copy")->click();
    QVERIFY(QGuiApplication::clipboard()->text().contains("< 0x24 doors           [00]\n"));
    QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    QTest::keyClick(m_desk.get(), Qt::Key_F12);
    QDir::setCurrent(before);
    QCOMPARE(QDir(folder.path()).entryList({"line-*.orblog"}).size(), 1);
}

void TestDeskWindow::pickerOffersWhatCanRun()
{
    CarPicker picker(7, {"/dev/ttyUSB0"});
    picker.show();
    QCOMPARE(picker.canBusType(), 7);
    QVERIFY(picker.port().isEmpty());
    QTest::keyClicks(picker.findChild<QLineEdit *>(), "huida"); // of no known protocol
    QCOMPARE(picker.canBusType(), 2);
    QPushButton *start = buttonOf<QPushButton>(&picker, "Start");
    QVERIFY(!start->isEnabled());
    picker.findChild<QComboBox *>()->setEditText("/dev/ttyS9");
    QVERIFY(start->isEnabled());
    QCOMPARE(picker.port(), QString("/dev/ttyS9"));
    QTest::keyClick(&picker, Qt::Key_Return);
    QCOMPARE(picker.result(), int(QDialog::Accepted));
}

CANBUS_VIRTUAL_MAIN(OrbApplication, TestDeskWindow)
#include "tst_deskwindow.moc"
