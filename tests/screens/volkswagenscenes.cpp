#include "scenes.h"
#include "vwbench.h"

#include "volkswagen/volkswagenwindow.h"
#include "volkswagen/vwcommands.h"
#include "volkswagen/vwsettingstable.h"

#include "orbhost.h"

#include <QtTest>

namespace {

const int LongAgo = 55 * 60 * 1000; // ms

const char *const Reports =
    "40 10 02 | 40 20 01 78 01 | 40 30 03 01 | 40 31 0f 32 01 | 40 40 07 53 86 | 40 50 71 32 0f 1e |"
    "40 51 07 1e 32 03 | 40 52 0a 14 03 64 | 40 60 1f | 40 70 21 1f 01 | 40 80 ff 03 | 40 90 32 21 |"
    "40 b0 03 | 40 a0 03 21 12 | 60 06 01 02 09 0d 15 19 01 | 61 02 00 e8 03 ff ff | 62 03 01 06 0d |"
    "63 00 57 56 57 5a 5a 5a 31 4b 5a 38 57 30 30 30 30 30 31 | 63 10 01 5a 00 | 63 11 02 96 00 |"
    "63 20 02 0a 00 | 63 21 11 32 00 | 63 22 01";

/// A car that has told nothing yet, with settings of its own.
struct Car
{
    VwBench::SettingsFolder settings;
    CanBus_Raise_Volkswagen adapter;
};

Scene driving(const QString &name, const QString &caption, const char *button, const char *packages,
              int age = 0)
{
    return {name, caption, [=](const Scene::Shot &shot) {
                Car car;
                VolkswagenWindow window(&car.adapter);
                window.show();
                VwBench::click(window, button);
                passTime(Vw::AnswerPatience + 1000);
                VwBench::feed(car.adapter, packages);
                passTime(age);
                shot(&window);
            }};
}

Scene settings(const QString &name, const QString &caption, unsigned int page, const char *packages)
{
    return {name, caption, [=](const Scene::Shot &shot) {
                Car car;
                VWFunctionSetting window(page, &car.adapter);
                window.show();
                VwBench::feed(car.adapter, packages);
                shootList(&window, shot);
            }};
}

// The page of a car that says nothing; of the service with an order that has just left.
Scene silent(const QString &name, const QString &caption, unsigned int page)
{
    return {name, caption, [=](const Scene::Shot &shot) {
                Car car;
                VWFunctionSetting window(page, &car.adapter);
                window.show();
                passTime(2200); // virtual
                if (page == Vw::ServicePage) {
                    const int row = VwBench::modelOf(window)->rowOfItem(138);
                    VwBench::tap(window, row, 0,
                                 [](SelectDialog &dialog) { VwBench::click(dialog, "btnOk"); });
                }
                shot(&window);
            }};
}

// Each dialog of a page whose car has told \a reports.
void drawDialogs(unsigned int page, const char *reports, const Scene::Shot &shot)
{
    Car car;
    VWFunctionSetting window(page, &car.adapter);
    window.show();
    VwBench::feed(car.adapter, reports);
    passTime(Vw::AnswerPatience);
    for (int row = 0; row < VwBench::modelOf(window)->rowCount(); ++row) {
        VwBench::tap(window, row, 0, [&](SelectDialog &dialog) {
            shot(&dialog);
            VwBench::cancel(dialog);
        });
        if (OrbHost::instance()->frontWindow() != &window) {
            delete OrbHost::instance()->frontWindow(); // a page that the row leads to
        }
    }
}

QList<Scene> drivingScenes()
{
    return {
        driving("driving", "The trip computer.", "btnRange",
                "50 10 01 08 02 00 00 | 50 61 00 3e 00 00 00 | 50 20 01 10 27 00 00 | 50 30 00 4b 00 00 00 |"
                "50 40 00 a4 01 00 00 | 50 50 5f 00 00 00 00"),
        driving("driving-largest", "The largest figures that a car can tell.", "btnRight",
                "50 10 01 ff ff 00 00 | 50 61 03 ff ff 00 00 | 50 21 00 ff ff ff ff | 50 31 02 ff ff 00 00 |"
                "50 41 01 ff ff 00 00 | 50 51 ff ff 00 00 00"),
        driving("driving-unknown", "The car has told nothing.", "btnRange", "77"),
        driving("driving-old", "Nothing has come for almost an hour.", "btnRange",
                "50 10 01 08 02 00 00 | 50 20 01 10 27 00 00", LongAgo),
        driving("driving-warned", "A tyre has lost pressure, and a service is overdue.", "btnRange",
                "50 10 01 08 02 00 00 | 50 61 00 3e 00 00 00 | 50 20 01 10 27 00 00 | 50 30 00 7d 00 00 00 |"
                "50 40 00 a4 01 00 00 | 50 50 5f 00 00 00 00 | 68 02 02 | 63 20 02 0a 00"),
        driving("tyre-normal", "All tyres are well, as the car said almost an hour ago.", "btnTPMS",
                "68 00 00", LongAgo),
        driving("tyre-states", "The car tells each tyre's state.", "btnTPMS", "68 00 00 | 65 00 01 02 00"),
        driving("tyre-warning", "The car tells where to look.", "btnTPMS", "65 00 01 02 00 | 68 02 02"),
        driving("tyre-both", "Both; the newer report decides.", "btnTPMS", "68 09 04 | 65 01 00 00 01"),
        driving("tyre-unknown", "The car has told nothing.", "btnTPMS", "77"),
    };
}

} // namespace

