#include "looks.h"

#include "paintedtexts.h"
#include "unitscreen.h"

#include "orbhost.h"
#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QDir>
#include <QLabel>
#include <QTest>
#include <QTranslator>

namespace {

/// What the car says itself, and seconds, in no language.
const char *const Untranslatable = "LO|HI|[0-9]+S|A/C|PTC|[0-9.]+°[CF]|[0-9A-Z]{17}";

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

/// The longest language, the one of the widest letters, the one of the highest.
QStringList languages()
{
    QStringList result{"pseudo", "ru", "zh_CN"};
    if (qEnvironmentVariableIsSet("ORB_ALL_LANGUAGES")) {
        result << "en"
               << "de"
               << "fr"
               << "es";
    }
    return result;
}

void keepPicture(QWidget *screen, const QString &name)
{
    const QString folder = qEnvironmentVariable("ORB_SCREENSHOTS");
    if (!folder.isEmpty() && QDir().mkpath(folder)) {
        QVERIFY(screen->grab().save(QDir(folder).filePath(name + ".png")));
    }
}

} // namespace

struct Looks::Unit::Private
{
    explicit Private(const QSize &size) : screen(size) {}

    MissingTexts missing;
    TestScreen screen;
};

void Looks::addRows(const QStringList &names)
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    for (int scene = 0; scene < names.size(); ++scene) {
        for (const QSize &size : {QSize(1024, 600), QSize(800, 480)}) {
            for (const QString &language : languages()) {
                QTest::addRow("%s-%d-%s", qPrintable(names.at(scene)), size.width(), qPrintable(language))
                    << scene << size << language;
            }
        }
    }
}

void Looks::addRows(const QList<Scene> &scenes)
{
    QStringList names;
    for (const Scene &scene : scenes) {
        names << scene.name;
    }
    addRows(names);
}

void Looks::check(const QList<Scene> &scenes)
{
    QFETCH(int, scene);
    const Unit unit;
    const std::unique_ptr<QWidget> shown = scenes.at(scene).make();
    QCOMPARE(unit.faults(shown.get()).join("\n"), QString());
}

Looks::Unit::Unit()
{
    QFETCH(QSize, size);
    QFETCH(QString, language);
    d.reset(new Private(size));
    QCoreApplication::installTranslator(&d->missing);
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    [&] { QVERIFY(OrbHost::instance()->setLanguage(language)); }();
    QCoreApplication::sendPostedEvents();
}

Looks::Unit::~Unit() {}

QStringList Looks::Unit::faults(const QWidget *shown, const QString &part) const
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    keepPicture(&d->screen, QTest::currentDataTag() + part);

    QStringList result = PaintedTexts::cut(shown);
    if (!d->screen.area()->rect().contains(shown->geometry())) {
        result << "larger than the screen";
    }
    const QLabel *const title = shown->findChild<QLabel *>("orbTitle");
    if (title && title->text() != shown->windowTitle()) {
        result << title->text(); // the bar shortens it itself
    }
    result << rowsWithoutPicture(shown->findChild<TableListView *>());
    if (OrbHost::instance()->language() == "pseudo") {
        result << PaintedTexts::untranslated(shown, Untranslatable);
    }
    if (OrbHost::instance()->language() != "en") {
        result << d->missing.texts;
    }
    return result;
}
