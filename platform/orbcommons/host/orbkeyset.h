#ifndef ORBKEYSET_H
#define ORBKEYSET_H

#include <QList>
#include <QtGlobal>

/// One record of a key set that a plug-in registers, as the framework finds it behind the event's address (event
/// 51007 from source 400, id 1, parameters 20497 and 21; the variant holds the address of an OrbKeySet as void*).
struct OrbKeyRecord
{
    quint32 keyCode;   ///< raw key code of the head unit
    quint64 ctrlValue; ///< value of the analogue key line that stands for it
};

typedef QList<OrbKeyRecord> OrbKeySet;

#endif // ORBKEYSET_H
