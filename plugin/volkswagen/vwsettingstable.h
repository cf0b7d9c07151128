#ifndef VWSETTINGSTABLE_H
#define VWSETTINGSTABLE_H

#include "packageview.h"

#include <QList>
#include <QString>
#include <QtGlobal>

/// The car's settings menu as data: which pages there are, which rows each has, what a row can be set to and
/// where the box's replies carry its value.
namespace Vw {

/// Application ids of the pages.
enum SettingsPage : unsigned int {
    TyresPage = 771,
    DriverAssistancePage = 773,
    ParkingPage = 774,
    LightPage = 775,
    MirrorsPage = 776,
    OpeningPage = 777,
    DisplayPage = 778,
    ServicePage = 779,
    UnitsPage = 780,
    FactoryPage = 781,
    CarSettingPage = 782,
    StartStopPage = 783,
    ReportsPage = 784,
    ProfilePage = 785,
    ConsumersPage = 786
};

/// Items of the car that the code knows by name.
enum SettingItem {
    NoItem = -1,
    VehicleNumberItem = 0x00,
    WarningSpeedItem = 33,
    TyresSetItem = 34,
    WiperServiceItem = 140,
    RadarSoundItem = 171,
    RestoreParkingItem = 194,
    RestoreAllItem = 199,
    DrivingModeItem = 208,
    IndividualClimateItem = 211,
    OffRoadClimateItem = 228,
    OffRoadResetItem = 232
};

/// Where a reply carries a value: the reply's sub-type, the data byte, its bits.
struct ReplyField
{
    quint8 subType;
    quint8 byte; ///< 0 for a row without a value in the replies (d[0] is the sub-type)
    quint8 high;
    quint8 low;

    /// Whether \a d is the reply and long enough.
    bool isIn(const PackageView &d) const { return byte > 0 && d.d(0) == subType && d.n() > byte; }
    int valueIn(const PackageView &d) const { return d.bits(byte, high, low); }
};

/// What a number can be set to, and its unit (null for none).
struct NumberRange
{
    int minimum;
    int maximum;
    int step;
    const char *unit;
};

struct SettingRow
{
    enum Kind {
        Heading,
        Link,            ///< opens another page
        Switch,          ///< off and on
        Options,         ///< one of several texts
        Number,          ///< a value in a range
        Action,          ///< acts at once
        ConfirmedAction, ///< acts after a question
        Reading          ///< is only shown
    };

    Kind kind;
    int item;          ///< number of the setting, NoItem for none
    const char *label; ///< source text
    const char *icon;  ///< file name below :/dazhong/set/
    const char *const *options;
    const quint8 *codes; ///< number of each option on the wire; null where that is its index
    NumberRange range;
    unsigned int opens;
    ReplyField field;

    int optionCount() const;
    /// Number on the wire of option \a index; -1 past the list.
    int codeOf(int index) const;
    /// Option that \a code stands for; -1 when none does.
    int optionOf(int code) const;
};

struct SettingPage
{
    unsigned int id;
    const char *title;
    const SettingRow *rows;
    int rowCount;
    quint8 requestCommand; ///< what the page asks for when it opens, by sub-type
    const quint8 *requests;
    int requestCount;
};

/// The page \a id; null for an unknown one.
const SettingPage *settingPage(unsigned int id);

// What does not follow from a row alone.

/// The further rows of the profile page for driving mode \a mode: the individual modes have some.
QList<SettingRow> profileRows(int mode);
/// Where else the driving mode is reported.
extern const ReplyField SecondDrivingModeField;
/// The unit of the warning speed: set means mph.
extern const ReplyField WarningSpeedUnitField;
extern const NumberRange WarningSpeedMph;
/// The items that can be chosen and that no reply carries.
const QList<int> &unreportedItems();
/// Whether the car, told to do \a action, no longer has what was chosen for the unreported \a item.
bool isUndoneBy(int item, int action);
/// Whether a choice made in row \a item of page \a page takes the further rows of the profile page away
/// until the car reports its driving mode again.
bool dropsProfileRows(unsigned int page, int item);
/// Whether row \a item sends its value even when its dialog was cancelled.
bool sendsWhenCancelled(int item);

/// \a source in the unit's language; empty for null.
QString text(const char *source);

} // namespace Vw

#endif // VWSETTINGSTABLE_H
