#ifndef CTRLKEYS_H
#define CTRLKEYS_H

#include <QList>
#include <QtGlobal>

/// One record of a key-set registration: a raw key code of the head unit and the control value of the
/// analogue key line that stands for it. The list is announced with an OrbEvent (400, 1, 51007), parameters
/// (20497, 21), whose variant holds the address of a CtrlKeyList as void*: the framework reads the records there,
/// so their layout stays as it is.
struct CtrlKeyPair
{
    quint32 keyCode;
    quint64 ctrlValue;
};

typedef QList<CtrlKeyPair> CtrlKeyList;

#endif // CTRLKEYS_H
