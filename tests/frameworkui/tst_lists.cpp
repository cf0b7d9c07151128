#include "testmain.h"
#include "testscreen.h"

#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QScrollBar>
#include <QSignalSpy>

/// The list model, and the list under a finger.
class TestLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellsByRole();
    void changesAreAnnounced();
    void removesWhatExists();
    void tapReachesTheCell();
    void dragScrolls();
    void flickGlidesOnUntilATouch();
    void receiverMayChangeTheRows();
    void columnsFollowTheTexts();
    void switchIsDrawnAsItStands();
    void looksAreDrawn();
    void lightsUpWhatReacts_data();
    void lightsUpWhatReacts();
};

namespace {

enum { OptionsRole = 4097 };

class List
{
public:
    explicit List(int rows) : screen(QSize(1024, 600)), view(screen.area())
    {
        for (int i = 0; i < rows; ++i) {
            TableViewItemDatas datas(100 + i, QString("Row %1").arg(i), "icon.png");
            datas.setValue(TableViewItemDatas::ValueColumn, i % 2 ? QVariant(true) : QVariant("Far"));
            datas.setBindData(OptionsRole, QStringList({"Near", "Far"}));
            model.appendItemDatas(datas);
        }
        view.setModel(&model);
        view.resize(screen.area()->size());
        view.show();
    }

    QPoint middle(int row, int column) const { return view.visualRect(model.index(row, column)).center(); }
    /// The picture of a cell.
    QImage cell(int row, int column)
    {
        return view.viewport()->grab(view.visualRect(model.index(row, column))).toImage();
    }
    void setLooks(int row, int looks)
    {
        TableViewItemDatas datas = model.itemDatas(row);
        datas.setBindData(TableItemDelegate::LooksRole, looks);
        model.setItemDatas(row, datas);
    }
    int scrolled() const { return view.verticalScrollBar()->value(); }

    TestScreen screen;
    TableViewModel model;
    TableListView view;
};

} // namespace