QList<Scene> volkswagenScenes()
{
    const struct
    {
        unsigned int page;
        const char *name;
        const char *title;
        bool hasDialogs;
    } rows[] = {{Vw::CarSettingPage, "car", "Car settings", true},
                {Vw::TyresPage, "tyres", "Tyres", true},
                {Vw::DriverAssistancePage, "assistance", "Driver assistance", true},
                {Vw::ParkingPage, "parking", "Parking and manoeuvring", true},
                {Vw::LightPage, "light", "Light", true},
                {Vw::MirrorsPage, "mirrors", "Mirrors and wipers", false},
                {Vw::OpeningPage, "opening", "Opening and closing", true},
                {Vw::DisplayPage, "display", "Multifunction display", false},
                {Vw::ServicePage, "service", "Service", true},
                {Vw::UnitsPage, "units", "Units", true},
                {Vw::FactoryPage, "factory", "Factory settings", true},
                {Vw::ProfilePage, "profile", "Seat and driver profile", true},
                {Vw::StartStopPage, "start-stop", "Vehicle start-stop", false},
                {Vw::ReportsPage, "reports", "Vehicle reports", false},
                {Vw::ConsumersPage, "consumers", "Convenience consumers", false}};
    QList<Scene> scenes = drivingScenes();
    for (const auto &row : rows) {
        const unsigned int page = row.page;
        scenes << settings(QString("settings-") + row.name, QString("%1.").arg(row.title), page, Reports);
        if (row.hasDialogs) {
            scenes << Scene{QString("dialogs-") + row.name, QString("%1: the dialogs.").arg(row.title),
                            [page](const Scene::Shot &shot) { drawDialogs(page, Reports, shot); }};
        }
    }
    return scenes << Scene{"dialogs-untold", "Dialogs for values that the car has not told.",
                           [](const Scene::Shot &shot) {
                               for (unsigned int page : {Vw::OpeningPage, Vw::ProfilePage, Vw::TyresPage}) {
                                   drawDialogs(page, "61 00 00", shot);
                               }
                           }}
                  << settings("reports-none", "The car has nothing to report.", Vw::ReportsPage, "61 00 00")
                  << settings("service-overdue", "Services that are due.", Vw::ServicePage,
                              "63 10 02 0c 00 | 63 11 02 06 00 | 63 20 02 0c 00 | 63 21 12 06 00")
                  << silent("silent-assistance", "Values that the car has not told.",
                            Vw::DriverAssistancePage)
                  << silent("silent-service", "The same, and an order that was just sent.", Vw::ServicePage)
                  << silent("silent-start-stop", "No message yet.", Vw::StartStopPage);
}
