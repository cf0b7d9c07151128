// What each box puts into its packages, and what it understands of the unit's: boxes/CAR.txt, a transcript
// that was held against the box's data sheet. Its orders:
//
//     new            a box of a car as it starts
//     car            the same, and all that it tells of the car
//     car CHANGES    a new box, its car with changes ("climate.ac on; climate.fan 3"): what differs
//     hear PACKAGES  packages from the unit, apart by bars: what comes of each
//     keys           each key pressed, held and released; knobs at 255 clicks
//     touch N X Y    a touch

#include "boxcatalog.h"
#include "boxtools.h"
#include "simulatedunit.h"
#include "transcript.h"
#include "virtualmain.h"

namespace {

QByteArray inHex(const BoxPackage &package)
{
    return (QByteArray(1, char(package.command)) + package.data).toHex(' ');
}

class Player
{
public:
    explicit Player(int type) : m_type(type) { begin(); }

    QStringList act(const QString &order);

private:
    void begin();
    QStringList tell(const QString &changes);
    QStringList hear(const QByteArray &bytes);
    QStringList keys() const;

    int m_type;
    std::unique_ptr<DecoderBox> m_box;
    QStringList m_lines;
    QSet<int> m_due;
};

void Player::begin()
{
    m_box = makeBox(m_type);
    BoxSpeaker *const speaker = m_box->speaker();
    const auto note = [this](const QString &line) { m_lines << line; };
    QObject::connect(m_box->car(), &SimulatedCar::changed, [this, note](const QString &name) {
        note("car: " + name + ' ' + m_box->car()->text(name));
    });
    QObject::connect(speaker, &BoxSpeaker::observed,
                     [note](const QString &topic, const QString &value) { note(topic + ": " + value); });
    QObject::connect(speaker, &BoxSpeaker::readyReceived, [note] { note("ready"); });
    QObject::connect(speaker, &BoxSpeaker::endReceived, [note] { note("end"); });
    QObject::connect(speaker, &BoxSpeaker::reportDue, [this](int index) { m_due << index; });
    QObject::connect(speaker, &BoxSpeaker::packageDue,
                     [note](const BoxPackage &package) { note("says " + inHex(package)); });
    m_lines.clear();
}

QStringList Player::act(const QString &order)
{
    const QString rest = order.section(' ', 1);
    if (order == "keys") {
        return keys();
    }
    if (order.startsWith("touch ")) {
        const QStringList words = rest.split(' ');
        return {inHex(m_box->speaker()->touchPackage(BoxSpeaker::Touch(words.at(0).toInt()),
                                                     words.at(1).toInt(), words.at(2).toInt()))};
    }
    QStringList lines;
    if (order.startsWith("hear ")) {
        for (const QString &package : rest.split('|')) {
            lines << hear(QByteArray::fromHex(package.toLatin1()));
        }
    } else if (!order.startsWith("==")) {
        begin();
        lines = order == "new" ? QStringList() : tell(rest);
    }
    return lines;
}

// A report that differs, and of which no change would remind the box, is as good as none.
QStringList Player::tell(const QString &changes)
{
    const BoxSpeaker &speaker = *m_box->speaker();
    QByteArrayList before;
    for (int i = 0; i < speaker.reports().size(); ++i) {
        before << (changes.isEmpty() ? QByteArray() : inHex(speaker.reportPackage(i)));
    }
    change(m_box.get(), changes);
    QStringList lines;
    for (int i = 0; i < before.size(); ++i) {
        const BoxReport &report = speaker.reports().at(i);
        const QByteArray now = inHex(speaker.reportPackage(i));
        const auto isConcerned = [&report](const QString &line) {
            return report.isAbout(line.section(' ', 1, 1));
        };
        const bool isTold = changes.isEmpty() || std::any_of(m_lines.begin(), m_lines.end(), isConcerned);
        if (now != before.at(i)) {
            lines << report.meaning + ": " + now + (isTold ? "" : " (nobody is told)");
        }
    }
    return lines;
}

QStringList Player::hear(const QByteArray &bytes)
{
    m_lines.clear();
    m_due.clear();
    QString meaning;
    const auto understanding = m_box->speaker()->receive({quint8(bytes.at(0)), bytes.mid(1)}, &meaning);
    QStringList lines = m_lines;
    if (understanding != BoxSpeaker::Understood) {
        lines << (understanding == BoxSpeaker::TooShort ? "too short" : "unknown");
    }
    QList<int> due = m_due.values();
    std::sort(due.begin(), due.end());
    for (const int index : due) {
        lines << "tells " + inHex(m_box->speaker()->reportPackage(index));
    }
    return lines.isEmpty() ? QStringList("nothing") : lines;
}

QStringList Player::keys() const
{
    QStringList lines;
    for (const BoxKey &key : m_box->speaker()->keys()) {
        QByteArrayList phases;
        for (const auto state : {BoxSpeaker::Pressed, BoxSpeaker::Held, BoxSpeaker::Released}) {
            QByteArrayList packages;
            for (const BoxPackage &package : m_box->speaker()->keyPackages(key, state)) {
                packages << inHex(package);
            }
            phases << (packages.isEmpty() ? QByteArray("-") : packages.join(' '));
        }
        const bool isKnob = key.source == BoxKey::Knob;
        lines << key.name + ": " +
                     (isKnob ? inHex(m_box->speaker()->knobPackage(key, 255)) : phases.join(", "));
    }
    return lines;
}

} // namespace

