#include "probeplugin.h"

#include "probewindow.h"

#include "filesystemservice.h"
#include "orbapplication.h"
#include "orbcommons.h"
#include "orbdialog.h"
#include "orbevent.h"
#include "orbqtcompat.h"
#include "orbwindowmanager.h"

#include <QCheckBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

enum EventType { ShowAppEvent = 51001, NotifyEvent = 51007, AppStateEvent = 51011 };

struct KeyRecord
{
    quint32 keyCode;
    quint64 ctrlValue;
};

QList<KeyRecord> keySet = {{1, 4294967296ull}, {2, 7}};

OrbEvent *keySetEvent(unsigned int param2)
{
    OrbEvent *event = new OrbEvent(400, 1, NotifyEvent);
    event->setParams(20497, param2);
    event->setVariantParam(QVariant::fromValue<void *>(&keySet));
    return event;
}

} // namespace

ProbePlugin::ProbePlugin() : m_window(new ProbeWindow)
{
    OrbApplication *application = OrbApplication::instance();
    AppendAppTitle(700, "Probe");
    OrbApplication::simulateKey(16777330, true, false, 1);
    QCoreApplication::postEvent(application, keySetEvent(21));
    QCoreApplication::postEvent(application, keySetEvent(22)); // of another meaning, whatever its pointer
    application->addKeyFilter(this);
    connect(m_window, &ProbeWindow::asked, this, &ProbePlugin::ask);
    connect(application, &OrbApplication::modeAppChanged, this,
            [](uint mode, uint other) { report(ModeCame, mode, other); });
    connect(application, &OrbApplication::diskDeviceStatusChange, this, [](int disk, int status) {
        report(DiskCame, uint(disk), uint(status), FileSystemService::getDiskPartitionPaths(disk).join('|'));
    });
}

ProbePlugin::~ProbePlugin()
{
    OrbApplication::instance()->removeKeyFilter(this);
    delete m_window;
    report(Destroyed, 0, 0);
}

bool ProbePlugin::filterKey(unsigned int key, bool, bool)
{
    if (key == AskingKey) {
        ask();
    }
    return key == ConsumedKey || key == AskingKey;
}

void ProbePlugin::report(Report what, unsigned int param, unsigned int param2, const QString &text)
{
    OrbEvent event(7, what, NotifyEvent);
    event.setParams(param, param2);
    event.setStringParam(text);
    OrbApplication::instance()->dispatchOrbEvent(&event);
}

void ProbePlugin::ask()
{
    OrbDialog dialog;
    dialog.setModal(true);
    dialog.setWindowTitle("Probe dialog");
    QVBoxLayout *layout = new QVBoxLayout(&dialog);
    for (int i = 0; i < 2; ++i) {
        QCheckBox *box = new QCheckBox(QString("Choice %1").arg(i));
        layout->addWidget(box);
        connect(box, &QCheckBox::toggled, &dialog, [i](bool on) { report(Clicked, uint(i), on ? 1 : 0); });
    }
    QPushButton *button = new QPushButton("OK");
    button->setObjectName("btnOk");
    layout->addWidget(button);
    connect(button, &QPushButton::clicked, &dialog, &QDialog::accept);
    report(Answered, uint(dialog.exec()), 0);
}

void ProbePlugin::customEvent(QEvent *event)
{
    const OrbEvent *orbEvent = dynamic_cast<OrbEvent *>(event);
    OrbEvent echo(7, EventCame, orbEvent->type());
    echo.setParams(orbEvent->getParam(), orbEvent->getParam2());
    echo.setByteArrayParams(orbEvent->getByteArrayParam());
    echo.setStringParam(orbEvent->getStringParam());
    OrbApplication::instance()->dispatchOrbEvent(&echo);
    const int type = orbEvent->type();
    if (type == ShowAppEvent && orbEvent->getParam() == 700) {
        m_window->show();
    } else if (type == ShowAppEvent && orbEvent->getParam() == 701) {
        ask();
    } else if (type == AppStateEvent) {
        report(ValuesRead, OrbApplication::instance()->getTag(0x10001).toUInt(),
               OrbWindowManager::getCurWindowAppId(), OrbApplication::getOrbProductValue("Probe").toString());
    }
}

extern "C" {

Q_DECL_EXPORT OrbPlugin *create()
{
    return new ProbePlugin;
}

Q_DECL_EXPORT void destroy(OrbPlugin *plugin)
{
    delete plugin;
}
}
