#ifndef XINHANGKEYFILTER_H
#define XINHANGKEYFILTER_H

#include <QtGlobal>

class XinHangBox;
class XinHangDisplay;

/// Decides, car type by car type, which keys reach the unit while the car's factory screen or the unit's own
/// one is shown, and what becomes of the others. Until the box has told its car type every key is consumed.
class XinHangKeyFilter
{
public:
    /// Both must outlive the filter.
    XinHangKeyFilter(const XinHangBox &box, XinHangDisplay &display);

    /// A key of the unit, or of the wheel. \a held: a repeat of a held key. True: consumed.
    bool filterKey(unsigned int key, bool pressed, bool held);

    /// A key of the car's panel, in the same way.
    bool filterPanelKey(unsigned int key, bool pressed, bool held);

private:
    struct Rule;

    bool apply(const Rule *rules, int count, unsigned int key, bool pressed, bool held);
    bool obey(const Rule &rule, bool pressed, bool held);
    bool endsShortPress(bool pressed, bool held);
    bool isBouncing();

    const XinHangBox &m_box;
    XinHangDisplay &m_display;
    quint64 m_arrowTime; // ms of the last accepted arrow key
    bool m_arrowSeen;
};

#endif // XINHANGKEYFILTER_H