class TestBoxPackages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxes_data();
    void boxes();
    void knobTurns();
    void xinHangAnswersEveryReady();
    void oneAnswerToAWrite();
    void tyresAreToldAfterTheWarning();
    void everyReportIsAboutSomething();
};

void TestBoxPackages::boxes_data()
{
    QTest::addColumn<int>("type");
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (row.makeSpeaker && !makeBox(row.type)->speaker()->keys().isEmpty()) {
            QTest::newRow(row.car) << row.type;
        }
    }
}

void TestBoxPackages::boxes()
{
    QFETCH(int, type);
    Player player(type);
    const QString path = QString(GOLDEN_FOLDER "/boxes/%1.txt").arg(QTest::currentDataTag());
    const QString difference = TestSupport::goldenDifference(
        path, TestSupport::play(path, [&player](const QString &order) { return player.act(order); }));
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

void TestBoxPackages::knobTurns()
{
    Conversation talk(5);
    QVERIFY(talk.box->keys()->turn("volume_knob_up", 255));
    QVERIFY(!talk.box->keys()->turn("volume_knob_up", 256));
    QVERIFY(!talk.box->keys()->press("volume_knob_up"));
    QTRY_COMPARE(talk.unit.frames(), QVector<QByteArray>(1, RaiseWire::frame("01 f0 ff")));
}

void TestBoxPackages::xinHangAnswersEveryReady()
{
    const auto box = openBox(4);
    SimulatedUnit unit(*box);
    const QByteArray ready = XinHangWire::frame("81 01");
    unit.write(ready);
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size());
    unit.write(ready);
    QTRY_COMPARE(unit.packages().size(), box->speaker()->reports().size() + 1);
    QCOMPARE(unit.frames().last(), XinHangWire::frame("0a 00 01"));
    unit.write(XinHangWire::frame("55 00") + QByteArray::fromHex("f00281017e f000ff"));
    QTest::qWait(20);
    QVERIFY2(unit.singleBytes().isEmpty(), "this box answers nothing");
}

// New, the same once more, and one that the Volkswagen does not take.
void TestBoxPackages::oneAnswerToAWrite()
{
    Conversation talk(3);
    for (const char *write : {"c6 70 02", "c6 70 02", "c6 70 09"}) {
        talk.unit.forget();
        talk.unit.write(RaiseWire::frame(write));
        QTRY_COMPARE(talk.unit.frames(), QVector<QByteArray>(1, RaiseWire::frame("40 70 22 01 01")));
    }
}

// A warning hides the states on the unit, so the states have to come last.
void TestBoxPackages::tyresAreToldAfterTheWarning()
{
    Conversation talk(3);
    change(talk.box.get(), "tyres.front_left low; tyres.warning.front_left on; tyres.message low");
    talk.unit.write(RaiseWire::frame("c6 22 01"));
    const QVector<QByteArray> expected = {RaiseWire::frame("68 00 00"), RaiseWire::frame("65 00 00 00 00")};
    QTRY_COMPARE(talk.unit.frames().mid(talk.unit.packages().size() - 2), expected);
}

// A name that is misspelt in a speaker's tables would leave the box mute about it.
void TestBoxPackages::everyReportIsAboutSomething()
{
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (!row.makeSpeaker) {
            continue;
        }
        const auto box = makeBox(row.type);
        const QStringList properties = box->speaker()->properties();
        for (const BoxReport &report : box->speaker()->reports()) {
            for (const QString &name : report.concerns) {
                const bool isGroup =
                    name.endsWith('.') && !properties.filter(QRegularExpression('^' + name)).isEmpty();
                QVERIFY2(SimulatedCar::has(name) || isGroup, qPrintable(row.className + (": " + name)));
            }
        }
        QSet<QString> names;
        for (const BoxKey &key : box->speaker()->keys()) {
            QVERIFY2(!names.contains(key.name), qPrintable(row.className + (": " + key.name)));
            names << key.name;
        }
    }
}

CANBUS_VIRTUAL_MAIN(QCoreApplication, TestBoxPackages)
#include "tst_boxpackages.moc"
