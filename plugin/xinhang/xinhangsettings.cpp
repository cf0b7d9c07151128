#include "xinhangsettings.h"

#include "unitlink.h"
#include "xinhangbox.h"
#include "xinhangdisplay.h"

#include "orbapplication.h"

#include <QDebug>
#include <QHash>

namespace {

const char Context[] = "XinHangSettings";

enum SentCommand { CameraCommand = 0x82, SettingCommand = 0x8B };

// Car type whose factory camera the box has to be told of.
const quint16 FactoryCameraCarType = 4;

/// Value texts that items have in common, index 0 first.
struct ValueTexts
{
    enum Kind { Translated, Plain };

    const char *const *texts;
    int count;
    Kind kind;
    int step; // what the box counts per index
};

const char *const CameraTexts[] = {QT_TRANSLATE_NOOP("XinHangSettings", "Original car"),
                                   QT_TRANSLATE_NOOP("XinHangSettings", "360"),
                                   QT_TRANSLATE_NOOP("XinHangSettings", "Add camera")};
const char *const SwitchTexts[] = {QT_TRANSLATE_NOOP("XinHangSettings", "Off"),
                                   QT_TRANSLATE_NOOP("XinHangSettings", "On")};
const char *const NumberTexts[] = {"1", "2", "3", "4", "5", "6", "7", "8"};
const char *const ReverseCameraTexts[] = {QT_TRANSLATE_NOOP("XinHangSettings", "None"),
                                          QT_TRANSLATE_NOOP("XinHangSettings", "AfterMarket Camera"),
                                          QT_TRANSLATE_NOOP("XinHangSettings", "OE Camera"),
                                          QT_TRANSLATE_NOOP("XinHangSettings", "AfterMarket 360")};
const char *const SecondsTexts[] = {"0S", "5S", "10S", "15S", "20S", "25S", "30S"};
const char *const VideoFormatTexts[] = {QT_TRANSLATE_NOOP("XinHangSettings", "CVBS"),
                                        QT_TRANSLATE_NOOP("XinHangSettings", "VGA")};
const char *const ConditionTexts[] = {QT_TRANSLATE_NOOP("XinHangSettings", "Parking Key"),
                                      QT_TRANSLATE_NOOP("XinHangSettings", "Reverse State"),
                                      QT_TRANSLATE_NOOP("XinHangSettings", "Gear Position")};
const char *const MirrorTexts[] = {QT_TRANSLATE_NOOP("XinHangSettings", "Off"),
                                   QT_TRANSLATE_NOOP("XinHangSettings", "Horizontal"),
                                   QT_TRANSLATE_NOOP("XinHangSettings", "Vertical"),
                                   QT_TRANSLATE_NOOP("XinHangSettings", "Horizontal and vertical")};

const ValueTexts Cameras = {CameraTexts, 3, ValueTexts::Translated, 1};
const ValueTexts Switch = {SwitchTexts, 2, ValueTexts::Translated, 1};
const ValueTexts Numbers = {NumberTexts, 8, ValueTexts::Plain, 1};
const ValueTexts ReverseCameras = {ReverseCameraTexts, 4, ValueTexts::Translated, 1};
const ValueTexts Seconds = {SecondsTexts, 7, ValueTexts::Plain, 5};
const ValueTexts VideoFormats = {VideoFormatTexts, 2, ValueTexts::Translated, 1};
const ValueTexts Conditions = {ConditionTexts, 3, ValueTexts::Translated, 1};
const ValueTexts Mirrors = {MirrorTexts, 4, ValueTexts::Translated, 1};

enum Effect { StoredOnly, ReversingCamera, RightCamera, ReversingTrack, ReversingRadar, BoxSetting };

struct Item
{
    int number;
    const char *text;
    const ValueTexts *values;
    Effect effect;
    quint8 boxSetting; // the box's number of the setting; its order is its own
};

const Item Items[] = {
    {1, QT_TRANSLATE_NOOP("XinHangSettings", "Reversing camera"), &Cameras, ReversingCamera, 0},
    {2, QT_TRANSLATE_NOOP("XinHangSettings", "Right camera"), &Switch, RightCamera, 0},
    {3, QT_TRANSLATE_NOOP("XinHangSettings", "Reversing track"), &Switch, ReversingTrack, 0},
    {4, QT_TRANSLATE_NOOP("XinHangSettings", "Reversing radar"), &Switch, ReversingRadar, 0},
    {128, QT_TRANSLATE_NOOP("XinHangSettings", "Car type"), &Numbers, BoxSetting, 4},
    {129, QT_TRANSLATE_NOOP("XinHangSettings", "Display type"), &Numbers, BoxSetting, 5},
    {130, QT_TRANSLATE_NOOP("XinHangSettings", "Sound type"), &Numbers, BoxSetting, 6},
    {131, QT_TRANSLATE_NOOP("XinHangSettings", "Reverse camera"), &ReverseCameras, BoxSetting, 0},
    {132, QT_TRANSLATE_NOOP("XinHangSettings", "Starting front view"), &Seconds, BoxSetting, 1},
    {133, QT_TRANSLATE_NOOP("XinHangSettings", "Steering front view"), &Seconds, BoxSetting, 3},
    {134, QT_TRANSLATE_NOOP("XinHangSettings", "Reversing front view"), &Seconds, StoredOnly, 0},
    {135, QT_TRANSLATE_NOOP("XinHangSettings", "Dedicated right view"), &Switch, BoxSetting, 2},
    {136, QT_TRANSLATE_NOOP("XinHangSettings", "Front view after right view"), &Seconds, StoredOnly, 0},
    {137, QT_TRANSLATE_NOOP("XinHangSettings", "Rear video format"), &VideoFormats, StoredOnly, 0},
    {138, QT_TRANSLATE_NOOP("XinHangSettings", "Reverse condition"), &Conditions, StoredOnly, 0},
    {144, QT_TRANSLATE_NOOP("XinHangSettings", "Front view mirror"), &Mirrors, StoredOnly, 0},
    {145, QT_TRANSLATE_NOOP("XinHangSettings", "Right view mirror"), &Mirrors, StoredOnly, 0},
    {146, QT_TRANSLATE_NOOP("XinHangSettings", "Rear view mirror"), &Mirrors, StoredOnly, 0},
    {147, QT_TRANSLATE_NOOP("XinHangSettings", "Reverse track"), &Switch, ReversingTrack, 0},
    {148, QT_TRANSLATE_NOOP("XinHangSettings", "Reverse radar"), &Switch, ReversingRadar, 0},
};

const Item *findItem(int number)
{
    for (unsigned int i = 0; i < sizeof Items / sizeof Items[0]; ++i) {
        if (Items[i].number == number) {
            return &Items[i];
        }
    }
    return nullptr;
}

bool hasValue(const Item *item, int index)
{
    return item && index >= 0 && index < item->values->count;
}

QString itemKey(int item)
{
    return QString::fromLatin1("SetItem%1").arg(item);
}

QHash<int, int> readDefaults()
{
    QHash<int, int> defaults;
    const QStringList entries = OrbApplication::getFactorySetting(QLatin1String("CarSetDefValue"));
    for (int i = 0; i < entries.size(); ++i) {
        const QStringList parts = entries.at(i).split(QLatin1Char('='));
        bool isItem = false;
        bool isIndex = false;
        const int item = parts.first().toInt(&isItem);
        const int index = parts.last().toInt(&isIndex);
        if (parts.size() == 2 && isItem && isIndex && hasValue(findItem(item), index)) {
            defaults.insert(item, index);
        } else {
            qWarning() << "CarSetDefValue: no item and value of it:" << entries.at(i);
        }
    }
    return defaults;
}

/// Decimal or 0x-hexadecimal; leading zeros do not make a number octal.
int itemNumber(const QString &text, bool *ok)
{
    const QString number = text.trimmed();
    return number.toInt(ok, number.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) ? 16 : 10);
}

} // namespace

