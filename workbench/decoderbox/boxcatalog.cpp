#include "boxcatalog.h"

#include "decoderbox.h"
#include "speakers/gacspeaker.h"
#include "speakers/gmspeaker.h"
#include "speakers/havalspeaker.h"
#include "speakers/hondaspeaker.h"
#include "speakers/jeepspeaker.h"
#include "speakers/mazdaspeaker.h"
#include "speakers/nissanspeaker.h"
#include "speakers/renaultspeaker.h"
#include "speakers/toyotaspeaker.h"
#include "speakers/venuciaspeaker.h"
#include "speakers/volkswagenspeaker.h"
#include "speakers/xinhangspeaker.h"

#include <memory>

namespace {

template <typename Speaker>
BoxSpeaker *make(SimulatedCar *car)
{
    return new Speaker(car);
}

const BoxCatalog::Row *findRow(int type)
{
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        if (row.type == type) {
            return &row;
        }
    }
    return nullptr;
}

// A speaker for \a car, null where nobody knows what it would say.
std::unique_ptr<BoxSpeaker> speakerOf(int type, SimulatedCar *car)
{
    const BoxCatalog::Row *row = findRow(type);
    return std::unique_ptr<BoxSpeaker>(row && row->makeSpeaker ? row->makeSpeaker(car) : nullptr);
}

// A box of which only the handshake is known.
BoxSpeaker *makePlain(SimulatedCar *car)
{
    return new RaiseSpeaker(car);
}

} // namespace

const QVector<BoxCatalog::Row> &BoxCatalog::rows()
{
    static const QVector<Row> rows = {
        {1, "CanBus_LiHang_JMCE200N", "jmce200n", nullptr},
        {2, "CanBus_Huida_ZD", "huida", nullptr},
        {3, "CanBus_Raise_Volkswagen", "volkswagen", make<VolkswagenSpeaker>},
        {4, "CanBus_XinHang", "xinhang", make<XinHangSpeaker>},
        {5, "CanBus_XBS_Mazda", "mazda", make<MazdaSpeaker>},
        {6, "CanBus_XinRi", "xinri", makePlain},
        {7, "CanBus_Raise_Honda", "honda", make<HondaSpeaker>},
        {8, "CanBus_Raise_Nissan", "nissan", make<NissanSpeaker>, true},
        {9, "CanBus_Raise_Toyota", "toyota", make<ToyotaSpeaker>},
        {10, "CanBus_Raise_GM", "gm", make<GmSpeaker>},
        {11, "CanBus_Raise_Haval", "haval", make<HavalSpeaker>, true},
        {12, "CanBus_Raise_GAC", "gac", make<GacSpeaker>, true},
        {13, "CanBus_Raise_Venucia", "venucia", make<VenuciaSpeaker>, true},
        {14, "CanBus_Raise_Renault", "renault", make<RenaultSpeaker>, true},
        {15, "CanBus_Raise_Jeep", "jeep", make<JeepSpeaker>},
    };
    return rows;
}

int BoxCatalog::typeFromText(const QString &text)
{
    const auto names = [&text](const Row &row) {
        const QString name = row.className;
        return text.compare(row.car, Qt::CaseInsensitive) == 0 ||
               text.compare(name, Qt::CaseInsensitive) == 0 ||
               (!text.isEmpty() && name.endsWith('_' + text, Qt::CaseInsensitive));
    };
    const bool isHexadecimal = text.startsWith("0x", Qt::CaseInsensitive);
    bool isNumber = false;
    const int number = text.mid(isHexadecimal ? 2 : 0).toInt(&isNumber, isHexadecimal ? 16 : 10);
    for (const Row &row : rows()) {
        if (isNumber ? row.type == number : names(row)) {
            return row.type;
        }
    }
    return 0;
}

QString BoxCatalog::list()
{
    QString text;
    for (const Row &row : rows()) {
        text += QString("\n%1  %2").arg(row.type, 4).arg(row.className);
    }
    return text;
}

QString BoxCatalog::className(int type)
{
    const Row *row = findRow(type);
    return row ? QString(row->className) : QString();
}

const FrameFormat *BoxCatalog::frameOf(int type)
{
    SimulatedCar car;
    const std::unique_ptr<BoxSpeaker> speaker = speakerOf(type, &car);
    return speaker ? &speaker->format() : nullptr;
}

QHash<quint8, QSet<int>> BoxCatalog::reportedBy(int type)
{
    SimulatedCar car;
    const std::unique_ptr<BoxSpeaker> speaker = speakerOf(type, &car);
    QHash<quint8, QSet<int>> lengths;
    for (int i = 0; speaker && i < speaker->reports().size(); ++i) {
        const BoxPackage package = speaker->reportPackage(i);
        lengths[package.command] << package.n();
    }
    for (const BoxKey &key : speaker ? speaker->keys() : QVector<BoxKey>()) {
        const QVector<BoxPackage> presses = key.source == BoxKey::Knob
                                                ? QVector<BoxPackage>{speaker->knobPackage(key, 1)}
                                                : speaker->keyPackages(key, BoxSpeaker::Pressed);
        for (const BoxPackage &package : presses) {
            lengths[package.command] << package.n();
        }
    }
    return lengths;
}

DecoderBox *BoxCatalog::createBox(int type, QObject *parent, QString *error)
{
    for (const Row &row : rows()) {
        if (row.type != type) {
            continue;
        }
        if (!row.makeSpeaker) {
            *error =
                QString("the protocol of the box for %1 (type %2) is not known, so there is no virtual one")
                    .arg(row.className)
                    .arg(type);
            return nullptr;
        }
        SimulatedCar *car = new SimulatedCar;
        return new DecoderBox(car, row.makeSpeaker(car), parent);
    }
    *error = QString("there is no CAN-bus type %1").arg(type);
    return nullptr;
}
