#include "xinhangkeyfilter.h"

#include "carkeys.h"
#include "xinhangbox.h"
#include "xinhangdisplay.h"

#include "orbapplication.h"
#include "orbcommons.h"

namespace {

const quint64 BounceTime = 99; // ms

template <typename Row, int Rows>
int rowCount(const Row (&)[Rows])
{
    return Rows;
}

} // namespace

/// What one car type does with one key; a key without a rule passes while the unit's own screen is shown.
struct XinHangKeyFilter::Rule
{
    enum Action {
        Consume,
        Replace,            // by the other key
        ReplaceOnOwnScreen, // the same; consumed while the factory screen is shown
        Debounce,           // passes at most every 100 ms
        ShowFactoryScreen,  // on release
        PhoneKey,           // a press, on the unit's own screen
        // Keys whose long press switches the display, and what a short press does.
        LongPressElseTap,
        LongPressElseTapOnOwnScreen,
        LongPressElsePhoneKey
    };

    quint16 carType;
    unsigned int key;
    Action action;
    unsigned int other;
};

XinHangKeyFilter::XinHangKeyFilter(const XinHangBox &box, XinHangDisplay &display)
    : m_box(box), m_display(display), m_arrowTime(0), m_arrowSeen(false)
{}

bool XinHangKeyFilter::filterKey(unsigned int key, bool pressed, bool held)
{
    static const Rule rules[] = {
        {1, CarKeys::Hangup, Rule::LongPressElseTap, CarKeys::Hangup},
        {1, CarKeys::ModeSwitch, Rule::Consume, 0},
        {1, CarKeys::Call, Rule::PhoneKey, 0},
        {1, CarKeys::VolumeDown, Rule::Consume, 0},
        {1, CarKeys::VolumeUp, Rule::Consume, 0},

        {4, CarKeys::Call, Rule::LongPressElsePhoneKey, 0},

        {5, CarKeys::VolumeDown, Rule::Consume, 0},
        {5, CarKeys::VolumeMute, Rule::Consume, 0},
        {5, CarKeys::VolumeUp, Rule::Consume, 0},
    };
    return apply(rules, rowCount(rules), key, pressed, held);
}

bool XinHangKeyFilter::filterPanelKey(unsigned int key, bool pressed, bool held)
{
    static const Rule rules[] = {
        // The knob and the number keys move the cursor.
        {1, CarKeys::VolumeUp, Rule::Replace, CarKeys::Right},
        {1, CarKeys::VolumeDown, Rule::Replace, CarKeys::Left},
        {1, CarKeys::VolumeMute, Rule::Replace, CarKeys::Enter},
        {1, CarKeys::Digit1, Rule::Replace, CarKeys::Up},
        {1, CarKeys::Digit2, Rule::Replace, CarKeys::Down},
        {1, CarKeys::Digit3, Rule::Replace, CarKeys::Launch5},
        {1, CarKeys::Digit4, Rule::Replace, CarKeys::Launch6},
        {1, CarKeys::Launch0, Rule::ShowFactoryScreen, 0},

        {4, CarKeys::Home, Rule::LongPressElseTapOnOwnScreen, CarKeys::Home},
        {4, CarKeys::Menu, Rule::ReplaceOnOwnScreen, CarKeys::Back},
        {4, CarKeys::VolumeDown, Rule::Consume, 0},
        {4, CarKeys::VolumeMute, Rule::Consume, 0},
        {4, CarKeys::VolumeUp, Rule::Consume, 0},
        {4, CarKeys::Left, Rule::Debounce, 0},
        {4, CarKeys::Right, Rule::Debounce, 0},

        {5, CarKeys::Home, Rule::LongPressElseTapOnOwnScreen, CarKeys::Home},
        {5, CarKeys::VolumeDown, Rule::Consume, 0},
        {5, CarKeys::VolumeMute, Rule::Consume, 0},
        {5, CarKeys::VolumeUp, Rule::Consume, 0},
    };
    return apply(rules, rowCount(rules), key, pressed, held);
}

bool XinHangKeyFilter::apply(const Rule *rules, int count, unsigned int key, bool pressed, bool held)
{
    const quint16 carType = m_box.carType();
    if (carType == 0) {
        return true;
    }
    for (int i = 0; i < count; ++i) {
        if (rules[i].carType == carType && rules[i].key == key) {
            return obey(rules[i], pressed, held);
        }
    }
    return !m_display.isOwnScreen();
}

bool XinHangKeyFilter::obey(const Rule &rule, bool pressed, bool held)
{
    const bool ownScreen = m_display.isOwnScreen();
    switch (rule.action) {
    case Rule::Consume:
        break;
    case Rule::Replace:
        OrbApplication::simulateKey(int(rule.other), pressed, held, 0);
        break;
    case Rule::ReplaceOnOwnScreen:
        if (ownScreen) {
            OrbApplication::simulateKey(int(rule.other), pressed, held, 0);
        }
        break;
    case Rule::Debounce:
        return !ownScreen || isBouncing();
    case Rule::ShowFactoryScreen:
        if (!pressed) {
            m_display.switchDisplay(XinHangDisplay::FactoryScreen, true);
        }
        break;
    case Rule::PhoneKey:
        if (ownScreen && pressed && !held) {
            CarKeys::tap(CarKeys::phoneKey());
        }
        break;
    case Rule::LongPressElseTap:
        if (endsShortPress(pressed, held)) {
            CarKeys::tap(rule.other);
        }
        break;
    case Rule::LongPressElseTapOnOwnScreen:
        if (endsShortPress(pressed, held) && ownScreen) {
            CarKeys::tap(rule.other);
        }
        break;
    case Rule::LongPressElsePhoneKey:
        if (endsShortPress(pressed, held) && ownScreen) {
            CarKeys::tap(CarKeys::phoneKey());
        }
        break;
    }
    return true;
}

bool XinHangKeyFilter::endsShortPress(bool pressed, bool held)
{
    if (!pressed) {
        return m_display.releaseSwitchKey();
    }
    m_display.pressSwitchKey(held);
    return false;
}

bool XinHangKeyFilter::isBouncing()
{
    // QUIRK xinhang-arrow-bounce: presses, repeats and releases of both arrows count alike, so that a release
    // right after its press is lost.
    const quint64 now = GetTickCountMs();
    if (m_arrowSeen && now - m_arrowTime <= BounceTime) {
        return true;
    }
    m_arrowSeen = true;
    m_arrowTime = now;
    return false;
}
