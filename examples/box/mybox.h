#ifndef MYBOX_H
#define MYBOX_H

#include "raisespeaker.h"

/// A box that knows of its car the doors and two keys, and reports them as the one in a Toyota does.
class MyBox : public RaiseSpeaker
{
    Q_OBJECT

public:
    explicit MyBox(SimulatedCar *car, QObject *parent = nullptr);
};

#endif // MYBOX_H
