#ifndef ORBCTRLKEYS_H
#define ORBCTRLKEYS_H

#include <QList>
#include <QtGlobal>

/// One record of a key-set registration: a raw key code of the head unit and the control value of the
/// analogue key line that stands for it. A plug-in announces its list with an OrbEvent (400, 1, NotifyType),
/// parameters (20497, 21), whose variant holds the address of a CtrlKeyList as void*.
struct CtrlKeyPair
{
    quint32 keyCode;
    quint64 ctrlValue;
};

typedef QList<CtrlKeyPair> CtrlKeyList;

#endif // ORBCTRLKEYS_H
