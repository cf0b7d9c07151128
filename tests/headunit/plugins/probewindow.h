#ifndef PROBEWINDOW_H
#define PROBEWINDOW_H

#include "orbmainwindow.h"

class TableViewModel;

/// One widget of each kind that a script can read or touch.
class ProbeWindow : public OrbMainWindow
{
    Q_OBJECT

public:
    ProbeWindow();

Q_SIGNALS:
    void asked();

private:
    void fillList();

    TableViewModel *m_model;
};

#endif // PROBEWINDOW_H
