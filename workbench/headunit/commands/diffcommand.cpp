#include "diffcommand.h"

#include "boxcatalog.h"
#include "boxspeaker.h"
#include "carproperty.h"
#include "command.h"
#include "commandapplication.h"
#include "commandline.h"
#include "decoderbox.h"
#include "linecomparison.h"
#include "linelogformats.h"
#include "linepackages.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <memory>

namespace {

const int MostSteps = 256; // of a number that is swept from end to end

struct Side
{
    QString name; ///< as it was given
    int type = 0; ///< 0 for a log that does not say
    QVector<LineRecord> records;
    LineTraffic traffic;
};

// ------------------------------------------------------------------------------------------- the two sides

bool readLog(Side *side, QString *error)
{
    const std::unique_ptr<LineLogReader> reader = LineLogFormats::reader(side->name, {}, error);
    if (!reader) {
        return false;
    }
    for (LineRecord record; reader->next(&record);) {
        side->records << record;
    }
    side->type = BoxCatalog::typeFromText(reader->header().type.section(' ', 0, 0));
    side->traffic.hasTimes = reader->hasTimes();
    *error = reader->error();
    return error->isEmpty();
}

void takeRecords(Side *side, const FrameFormat &format)
{
    LinePackages packages(format);
    const auto take = [&] {
        for (LinePackages::Item item; packages.next(&item);) {
            if (item.piece == LinePiece::Package) {
                side->traffic.add(item.record.kind == LineRecord::ToBox ? LineTraffic::ToBox
                                                                        : LineTraffic::ToUnit,
                                  format.package(item.record.bytes), item.record.microseconds);
            }
        }
    };
    for (const LineRecord &record : std::as_const(side->records)) {
        packages.feed(record);
        take();
    }
    packages.finish();
    take();
}

// Values from one end of the property's range to the other.
QVector<QVariant> valuesOf(const CarProperty &property)
{
    QVector<QVariant> values;
    if (property.kind == CarProperty::Switch) {
        values = {true, false};
    } else if (property.kind == CarProperty::Choice) {
        for (const QString &choice : property.choices) {
            values << choice;
        }
    } else if (property.kind == CarProperty::Integer || property.kind == CarProperty::Real ||
               property.kind == CarProperty::Temperature) {
        const double range = property.maximum - property.minimum;
        const double step = qMax(property.step, range / MostSteps);
        for (double value = property.minimum; step > 0 && value <= property.maximum; value += step) {
            values << (property.kind == CarProperty::Integer ? QVariant(qRound(value)) : QVariant(value));
        }
        if (property.kind == CarProperty::Temperature) {
            values << "LO"
                   << "HI";
        }
    }
    return values << property.initial;
}

// All that the virtual box can say about its car, and what it understands.
void takeBox(Side *side)
{
    QString error;
    const std::unique_ptr<DecoderBox> box(BoxCatalog::createBox(side->type, nullptr, &error));
    BoxSpeaker *speaker = box->speaker();
    side->traffic.isWhole = true;
    side->traffic.hasTimes = false;
    const auto add = [side](const BoxPackage &package) {
        side->traffic.add(LineTraffic::ToUnit, package, 0);
    };
    for (int i = 0; i < speaker->reports().size(); ++i) {
        add(speaker->reportPackage(i));
    }
    for (const QString &name : speaker->properties()) {
        for (const QVariant &value : valuesOf(*CarProperty::find(name))) {
            box->car()->setValue(name, value);
            for (int i = 0; i < speaker->reports().size(); ++i) {
                if (speaker->reports().at(i).isAbout(name)) {
                    add(speaker->reportPackage(i));
                }
            }
        }
    }
    for (const BoxKey &key : speaker->keys()) {
        for (const auto state : {BoxSpeaker::Pressed, BoxSpeaker::Held, BoxSpeaker::Released}) {
            for (const BoxPackage &package : speaker->keyPackages(key, state)) {
                add(package);
            }
        }
        if (key.source == BoxKey::Knob) {
            for (int clicks = 0; clicks < 256; ++clicks) {
                add(speaker->knobPackage(key, clicks));
            }
        }
    }
    for (const quint8 command : speaker->commands()) {
        side->traffic.packages[LineTraffic::ToBox].insert(command, {});
    }
}

bool read(Side *side, QString *error)
{
    if (QFileInfo(side->name).isFile()) {
        return readLog(side, error);
    }
    side->type = BoxCatalog::typeFromText(side->name);
    if (side->type == 0) {
        *error = QString("%1 is neither a log nor a CAN-bus type").arg(side->name);
    } else if (!BoxCatalog::frameOf(side->type)) {
        *error = QString("the frame of %1 is not known, so there is no virtual box of it")
                     .arg(BoxCatalog::className(side->type));
    } else {
        takeBox(side);
    }
    return error->isEmpty();
}

// ------------------------------------------------------------------------------------------- the answer

void answer(const QVector<LineComparison::Difference> &differences, bool asJson)
{
    QJsonArray rows;
    for (const LineComparison::Difference &difference : differences) {
        if (asJson) {
            rows << QJsonObject{{"kind", difference.kind},
                                {"direction", difference.direction},
                                {"command", difference.command},
                                {"text", difference.text}};
        } else {
            std::puts(qPrintable(difference.line()));
        }
    }
    if (asJson) {
        std::puts(QJsonDocument(rows).toJson(QJsonDocument::Compact).constData());
    }
}

QString complaint(const Side &a, const Side &b)
{
    return QString("%1 is of type %2 (%3) and %4 of type %5 (%6): only boxes of one type can be compared")
        .arg(a.name)
        .arg(a.type)
        .arg(BoxCatalog::className(a.type), b.name)
        .arg(b.type)
        .arg(BoxCatalog::className(b.type));
}

} // namespace

int diffCommand(const QStringList &words)
{
    CommandLine line("diff",
                     "How two boxes of one type differ: commands, lengths, bits, rhythm. Says nothing, and "
                     "ends with 0, when they do not.");
    std::string names[2];
    bool asJson = false;
    line.app.add_option("A", names[0], "a log, or a CAN-bus type whose virtual box is meant: honda, 7")
        ->required()
        ->type_name("LOG|TYPE");
    line.app.add_option("B", names[1], "the same")->required()->type_name("LOG|TYPE");
    line.app.add_flag("--json", asJson, "answers in JSON");
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    const std::unique_ptr<QCoreApplication> application = CommandApplication::make();
    Side sides[2];
    QString error;
    for (const int i : {0, 1}) {
        sides[i].name = QString::fromStdString(names[i]);
        if (!read(&sides[i], &error)) {
            return line.refuse(error);
        }
    }
    if (sides[0].type != 0 && sides[1].type != 0 && sides[0].type != sides[1].type) {
        return line.refuse(complaint(sides[0], sides[1]));
    }
    const FrameFormat *known = BoxCatalog::frameOf(qMax(sides[0].type, sides[1].type));
    const FrameFormat &format = known ? *known : LinePackages::formatOf(sides[0].records);
    for (Side &side : sides) {
        takeRecords(&side, format);
    }
    const auto differences = LineComparison::differences(sides[0].traffic, sides[1].traffic);
    answer(differences, asJson);
    return differences.isEmpty() ? Command::Fine : Command::FoundSomething;
}