XinHangSettings::XinHangSettings(XinHangBox &box, XinHangDisplay &display)
    : m_box(box), m_display(display), m_config(QLatin1String("carsetting.ini"), QLatin1String("CarSetting"))
{
    m_items << 1 << 2 << 3 << 4;
}

void XinHangSettings::appendConfiguredItems()
{
    const QStringList configured = OrbApplication::getFactorySetting(QLatin1String("SettingItemTypes"));
    for (int i = 0; i < configured.size(); ++i) {
        bool ok = false;
        const int item = itemNumber(configured.at(i), &ok);
        if (!ok) {
            qWarning() << "SettingItemTypes: no item number:" << configured.at(i);
        } else if (!m_items.contains(item)) {
            m_items.append(item);
        }
    }
}

QString XinHangSettings::getSetItemText(int item)
{
    const Item *const found = findItem(item);
    return found ? QCoreApplication::translate(Context, found->text) : itemKey(item);
}

QStringList XinHangSettings::getSetItemValueTexts(int item)
{
    QStringList texts;
    const Item *const found = findItem(item);
    if (!found) {
        return texts;
    }
    const ValueTexts &values = *found->values;
    for (int i = 0; i < values.count; ++i) {
        texts.append(values.kind == ValueTexts::Plain
                         ? QString::fromLatin1(values.texts[i])
                         : QCoreApplication::translate(Context, values.texts[i]));
    }
    return texts;
}

