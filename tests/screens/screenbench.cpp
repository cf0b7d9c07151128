#include "screenbench.h"

#include "paintedtexts.h"
#include "testscreen.h"

#include "orbhost.h"
#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

namespace {

/// What the car says itself, and seconds, in no language.
const char *const Untranslatable =
    "LO|HI|[0-9]+S|A/C|PTC|[0-9.]+°[CF]|[0-9A-Z]{17}|"
    // on the desk: the languages' own names, the line's and the box's, units
    "km|mi|km/h|mph|L|gal.*|mpg.*|L/100km|km/L|bar|psi|kPa|English|Deutsch|Français|Español|.*(ttyBox|/dev/"
    "|CanBus_|no/such| ms).*";
/// What shows bytes, words of a filter and values with their units, on the desk.
const char *const DataWidgets =
    "exactValue|QLineEdit|qt_scrollarea_viewport|chosenPackage|problem|BitGridPicture|bitGridNote";
const char *const Shortened = "AppTile";        // shortens titles of other people's applications itself
const qint64 Day = qint64(24) * 60 * 60 * 1000; // ms
const int Gap = 8;                              // between the parts of a picture
const int SheetWidth = 1960;                    // of a picture of several parts, at most
const int PartHeight = 1200;                    // what is higher goes on beside
const int CrowdedDialog = 6;                    // choices

/// Is asked last, for what no language's file has.
class MissingTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (*context != 'Q' && *source != '\0') { // Qt's own texts are not shown
            texts << QString("%1: %2").arg(context, source);
        }
        return QString();
    }

    mutable QStringList texts;
};

/// The rows with a picture that is not to be seen.
QStringList rowsWithoutPicture(const TableListView *list)
{
    QStringList rows;
    for (int row = 0; list && row < list->model()->rowCount(); ++row) {
        const auto datas = static_cast<const TableViewModel *>(list->model())->itemDatas(row);
        if ((!datas.icon().isEmpty() && QPixmap(datas.icon()).isNull()) ||
            (!datas.mark().isEmpty() && QPixmap(datas.mark()).isNull())) {
            rows << datas.text();
        }
    }
    return rows;
}

} // namespace

struct ScreenBench::Private
{
    explicit Private(const QSize &size) : screen(size) {}

    MissingTexts missing;
    TestScreen screen;
    QVector<QImage> pictures; // of the shots
    QVector<QImage> parts;    // that are cut out of them
};

Scene sceneOf(const QString &name, const QString &caption,
              const std::function<std::unique_ptr<QWidget>()> &make)
{
    return {name, caption, [make](const Scene::Shot &shot) {
                const std::unique_ptr<QWidget> shown = make();
                shot(shown.get());
            }};
}

void shootList(QWidget *window, const Scene::Shot &shot)
{
    shot(window);
    QScrollBar *const bar = window->findChild<TableListView *>()->verticalScrollBar();
    while (bar->value() < bar->maximum()) {
        bar->setValue(bar->value() + bar->pageStep());
        shot(window);
    }
}

void passTime(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

QStringList ScreenBench::languages()
{
#ifdef COMPARES_PICTURES
    return {"en", "de", "fr", "es", "ru", "zh_CN", "pseudo"};
#else // the longest language, the one of the widest letters, the one of the highest
    return {"pseudo", "ru", "zh_CN"};
#endif
}

ScreenBench::ScreenBench(const QSize &size, const QString &language) : d(new Private(size))
{
    // Clocks and timers are the same, whatever was drawn before.
    QThread::msleep(ulong(Day - QDateTime::currentMSecsSinceEpoch() % Day));
    QCoreApplication::installTranslator(&d->missing);
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    [&] { QVERIFY(OrbHost::instance()->setLanguage(language)); }();
    QCoreApplication::sendPostedEvents();
}

ScreenBench::~ScreenBench() {}

void ScreenBench::draw(const Scene &scene)
{
    scene.draw([this](QWidget *shown) { shoot(shown); });
}

void ScreenBench::shoot(QWidget *shown)
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    m_faults << faultsOf(shown);
    const bool isOnUnit = d->screen.area()->isAncestorOf(shown);
    const QImage picture = (isOnUnit ? d->screen.area() : shown)->grab().toImage();
    const QRect place = isOnUnit ? shown->geometry() : shown->rect();
    d->pictures << picture;
    for (int y = 0; y < place.height(); y += PartHeight) {
        d->parts << picture.copy(place.x(), place.y() + y, place.width(),
                                 qMin(PartHeight, place.height() - y));
    }
}

QImage ScreenBench::picture() const
{
    if (d->parts.size() == 1) {
        return d->pictures.first();
    }
    QSize cell(0, 0);
    for (const QImage &part : d->parts) {
        cell = cell.expandedTo(part.size());
    }
    const int columns = qBound(1, SheetWidth / (cell.width() + Gap), int(d->parts.size()));
    QVector<QPoint> corners;
    int y = 0;
    int rowHeight = 0;
    for (int i = 0; i < d->parts.size(); ++i) {
        y += i % columns == 0 ? rowHeight : 0;
        rowHeight = qMax(i % columns == 0 ? 0 : rowHeight, d->parts.at(i).height() + Gap);
        corners << QPoint(i % columns * (cell.width() + Gap), y);
    }
    QImage sheet(columns * (cell.width() + Gap) - Gap, y + rowHeight - Gap, QImage::Format_RGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    for (int i = 0; i < d->parts.size(); ++i) {
        painter.drawImage(corners.at(i), d->parts.at(i));
    }
    return sheet;
}

QStringList ScreenBench::faultsOf(const QWidget *shown) const
{
    const bool isPseudo = OrbHost::instance()->language() == "pseudo";
    QStringList result =
        PaintedTexts::cut(shown).filter(QRegularExpression(QString("^(?!%1: )").arg(Shortened)));
    if (isPseudo && shown->findChildren<QCheckBox *>().size() > CrowdedDialog) {
        result = result.mid(1); // seven long chips and the hint; no driver's language is that long
    }
    if (d->screen.area()->isAncestorOf(shown) && !d->screen.area()->rect().contains(shown->geometry())) {
        result << "larger than the screen";
    }
    const QLabel *const title = shown->findChild<QLabel *>("orbTitle");
    if (title && title->text() != shown->windowTitle()) {
        result << title->text(); // the bar shortens it itself
    }
    result << rowsWithoutPicture(shown->findChild<TableListView *>());
    if (isPseudo) {
        result << PaintedTexts::untranslated(shown, Untranslatable)
                      .filter(QRegularExpression(QString("^(?!(%1): )").arg(DataWidgets)));
    }
    if (OrbHost::instance()->language() != "en") {
        result << d->missing.texts;
    }
    return result;
}
