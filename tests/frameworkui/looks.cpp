#include "looks.h"

#include "unitscreen.h"

#include "orbhost.h"
#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QTest>
#include <QTextLayout>

namespace {

/// The text's size where it is drawn, wrapped to the label's width where it wraps.
QSize textSize(const QLabel *label)
{
    const int flags = label->wordWrap() ? int(Qt::TextWordWrap) : 0;
    const QRect room(0, 0, label->contentsRect().width(), 10000);
    return label->fontMetrics().boundingRect(room, flags, label->text()).size();
}

bool holds(const QSize &room, const QSize &needed)
{
    return room.expandedTo(needed) == room;
}

bool fits(const QWidget *widget)
{
    if (!widget->parentWidget()->rect().contains(widget->geometry())) {
        return false;
    }
    const QLabel *const label = qobject_cast<const QLabel *>(widget);
    if (!label) {
        const QAbstractButton *const button = qobject_cast<const QAbstractButton *>(widget);
        return holds(button->size(), QSize(button->sizeHint().width(), button->minimumSizeHint().height()));
    }
    // A label that draws its text in a size of its own tells what it needs at least.
    const bool isPlain = label->metaObject() == &QLabel::staticMetaObject;
    const QSize needed = isPlain ? textSize(label) : QSize(label->minimumSizeHint().width(), 0);
    return holds(label->contentsRect().size(), needed);
}

/// Whether a cell's text fits on \a most lines; \a taken: pixels of the cell for icon, mark and borders.
bool fitsCell(const QString &text, int width, int taken, int most)
{
    QFont font = qApp->font();
    font.setPixelSize(22);
    QTextLayout layout(text, font);
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    int lines = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), ++lines) {
        line.setLineWidth(width - taken);
    }
    layout.endLayout();
    return lines <= most;
}

/// The first row with a text or picture that is not to be seen.
QString clippedRow(const TableListView *list)
{
    for (int row = 0; list && row < list->model()->rowCount(); ++row) {
        const auto datas = static_cast<const TableViewModel *>(list->model())->itemDatas(row);
        const QString value = datas.isSwitch() ? QString() : datas.value(2).toString();
        const bool lacksPicture = (!datas.isHeading() && QPixmap(datas.icon()).isNull()) ||
                                  (!datas.mark().isEmpty() && QPixmap(datas.mark()).isNull());
        // A value without a blank, a vehicle's number say, is not to be broken.
        if (lacksPicture || !fitsCell(datas.text(), list->columnWidth(0), 80, 2) ||
            !fitsCell(value, list->columnWidth(2), datas.mark().isEmpty() ? 24 : 60,
                      value.contains(' ') ? 2 : 1)) {
            return datas.text() + ": " + value;
        }
    }
    return QString();
}

} // namespace

void Looks::addRows(const QList<Scene> &scenes)
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    for (int scene = 0; scene < scenes.size(); ++scene) {
        for (const QSize &size : {QSize(1024, 600), QSize(800, 480)}) {
            for (const char *language : {"en", "de", "zh_CN"}) {
                QTest::addRow("%s-%d-%s", scenes.at(scene).name, size.width(), language)
                    << scene << size << QString(language);
            }
        }
    }
}

void Looks::check(const QList<Scene> &scenes)
{
    QFETCH(int, scene);
    QFETCH(QSize, size);
    QFETCH(QString, language);
    TestScreen screen(size);
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    QVERIFY(OrbHost::instance()->setLanguage(language));
    QCoreApplication::sendPostedEvents();
    const std::unique_ptr<QWidget> shown = scenes.at(scene).make();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();

    const QPixmap picture = screen.grab();
    const QString folder = qEnvironmentVariable("ORB_SCREENSHOTS");
    if (!folder.isEmpty() && QDir().mkpath(folder)) {
        QVERIFY(picture.save(QDir(folder).filePath(QString("%1.png").arg(QTest::currentDataTag()))));
    }
    QVERIFY(screen.area()->rect().contains(shown->geometry()));
    int checked = 0;
    for (const QWidget *widget : shown->findChildren<QWidget *>()) {
        const bool hasText =
            qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget);
        if (hasText && widget->isVisible()) {
            ++checked;
            const QString text = widget->objectName() + ": " + widget->property("text").toString();
            QVERIFY2(fits(widget), qPrintable(text));
        }
    }
    QVERIFY(checked > 0 || shown->children().isEmpty()); // what draws its texts itself has no children
    QCOMPARE(clippedRow(shown->findChild<TableListView *>()), QString());
}