int XinHangSettings::getSetItemDefValueIndex(int item)
{
    static const QHash<int, int> defaults = readDefaults();
    return defaults.value(item, 0);
}

int XinHangSettings::getSetItemValueIndex(int item) const
{
    bool ok = false;
    const int index = m_config.value(itemKey(item)).toString().toInt(&ok);
    return ok && hasValue(findItem(item), index) ? index : getSetItemDefValueIndex(item);
}

void XinHangSettings::choose(int item, int index)
{
    if (!hasValue(findItem(item), index)) {
        return;
    }
    m_config.setValue(itemKey(item), index);
    syncSettingDataToMcu(item);
}

void XinHangSettings::syncSettingDataToMcu(int item)
{
    const Item *const found = findItem(item);
    if (!found || !m_items.contains(item)) {
        return;
    }
    const int value = getSetItemValueIndex(item) * found->values->step;
    switch (found->effect) {
    case StoredOnly:
        break;
    case ReversingCamera:
        sendReversingCamera(value);
        break;
    case RightCamera:
        m_display.setRightCameraOn(value == 1);
        break;
    case ReversingTrack:
        UnitLink::sendSwitch(UnitLink::TrackSwitch, value == 1);
        break;
    case ReversingRadar:
        UnitLink::sendSwitch(UnitLink::RadarSwitch, value == 1);
        break;
    case BoxSetting: {
        const char data[] = {char(found->boxSetting), char(value)};
        m_box.send(SettingCommand, QByteArray(data, sizeof data));
        break;
    }
    }
}

void XinHangSettings::sendReversingCamera(int value)
{
    m_display.setReversingCameraMode(value);
    // 7 not used, 6 the car's own camera, 5..1 not used, 0 a camera was added
    char flags = 0;
    if (value == XinHangDisplay::AddedCamera) {
        flags |= 0x01;
    }
    if (value == XinHangDisplay::OriginalCamera && m_box.carType() == FactoryCameraCarType) {
        flags |= 0x40;
    }
    const char data[] = {flags, 0x00};
    m_box.send(CameraCommand, QByteArray(data, sizeof data));
}

void XinHangSettings::onSyncSettingDatas()
{
    for (int i = 0; i < m_items.size(); ++i) {
        syncSettingDataToMcu(m_items.at(i));
    }
}
