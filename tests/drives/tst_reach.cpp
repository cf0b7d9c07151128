#include "boxcatalog.h"
#include "decoderbox.h"
#include "scenario.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QTest>
#include <QVector>

#include <memory>

/// The golden drives of a car reach all that its box can tell and all that it understands: a key, a report or
/// a property that somebody adds has to drive as well.
class TestReach : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drivesReachEverything_data();
    void drivesReachEverything();

private:
    void play(const QString &scenario);
    void readTrace(const QString &path);
    void readSheet(const QString &path);
    QStringList missingKeys() const;
    QStringList missingReports() const;
    QStringList missingValues() const;
    QStringList missingCommands() const;

    std::unique_ptr<DecoderBox> m_box;
    QMap<QString, QSet<QString>> m_values; // of the car's properties, in the drives
    QVector<BoxPackage> m_received;        // by the unit, in the traces
    QSet<quint8> m_sent;                   // by the unit: commands
};

void TestReach::drivesReachEverything_data()
{
    QTest::addColumn<QString>("car");
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        QString error;
        const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(row.type, nullptr, &error));
        // Of some boxes nothing but the handshake is known.
        if (box && !box->speaker()->keys().isEmpty()) {
            QTest::newRow(row.car) << row.car;
        }
    }
}

void TestReach::drivesReachEverything()
{
    QFETCH(QString, car);
    QString error;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (car == row.car) {
            m_box.reset(BoxCatalog::createBox(row.type, nullptr, &error));
        }
    }
    m_values.clear();
    m_received.clear();
    m_sent.clear();
    connect(m_box->car(), &SimulatedCar::changed, this,
            [this](const QString &name) { m_values[name] << m_box->car()->text(name); });
    const QDir folder(SCENARIO_FOLDER);
    for (const QString &name : folder.entryList({car + ".scn", car + "-*.scn"})) {
        play(folder.filePath(name));
        readTrace(folder.filePath(QFileInfo(name).completeBaseName() + ".trace"));
    }
    readSheet(SHEET_FOLDER "/" + car + ".txt");
    const QStringList missing = missingKeys() + missingReports() + missingValues() + missingCommands();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join("; ")));
}

// Without a line, and without the pauses: what the drive does to the car.
void TestReach::play(const QString &path)
{
    Scenario scenario;
    QString error;
    QVERIFY2(scenario.load(path, *m_box, &error), qPrintable(error));
    for (const Scenario::Step &step : scenario.steps) {
        step.command.carryOut(m_box.get());
    }
}

void TestReach::readTrace(const QString &path)
{
    QFile file(path);
    QVERIFY2(file.open(QFile::ReadOnly), qPrintable(path));
    while (!file.atEnd()) {
        const QJsonObject row = QJsonDocument::fromJson(file.readLine()).object();
        const QByteArray frame = QByteArray::fromHex(row.value("args").toArray().at(0).toString().toLatin1());
        if (row.value("object") != "ProtocolUtils" || frame.size() < m_box->speaker()->format().shortest) {
            continue;
        }
        const BoxPackage package = m_box->speaker()->format().package(frame);
        if (row.value("call") == "recvProtocolData") {
            m_received << package;
        } else {
            m_sent << package.command;
        }
    }
}

// What the unit says by an operation that no screen calls yet stands in the car's sheet alone: "sends 83 01 02".
void TestReach::readSheet(const QString &path)
{
    QFile file(path);
    QVERIFY2(file.open(QFile::ReadOnly), qPrintable(path));
    while (!file.atEnd()) {
        const QByteArrayList words = file.readLine().trimmed().split(' ');
        if (words.size() > 1 && words.first() == "sends") {
            m_sent << quint8(words.at(1).toUInt(nullptr, 16));
        }
    }
}

QStringList TestReach::missingKeys() const
{
    QStringList missing;
    for (const BoxKey &key : m_box->speaker()->keys()) {
        const bool isKnob = key.source == BoxKey::Knob;
        const BoxPackage wanted = isKnob ? m_box->speaker()->knobPackage(key, 1)
                                         : m_box->speaker()->keyPackages(key, BoxSpeaker::Pressed).first();
        bool found = false;
        for (const BoxPackage &package : std::as_const(m_received)) {
            found = found || (package.command == wanted.command &&
                              (package.data == wanted.data || (isKnob && package.d(0) == key.code)));
        }
        missing << (found ? QStringList() : QStringList("key " + key.name));
    }
    return missing;
}

// Several reports of one command differ in their first data byte.
QStringList TestReach::missingReports() const
{
    const QVector<BoxReport> &reports = m_box->speaker()->reports();
    QStringList missing;
    for (int i = 0; i < reports.size(); ++i) {
        const BoxPackage wanted = m_box->speaker()->reportPackage(i);
        const auto isSame = [&](const BoxReport &report) { return report.command == wanted.command; };
        const bool isShared = std::count_if(reports.begin(), reports.end(), isSame) > 1;
        const bool found = std::any_of(m_received.begin(), m_received.end(), [&](const BoxPackage &package) {
            return package.command == wanted.command && (!isShared || package.d(0) == wanted.d(0));
        });
        missing << (found ? QStringList() : QStringList("report " + reports.at(i).meaning));
    }
    return missing;
}

QStringList TestReach::missingValues() const
{
    QStringList missing;
    for (const QString &name : m_box->speaker()->properties()) {
        const CarProperty &property = *CarProperty::find(name);
        QStringList wanted = property.choices;
        if (property.kind == CarProperty::Switch) {
            wanted = QStringList{"on", "off"};
        } else if (property.minimum < property.maximum && property.step > 0 &&
                   property.kind != CarProperty::NumberList) {
            wanted = QStringList{property.text(property.minimum), property.text(property.maximum)};
        }
        const QSet<QString> seen = m_values.value(name);
        for (const QString &value : wanted) {
            missing << (seen.contains(value) ? QStringList() : QStringList(name + ' ' + value));
        }
        missing << (seen.isEmpty() ? QStringList(name) : QStringList());
    }
    return missing;
}

QStringList TestReach::missingCommands() const
{
    QStringList missing;
    for (const quint8 command : m_box->speaker()->commands()) {
        missing << (m_sent.contains(command) ? QStringList()
                                             : QStringList("command 0x" + QString::number(command, 16)));
    }
    return missing;
}

QTEST_GUILESS_MAIN(TestReach)
#include "tst_reach.moc"
