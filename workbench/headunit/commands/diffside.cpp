#include "diffside.h"

#include "boxcatalog.h"
#include "boxspeaker.h"
#include "carproperty.h"
#include "decoderbox.h"
#include "linelogformats.h"
#include "linepackages.h"

#include <QFileInfo>

#include <memory>

namespace {

const int MostSteps = 256; // of a number that is swept from end to end

bool readLog(DiffSide *side, QString *error)
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
void takeBox(DiffSide *side)
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

} // namespace

bool DiffSide::read(QString *error)
{
    if (QFileInfo(name).isFile()) {
        return readLog(this, error);
    }
    type = BoxCatalog::typeFromText(name);
    if (type == 0) {
        *error = QString("%1 is neither a log nor a CAN-bus type").arg(name);
    } else if (!BoxCatalog::frameOf(type)) {
        *error = QString("the frame of %1 is not known, so there is no virtual box of it")
                     .arg(BoxCatalog::className(type));
    } else {
        takeBox(this);
    }
    return error->isEmpty();
}

void DiffSide::takeRecords(const FrameFormat &format)
{
    LinePackages packages(format);
    const auto take = [&] {
        for (LinePackages::Item item; packages.next(&item);) {
            if (item.piece == LinePiece::Package) {
                traffic.add(item.record.kind == LineRecord::ToBox ? LineTraffic::ToBox : LineTraffic::ToUnit,
                            format.package(item.record.bytes), item.record.microseconds);
            }
        }
    };
    for (const LineRecord &record : std::as_const(records)) {
        packages.feed(record);
        take();
    }
    packages.finish();
    take();
}
