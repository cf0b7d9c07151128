#ifndef HELLOPLUGIN_H
#define HELLOPLUGIN_H

#include "orbplugin.h"

class QLabel;

/// Shows each key of the unit in a window of its own.
class HelloPlugin : public OrbPlugin
{
    Q_OBJECT

public:
    HelloPlugin();
    ~HelloPlugin() override;

    /// The window shows itself when there is a key; the framework need not know it.
    OrbMainWindow *createMainWindow() override { return nullptr; }

protected:
    void customEvent(QEvent *event) override;

private:
    OrbMainWindow *m_window;
    QLabel *m_label;
};

#endif // HELLOPLUGIN_H
