#include "testmain.h"
#include "tracerecorder.h"

#include "keysource.h"

// How a box says that a key came up: three rules, one source of two groups of keys and a knob.
class KeySourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reports_data();
    void reports();
};

namespace {

const CarKeys::Mapping Wheel[] = {{1, CarKeys::VolumeUp}, {2, CarKeys::VolumeDown}};
const CarKeys::Mapping Panel[] = {{0x60, CarKeys::Up}};
const CarKeys::Mapping Knobs[] = {{0x74, CarKeys::Right}};
const CarKeys::Mapping Taps[] = {{0x11, CarKeys::Call}};
const KeyGroup Groups[] = {{CarKeys::keyTable(Wheel), KeyGroup::Keys, 1},
                           {CarKeys::keyTable(Panel), KeyGroup::Keys, 0},
                           {CarKeys::keyTable(Knobs), KeyGroup::Knobs, 0},
                           {CarKeys::keyTable(Taps), KeyGroup::Taps, 1}};

const KeyRelease ByCode = {KeyRelease::ByCode, 0, 0};
const KeyRelease ByCodeOrOther = {KeyRelease::ByCodeOrOther, 0, KeyRelease::LastOfKey};

// "up+1": volume up pressed, last argument 1; "-" released, "*" held.
QString shortened(const QString &line)
{
    static const QMap<int, QString> names = {{CarKeys::VolumeUp, "up"},
                                             {CarKeys::VolumeDown, "down"},
                                             {CarKeys::Up, "cursor"},
                                             {CarKeys::Right, "right"},
                                             {CarKeys::Call, "call"}};
    const QStringList words = line.section('(', 1).chopped(1).split(',');
    const QString phase = words.at(1) == "false" ? "-" : words.at(2) == "true" ? "*" : "+";
    return names.value(words.at(0).toInt()) + phase + words.at(3);
}

} // namespace

void KeySourceTest::reports_data()
{
    QTest::addColumn<QByteArray>("reports"); // code and state, in hexadecimal
    QTest::addColumn<QString>("byState");
    QTest::addColumn<QString>("byCode");
    QTest::addColumn<QString>("byCodeOrOther");
    const auto row = [](const char *name, const char *reports, const char *byState, const char *byCode,
                        const char *byCodeOrOther) {
        QTest::newRow(name) << QByteArray::fromHex(reports) << QString(byState) << QString(byCode)
                            << QString(byCodeOrOther);
    };
    row("by its state, then the code", "0101 0102 0100 0000", "up+1 up*1 up-1", "up+1 up*1 up-1 up-0",
        "up+1 up*1 up-1");
    row("by the code, twice", "0101 0000 0000", "up+1", "up+1 up-0", "up+1 up-1");
    row("the code without a key", "0000", "", "", "");
    row("an unknown key between", "0101 0901 0000", "up+1", "up+1", "up+1 up-1");
    row("another key while one is held", "0101 6001 0000", "up+1 cursor+0", "up+1 cursor+0 cursor-0",
        "up+1 up-1 cursor+0 cursor-0");
    row("a knob while a key is held", "0201 7402 0000", "down+1 right+0 right-0 right+0 right-0",
        "down+1 right+0 right-0 right+0 right-0 right-0", "down+1 down-1 right+0 right-0 right+0 right-0");
    row("a key that taps", "1101 0000", "call+1 call-1", "call+1 call-1 call-0", "call+1 call-1");
    row("released without a press", "0100", "up-1", "up-1", "up-1");
}

void KeySourceTest::reports()
{
    QFETCH(QByteArray, reports);
    const QPair<const char *, KeyRelease> rules[] = {
        {"byState", ReleasedByState}, {"byCode", ByCode}, {"byCodeOrOther", ByCodeOrOther}};
    for (const auto &rule : rules) {
        TraceRecorder trace;
        KeySource source(Groups, rule.second);
        for (int i = 0; i < reports.size(); i += 2) {
            source.report(quint8(reports.at(i)), quint8(reports.at(i + 1)));
        }
        QStringList keys;
        for (const QString &line : trace.lines()) {
            keys << shortened(line);
        }
        const QString expected = *static_cast<QString *>(QTest::qData(rule.first, QMetaType::QString));
        QCOMPARE(QString("%1: %2").arg(rule.first, keys.join(' ')),
                 QString("%1: %2").arg(rule.first, expected));
    }
}

CANBUS_TEST_MAIN(KeySourceTest)
#include "tst_keysource.moc"