void TestLists::cellsByRole()
{
    List list(2);
    const auto cell = [&](int row, int column, int role) {
        return list.model.data(list.model.index(row, column), role);
    };
    QCOMPARE(cell(0, 0, Qt::DisplayRole), QVariant("Row 0"));
    QCOMPARE(cell(0, 0, Qt::DecorationRole), QVariant("icon.png"));
    QCOMPARE(cell(0, 0, OptionsRole), QVariant(QStringList({"Near", "Far"})));
    QVERIFY(!cell(0, 2, Qt::DecorationRole).isValid());
    // A text has no switch, and a switch no text.
    QCOMPARE(cell(0, 2, Qt::DisplayRole), QVariant("Far"));
    QVERIFY(!cell(0, 2, Qt::CheckStateRole).isValid());
    QCOMPARE(cell(1, 2, Qt::DisplayRole), QVariant(QString()));
    QCOMPARE(cell(1, 2, Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QVERIFY(!cell(2, 0, Qt::DisplayRole).isValid());
}

void TestLists::changesAreAnnounced()
{
    List list(3);
    QSignalSpy changes(&list.model, SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    for (const int row : {-1, 3}) {
        list.model.setItemDatas(row, TableViewItemDatas(7, "no"));
        list.model.setCellValue(row, 0, "no");
        QCOMPARE(list.model.itemDatas(row).getItemId(), -1);
    }
    list.model.setCellValue(0, 3, "no");
    list.model.setCellValue(0, -1, "no");
    QCOMPARE(changes.size(), 0);
    list.model.setCellValue(1, TableViewItemDatas::ValueColumn, false);
    list.model.setItemDatas(2, TableViewItemDatas(9, "New"));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes[0][0].value<QModelIndex>(), list.model.index(1, 2));
    QCOMPARE(changes[1][1].value<QModelIndex>(), list.model.index(2, 2));
    QCOMPARE(list.model.rowOfItem(9), 2);
    QCOMPARE(list.model.rowOfItem(102), -1);
    TableViewItemDatas datas;
    datas.setValue(3, "no");
    QCOMPARE(datas.value(3), QVariant());
}

void TestLists::removesWhatExists()
{
    const struct
    {
        int row, count, left;
    } cases[] = {{1, 1, 4}, {3, 1000, 3}, {4, INT_MAX, 4}, {5, 1, 5}, {-1, 2, 5}, {0, 0, 5}, {0, -1, 5}};
    for (const auto &one : cases) {
        List list(5);
        QSignalSpy removed(&list.model, SIGNAL(rowsRemoved(QModelIndex, int, int)));
        list.model.removeItemDatas(one.row, one.count);
        QCOMPARE(list.model.rowCount(), one.left);
        QCOMPARE(removed.size(), int(one.left < 5));
    }
}

void TestLists::tapReachesTheCell()
{
    List list(20);
    QWidget *const view = list.view.viewport();
    QSignalSpy pressed(&list.view, SIGNAL(pressed(QModelIndex)));
    QSignalSpy clicked(&list.view, SIGNAL(clicked(QModelIndex)));
    QSignalSpy cell(&list.view, SIGNAL(itemColumnClicked(QAbstractItemModel *, QModelIndex)));
    TestScreen::press(view, list.middle(2, 0));
    QCOMPARE(pressed.size(), 1);
    QCOMPARE(clicked.size(), 0);
    for (int column = 0; column < 3; ++column) {
        TestScreen::tap(view, list.middle(3, column));
        QCOMPARE(clicked.size(), column + 1);
        QCOMPARE(clicked.last()[0].value<QModelIndex>(), list.model.index(3, column));
        QCOMPARE(cell.size(), column + 1);
        QCOMPARE(cell.last()[1].value<QModelIndex>(), list.model.index(3, column));
    }
    // A finger that slides into the next row has changed its mind.
    const QPoint low = list.view.visualRect(list.model.index(4, 0)).bottomLeft() + QPoint(4, -4);
    TestScreen::drag(view, low, low + QPoint(0, 8));
    // A receiver learns nothing from a touch below the last row, nor from one on a heading.
    TableViewItemDatas heading(-1, "Adaptive cruise control");
    heading.setHeading(true);
    list.model.setItemDatas(1, heading);
    list.model.removeItemDatas(2, 18);
    pressed.clear();
    TestScreen::tap(view, QPoint(40, 400));
    TestScreen::tap(view, list.middle(1, 0));
    QCOMPARE(pressed.size(), 0);
    QCOMPARE(clicked.size(), 3);
}

void TestLists::dragScrolls()
{
    List list(40);
    QSignalSpy clicked(&list.view, SIGNAL(clicked(QModelIndex)));
    TestScreen::drag(list.view.viewport(), QPoint(100, 400), QPoint(100, 391));
    QCOMPARE(list.scrolled(), 0);
    QCOMPARE(clicked.size(), 1);
    TestScreen::drag(list.view.viewport(), QPoint(100, 400), QPoint(100, 300));
    QVERIFY(list.scrolled() >= 100);
    QCOMPARE(clicked.size(), 1);
    // Never past the ends.
    TestScreen::drag(list.view.viewport(), QPoint(100, 10), QPoint(100, 5000));
    QCOMPARE(list.scrolled(), 0);
}

void TestLists::flickGlidesOnUntilATouch()
{
    List list(400);
    QSignalSpy clicked(&list.view, SIGNAL(clicked(QModelIndex)));
    TestScreen::drag(list.view.viewport(), QPoint(100, 400), QPoint(100, 300));
    const int released = list.scrolled();
    QTRY_VERIFY(list.scrolled() > released + 20);
    TestScreen::tap(list.view.viewport(), QPoint(100, 200));
    QCOMPARE(clicked.size(), 0);
    // It lies still: the next touch is a tap.
    TestScreen::tap(list.view.viewport(), QPoint(100, 200));
    QCOMPARE(clicked.size(), 1);
}

void TestLists::receiverMayChangeTheRows()
{
    List list(5);
    QSignalSpy cell(&list.view, SIGNAL(itemColumnClicked(QAbstractItemModel *, QModelIndex)));
    const auto connection =
        connect(&list.view, &QAbstractItemView::clicked, &list.model, &TableViewModel::clear);
    TestScreen::tap(list.view.viewport(), list.middle(1, 0));
    QCOMPARE(list.model.rowCount(), 0);
    QCOMPARE(cell.size(), 0);
    disconnect(connection);

    TableListView *view = new TableListView(list.screen.area());
    list.model.appendItemDatas(TableViewItemDatas(1, "Row"));
    view->setModel(&list.model);
    view->setGeometry(list.screen.area()->rect());
    view->show();
    connect(view, &QAbstractItemView::clicked, view, [view] { delete view; });
    const QPointer<TableListView> guard(view);
    TestScreen::tap(view->viewport(), QPoint(40, 30));
    QVERIFY(!guard);
}

void TestLists::columnsFollowTheTexts()
{
    List list(3);
    const auto width = [&](int column) { return list.view.columnWidth(column); };
    QCOMPARE(width(0) + width(1) + width(2), list.view.viewport()->width());
    QVERIFY(width(1) < 40);
    list.model.setCellValue(1, TableViewItemDatas::SecondColumn, "since the last service");
    QVERIFY(width(1) > 150);
    list.view.resize(500, 300);
    QCOMPARE(width(0) + width(1) + width(2), list.view.viewport()->width());
    list.view.setModel(nullptr);
    list.model.clear();
}

void TestLists::switchIsDrawnAsItStands()
{
    List list(2);
    const auto colour = [&](int fromRight) {
        const QRect cell = list.view.visualRect(list.model.index(1, 2));
        const QImage picture = list.view.viewport()->grab().toImage();
        return picture.pixelColor(cell.right() - 24 - fromRight, cell.center().y());
    };
    const int right = 20;
    const int middle = 36;
    const int left = 52;
    const QColor on = colour(middle);
    QVERIFY(colour(right).lightness() > colour(left).lightness() + 60); // where the knob is
    list.model.setCellValue(1, 2, false);
    QVERIFY(on.blue() > colour(middle).blue() + 60);
    QVERIFY(colour(left).lightness() > colour(right).lightness() + 60);
}

// Unknown is told from off, on and empty; a note and a warning are seen.
void TestLists::looksAreDrawn()
{
    List list(2);
    QList<QImage> switches{list.cell(1, 2)};
    list.model.setCellValue(1, 2, false);
    switches << list.cell(1, 2);
    list.setLooks(1, TableItemDelegate::Unknown);
    QVERIFY(!switches.contains(list.cell(1, 2)));

    list.model.setCellValue(0, 2, QString());
    QList<QImage> texts{list.cell(0, 2)};
    for (int looks : {TableItemDelegate::Unknown, TableItemDelegate::Button}) {
        list.setLooks(0, looks);
        QVERIFY(!texts.contains(list.cell(0, 2)));
        texts << list.cell(0, 2);
    }
    TableViewItemDatas noted = list.model.itemDatas(0);
    noted.setBindData(TableItemDelegate::NoteRole, "Sent");
    list.model.setItemDatas(0, noted);
    QVERIFY(!texts.contains(list.cell(0, 2)));

    list.model.setCellValue(0, 2, "overdue");
    list.setLooks(0, TableItemDelegate::Inert);
    const QImage reading = list.cell(0, 2);
    list.setLooks(0, TableItemDelegate::Inert | TableItemDelegate::Warning);
    QVERIFY(reading != list.cell(0, 2));
}

void TestLists::lightsUpWhatReacts_data()
{
    QTest::addColumn<int>("row"); // 0 a text, 1 a switch
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("looks");
    QTest::addColumn<bool>("lights");
    QTest::newRow("label of a text") << 0 << 0 << 0 << true;
    QTest::newRow("label of a switch") << 1 << 0 << 0 << false;
    QTest::newRow("switch") << 1 << 2 << 0 << true;
    QTest::newRow("reading") << 0 << 0 << int(TableItemDelegate::Inert) << false;
}

void TestLists::lightsUpWhatReacts()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, looks);
    List list(2);
    list.setLooks(row, looks);
    QSignalSpy clicked(&list.view, SIGNAL(clicked(QModelIndex)));
    const QImage before = list.cell(row, 0);
    TestScreen::press(list.view.viewport(), list.middle(row, column));
    QTEST(before != list.cell(row, 0), "lights");
    TestScreen::tap(list.view.viewport(), list.middle(row, column));
    QCOMPARE(clicked.size(), 1); // whoever listens decides what a tap does
}

CANBUS_TEST_MAIN(TestLists)
#include "tst_lists.moc"
