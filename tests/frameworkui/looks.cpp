#include "looks.h"

#include "paintedtexts.h"
#include "unitscreen.h"

#include "orbhost.h"
#include "tablelistview.h"
#include "tableviewmodel.h"

#include <QDir>
#include <QTranslator>
#include <QtTest>

namespace {

/// What the car says itself, in no language.
const char *const Untranslatable = "LO|HI|A/C|PTC|[0-9.]+°[CF]|[0-9A-Z]{17}";

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

/// The first row with a picture that is not to be seen.
QString rowWithoutPicture(const TableListView *list)
{
    for (int row = 0; list && row < list->model()->rowCount(); ++row) {
        const auto datas = static_cast<const TableViewModel *>(list->model())->itemDatas(row);
        if ((!datas.isHeading() && QPixmap(datas.icon()).isNull()) ||
            (!datas.mark().isEmpty() && QPixmap(datas.mark()).isNull())) {
            return datas.text();
        }
    }
    return QString();
}

void keepPicture(QWidget *screen)
{
    const QString folder = qEnvironmentVariable("ORB_SCREENSHOTS");
    if (!folder.isEmpty() && QDir().mkpath(folder)) {
        const QString name = QString("%1.png").arg(QTest::currentDataTag());
        QVERIFY(screen->grab().save(QDir(folder).filePath(name)));
    }
}

} // namespace

void Looks::addRows(const QList<Scene> &scenes)
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    for (int scene = 0; scene < scenes.size(); ++scene) {
        for (const QSize &size : {QSize(1024, 600), QSize(800, 480)}) {
            for (const char *language : {"en", "de", "zh_CN", "fr", "es", "ru", "pseudo"}) {
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
    MissingTexts missing;
    QVERIFY(QCoreApplication::installTranslator(&missing));
    TestScreen screen(size);
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    QVERIFY(OrbHost::instance()->setLanguage(language));
    QCoreApplication::sendPostedEvents();
    const std::unique_ptr<QWidget> shown = scenes.at(scene).make();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();

    keepPicture(&screen);
    QVERIFY(screen.area()->rect().contains(shown->geometry()));
    QCOMPARE(faults(shown.get()).join("\n"), QString());
    QCOMPARE(rowWithoutPicture(shown->findChild<TableListView *>()), QString());
    if (language != "en") {
        QCOMPARE(missing.texts.join("\n"), QString());
    }
}

QStringList Looks::faults(const QWidget *shown)
{
    QStringList result = PaintedTexts::cut(shown);
    if (OrbHost::instance()->language() == "pseudo") {
        result << PaintedTexts::untranslated(shown, Untranslatable);
    }
    return result;
}
