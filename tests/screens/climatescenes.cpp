#include "scenes.h"

#include "adapterfactory.h"
#include "airconditiondlg.h"
#include "boxcatalog.h"
#include "boxspeaker.h"
#include "canbusadapter.h"
#include "orbhost.h"

#include <QtTest>

namespace {

const char *const Name = "climate.power";

std::unique_ptr<BoxSpeaker> speakerOf(const BoxCatalog::Row &row, SimulatedCar *car)
{
    return std::unique_ptr<BoxSpeaker>(row.makeSpeaker ? row.makeSpeaker(car) : nullptr);
}

/// What the box of \a row says of a car on a warm day goes into its adapter, which shows the climate.
void draw(const BoxCatalog::Row &row, const Scene::Shot &shot)
{
    SimulatedCar car;
    const std::unique_ptr<BoxSpeaker> speaker = speakerOf(row, &car);
    const std::unique_ptr<CanBusAdapter> adapter(AdapterFactory::create(CanBusType(row.type)));
    const auto tell = [&] {
        for (int i = 0; i < speaker->reports().size(); ++i) {
            if (speaker->reports().at(i).isAbout(Name)) {
                adapter->onRecvMcuProtocol(speaker->format().frame(speaker->reportPackage(i)));
            }
        }
    };
    tell();
    const char *const values[][2] = {
        {"climate.ac", "on"},       {"climate.left", "19.5"},      {"climate.right", "HI"},
        {"climate.left_step", "6"}, {"climate.right_step", "9"},   {"climate.fan", "6"},
        {"climate.to_feet", "on"},  {"climate.circulation", "in"}, {"climate.show", "on"}};
    for (const auto &value : values) {
        QVERIFY(car.setValue(value[0], value[1]));
        tell();
    }
    AirConditionDlg *shown = nullptr;
    for (QWidget *window : OrbHost::instance()->windows()) {
        shown = shown ? shown : qobject_cast<AirConditionDlg *>(window);
    }
    QVERIFY2(shown && shown->isVisible(), row.car);
    shot(shown);
}

} // namespace

QList<Scene> climateScenes()
{
    QList<Scene> scenes;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        SimulatedCar car;
        const std::unique_ptr<BoxSpeaker> speaker = speakerOf(row, &car);
        if (speaker && speaker->properties().contains(Name)) {
            const QString maker = QString(row.className).section('_', -1);
            scenes << Scene{QString("climate-of-%1").arg(row.car), QString("%1.").arg(maker),
                            [row](const Scene::Shot &shot) { draw(row, shot); }};
        }
    }
    return scenes;
}
