#include "golden.h"
#include "scenes.h"
#include "testmain.h"

#include <QDir>
#include <QPainter>

#include <algorithm>

const QSize Large(1024, 600);
const QSize Small(800, 480);
const QSize Own; // of a window that is not on the unit

/// Every screen in every language and both sizes, compared with its pictures: those of the manual, docs/screens/, and
/// pictures/ here. Each function is a test of its own; tests/screens/CMakeLists.txt lists them.
class TestScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestSupport::watchConnects(); }
    void framework_data() { addRows(frameworkScenes()); }
    void framework() { check(frameworkScenes()); }
    void climate_data() { addRows(climateScenes()); }
    void climate() { check(climateScenes()); }
    void volkswagen_data() { addRows(volkswagenScenes()); }
    void volkswagen() { check(volkswagenScenes()); }
    void xinhang_data() { addRows(xinhangScenes()); }
    void xinhang() { check(xinhangScenes()); }
    void unit_data() { addRows(unitScenes()); }
    void unit() { check(unitScenes()); }
    void desk_data() { addRows(deskScenes(), {Own}); }
    void desk() { check(deskScenes()); }
    void comparison_data();
    void comparison();
    void manual();

private:
    static void addRows(const QList<Scene> &scenes, const QVector<QSize> &sizes = {Large, Small});
    static void check(const QList<Scene> &scenes);
};

namespace {

struct Section
{
    const char *title;
    QList<Scene> scenes;
    QVector<QSize> sizes;
};

QVector<Section> sections()
{
    return {{"The unit", unitScenes(), {Large, Small}},
            {"Climate, updates, choices, lists", frameworkScenes(), {Large, Small}},
            {"The climate of each car", climateScenes(), {Large, Small}},
            {"Volkswagen", volkswagenScenes(), {Large, Small}},
            {"XinHang", xinhangScenes(), {Large, Small}},
            {"The desk", deskScenes(), {Own}}};
}

QString manualPicture(const Scene &scene)
{
    return scene.name + ".png";
}

QString otherPicture(const Scene &scene, const QSize &size)
{
    return QString("%1-%2.png")
        .arg(scene.name)
        .arg(size == Own ? QString("desk") : QString::number(size.width()));
}

QString compared(const QString &folder, const QString &file, const QVector<GoldenPictures::Tile> &tiles,
                 GoldenPictures::Steps steps)
{
#ifdef COMPARES_PICTURES
    return GoldenPictures::compare(QDir(folder).filePath(file), tiles, steps, DIFFERENCE_FOLDER);
#else
    Q_UNUSED(folder);
    Q_UNUSED(file);
    Q_UNUSED(tiles);
    Q_UNUSED(steps);
    return QString();
#endif
}

} // namespace

void TestScreens::addRows(const QList<Scene> &scenes, const QVector<QSize> &sizes)
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<QSize>("size");
    for (int scene = 0; scene < scenes.size(); ++scene) {
        for (const QSize &size : sizes) {
            QTest::addRow("%s %d", qPrintable(scenes.at(scene).name), size.width()) << scene << size;
        }
    }
}

void TestScreens::check(const QList<Scene> &scenes)
{
    QFETCH(int, scene);
    QFETCH(QSize, size);
    QVector<GoldenPictures::Tile> tiles;
    QStringList faults;
    for (const QString &language : ScreenBench::languages()) {
        ScreenBench bench(size == Own ? Large : size, language);
        bench.draw(scenes.at(scene));
        for (const QString &fault : bench.faults()) {
            faults << language + ": " + fault;
        }
        tiles << GoldenPictures::Tile{language, bench.picture()};
    }
    if (size != Small) { // in English the manual's
        faults << compared(MANUAL_FOLDER, manualPicture(scenes.at(scene)), {tiles.takeFirst()},
                           GoldenPictures::ManySteps);
    }
    faults << compared(PICTURE_FOLDER, otherPicture(scenes.at(scene), size), tiles, GoldenPictures::FewSteps);
    faults.removeAll(QString());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

// What the comparison sees, of a dim text on its ground, the least contrast that a screen has.
void TestScreens::comparison_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPoint>("shift");
    QTest::addColumn<int>("noise");
    QTest::addColumn<bool>("isSeen");
    QTest::newRow("the same") << "Illumination" << QPoint() << 0 << false;
    QTest::newRow("other antialiasing") << "Illumination" << QPoint() << 4 << false;
    QTest::newRow("one pixel to the right") << "Illumination" << QPoint(1, 0) << 0 << true;
    QTest::newRow("one pixel up") << "Illumination" << QPoint(0, -1) << 0 << true;
    QTest::newRow("another letter") << "Illuminatlon" << QPoint() << 0 << true;
    QTest::newRow("no letter") << "Illuminatio" << QPoint() << 0 << true;
}

void TestScreens::comparison()
{
    QFETCH(QString, text);
    QFETCH(QPoint, shift);
    QFETCH(int, noise);
    QFETCH(bool, isSeen);
    const auto picture = [&](const QString &words, const QPoint &place) {
        QImage image(200, 40, QImage::Format_RGB32);
        image.fill(QColor(0x17, 0x1C, 0x24));
        QPainter painter(&image);
        QFont font;
        font.setPixelSize(14);
        painter.setFont(font);
        painter.setPen(QColor(0x56, 0x60, 0x70));
        painter.drawText(place, words);
        painter.end();
        return image;
    };
    QImage got = picture(text, QPoint(20, 26) + shift);
    for (int i = 0; i < got.width() * got.height(); ++i) {
        const QColor colour = got.pixelColor(i % got.width(), i / got.width());
        const int by = i % 3 == 0 ? noise : -noise;
        got.setPixelColor(i % got.width(), i / got.width(),
                          QColor(colour.red() + by, colour.green() + by, colour.blue() - by));
    }
    for (GoldenPictures::Steps steps : {GoldenPictures::FewSteps, GoldenPictures::ManySteps}) {
        const QImage kept = GoldenPictures::reduced(picture("Illumination", QPoint(20, 26)), steps);
        QCOMPARE(!GoldenPictures::difference(kept, got, steps).isNull(), isSeen);
    }
}

// The manual shows every screen, and no picture is left over.
void TestScreens::manual()
{
    QStringList lines{
        "# Screens", "",
        "Every screen in English, at 1024x600, or in the desk's own size; tests compare these and those "
        "of the other languages and of",
        "800x480 ([checking.md](checking.md)). Written by the test `tst_screens_manual`; do not edit."};
    QStringList ours;
    QStringList others;
    for (const Section &section : sections()) {
        lines << "" << QString("## %1").arg(section.title);
        for (const Scene &scene : section.scenes) {
            lines << "" << scene.caption << "" << QString("![%1](screens/%1.png)").arg(scene.name);
            ours << manualPicture(scene);
            for (const QSize &size : section.sizes) {
                others << otherPicture(scene, size);
            }
        }
    }
    COMPARE_WITH_GOLDEN("screens.md", lines);
    std::sort(ours.begin(), ours.end());
    std::sort(others.begin(), others.end());
    QCOMPARE(QDir(MANUAL_FOLDER).entryList(QDir::Files, QDir::Name), ours);
    QCOMPARE(QDir(PICTURE_FOLDER).entryList(QDir::Files, QDir::Name), others);
}

int main(int argc, char **argv)
{
    qputenv("FONTCONFIG_FILE", FONTS);
    return VirtualClock::start() ? TestSupport::runTest<TestScreens>(argc, argv) : 1;
}
#include "tst_screens.moc"
