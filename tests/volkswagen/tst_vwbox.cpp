#include "adapterfixture.h"
#include "vwbench.h"
#include "vwmenu.h"

#include "boxcatalog.h"
#include "decoderbox.h"
#include "simulatedcar.h"

#include "volkswagen/volkswagenwindow.h"

#include "orbhost.h"

#include <QLabel>

#include <memory>

/// Adapter and screens against the virtual box: what the driver sets, the car keeps.
class TestVwBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void carKeepsSettings_data();
    void carKeepsSettings();
    void carChangesTheScreen();

private:
    std::unique_ptr<DecoderBox> m_box;
    std::unique_ptr<CanBus_Raise_Volkswagen> m_adapter;
    TestScreen m_screen;
};

namespace {

const int SettleTime = 200; // ms: a page's requests and their replies

QWidget *climateDisplay()
{
    const QList<QWidget *> windows = OrbHost::instance()->windows();
    for (QWidget *window : windows) {
        if (qobject_cast<AirConditionDlg *>(window)) {
            return window;
        }
    }
    return nullptr;
}

/// Sets the row to something else than it shows; the text that the car then has.
QString change(VWFunctionSetting &page, const VwMenu::Row &row)
{
    const int index = VwBench::rowOf(page, row.item);
    const QString before = VwBench::valueOf(page, index);
    QString after;
    if (row.kind == VwMenu::Switch) {
        VwBench::tap(page, index, 2);
        after = before == "on" ? "off" : "on";
    } else if (row.kind == VwMenu::Options) {
        const int choice = before == row.options().first() ? 1 : 0;
        VwBench::tap(page, index, 0, [&](SelectDialog &dialog) { VwBench::choose(dialog, choice); });
        after = row.options().at(choice);
    } else {
        VwBench::tap(page, index, 0, [&](SelectDialog &dialog) {
            VwBench::step(dialog, before.startsWith(row.options().first()) ? 2 : -1);
            after = dialog.getSliderValueText().trimmed();
            VwBench::click(dialog, "btnOk");
        });
    }
    return after == before ? "unchanged: " + before : after;
}

} // namespace

void TestVwBox::initTestCase()
{
    TestSupport::watchConnects();
    QString error;
    m_box.reset(BoxCatalog::createBox(3, nullptr, &error));
    QVERIFY2(m_box && m_box->open(QString(), &error), qPrintable(error));
    OrbHost::instance()->setProductValue("CANPortName", m_box->portPath());
    m_adapter.reset(new CanBus_Raise_Volkswagen);
    m_adapter->initAdapter();
    QTRY_COMPARE(m_box->state(), DecoderBox::Talks);
    // The box tells of its climate at the start; the display would lie over the lists' feet.
    QTRY_VERIFY(climateDisplay() && climateDisplay()->isVisible());
    climateDisplay()->hide();
}

void TestVwBox::cleanupTestCase()
{
    OrbHost::instance()->setProductValue("CANPortName", QString());
    if (m_adapter) {
        m_adapter->initAdapter();
    }
    m_adapter.reset();
    OrbHost::instance()->setProductValue("CANPortName", QVariant());
}

void TestVwBox::carKeepsSettings_data()
{
    QTest::addColumn<int>("page");
    for (int page : {782, 771, 773, 774, 775, 776, 777, 778, 780, 785}) {
        QTest::addRow("%d", page) << page;
    }
}

void TestVwBox::carKeepsSettings()
{
    QFETCH(int, page);
    QMap<int, QString> chosen;
    {
        VWFunctionSetting window(page, m_adapter.get());
        window.show();
        QTest::qWait(SettleTime);
        for (const VwMenu::Row &row : VwMenu::rowsOf(page)) {
            if (row.width > 0) {
                chosen.insert(row.item, change(window, row));
            }
        }
        QTest::qWait(SettleTime);
    }
    QVERIFY(!chosen.isEmpty());
    // A page that opens later asks the car.
    VWFunctionSetting window(page, m_adapter.get());
    window.show();
    for (auto it = chosen.cbegin(); it != chosen.cend(); ++it) {
        QTRY_COMPARE(VwBench::valueOf(window, VwBench::rowOf(window, it.key())), it.value());
    }
}

void TestVwBox::carChangesTheScreen()
{
    VolkswagenWindow window(m_adapter.get());
    window.show();
    const QLabel *range = window.findChild<QLabel *>("labelRange");
    QTRY_VERIFY(range->text() != "--");
    QString error;
    QVERIFY2(m_box->car()->setValue("trip.range", 123, &error), qPrintable(error));
    window.hide();
    window.show();
    QTRY_VERIFY2(range->text() == "123 km" || range->text() == "76 mi", qPrintable(range->text()));
}

CANBUS_TEST_MAIN(TestVwBox)
#include "tst_vwbox.moc"
