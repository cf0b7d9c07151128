#ifndef CANBUSPLUGIN_H
#define CANBUSPLUGIN_H

#include "orbplugin.h"

class CanBusAdapter;
class KeyRedefAdapter;

/// The plug-in object: builds the adapters that the head unit is configured for, and forwards the framework's
/// events to them. It owns neither; they live until the process ends.
class CanBusPlugin : public OrbPlugin
{
    Q_OBJECT

public:
    CanBusPlugin();
    ~CanBusPlugin() override;

    /// Null: the adapters open windows of their own.
    OrbMainWindow *createMainWindow() override;

protected:
    /// Forwards OrbEvents; anything else, and whatever lacks its adapter, is dropped.
    void customEvent(QEvent *event) override;

private:
    CanBusAdapter *canBusAdapter;
    KeyRedefAdapter *keyRedefAdapter;
};

#endif // CANBUSPLUGIN_H
