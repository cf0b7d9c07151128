#ifndef PROBEPLUGIN_H
#define PROBEPLUGIN_H

#include "orbkeyfilter.h"
#include "orbplugin.h"

class ProbeWindow;

/// A plug-in for tests of the head unit: it reports whatever reaches it back to the framework, as events with
/// source 7 whose id says what it was, so that a trace shows it.
class ProbePlugin : public OrbPlugin, public OrbKeyFilter
{
    Q_OBJECT

public:
    enum Report {
        EventCame = 1,  ///< type and first parameter
        ModeCame = 2,   ///< mode and the mode before
        DiskCame = 3,   ///< disk and status; its partitions as text
        ValuesRead = 4, ///< tag 0x10001 and the application in front; product value "Probe" as text
        Clicked = 5,    ///< row and column, or the check box
        Answered = 6,   ///< the dialog's result
        Destroyed = 7
    };
    static constexpr unsigned int ConsumedKey = 5;
    static constexpr unsigned int AskingKey = 6; ///< opens the dialog

    ProbePlugin();
    ~ProbePlugin() override;

    OrbMainWindow *createMainWindow() override { return nullptr; }
    bool filterKey(unsigned int key, bool pressed, bool held) override;

    static void report(Report what, unsigned int param, unsigned int param2, const QString &text = QString());

public Q_SLOTS:
    void ask();

protected:
    void customEvent(QEvent *event) override;

private:
    ProbeWindow *m_window;
};

#endif // PROBEPLUGIN_H
