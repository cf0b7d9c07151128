#ifndef XINHANGSETTINGS_H
#define XINHANGSETTINGS_H

#include "orbiniconfig.h"

#include <QList>
#include <QStringList>

class XinHangBox;
class XinHangDisplay;

/// The car's settings: their texts, the stored choice of each, and what a choice means to the box, the
/// display or the framework. Choices are kept in "carsetting.ini".
class XinHangSettings
{
public:
    /// Both must outlive the settings. Holds items 1 to 4 at first.
    XinHangSettings(XinHangBox &box, XinHangDisplay &display);

    /// Appends the items of the factory setting "SettingItemTypes": numbers, decimal or 0x-hexadecimal.
    /// Texts that are no number are skipped with one log line, an item that is there already silently. A
    /// number that is no known item is kept: it is listed without values.
    void appendConfiguredItems();

    /// Numbers of the items that the list shows, in its order.
    QList<int> items() const { return m_items; }

    /// Translated name of \a item, "SetItem" and the number for an unknown one.
    static QString getSetItemText(int item);

    /// Translated names of the values of \a item; none for an unknown one.
    static QStringList getSetItemValueTexts(int item);

    /// Index of the default value: what the factory setting "CarSetDefValue" ("item=index", decimal) names,
    /// else 0. An index that the item does not have counts as not named. The factory setting is read once per
    /// process.
    static int getSetItemDefValueIndex(int item);

    /// Index of the stored value; the default when none is stored or the item does not have it.
    int getSetItemValueIndex(int item) const;

    /// Stores a choice and puts it into effect. An index that the item does not have is ignored.
    void choose(int item, int index);

    /// Puts the stored value of one item into effect: tells the box, the display or the framework. An item
    /// that is not in the list is ignored.
    void syncSettingDataToMcu(int item);

    /// The same for all items, in the order of the list.
    void onSyncSettingDatas();

private:
    void sendReversingCamera(int value);

    XinHangBox &m_box;
    XinHangDisplay &m_display;
    OrbIniConfig m_config;
    QList<int> m_items;
};

#endif // XINHANGSETTINGS_H
