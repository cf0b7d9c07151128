#include "helloplugin.h"

#include "orbevent.h"
#include "orbmainwindow.h"

#include <QLabel>

namespace {
const int KeyEvent = 51006;          // the framework's number of a key of the unit
const unsigned int HelloAppId = 900; // a number that no application of the unit has
} // namespace

HelloPlugin::HelloPlugin() : m_window(new OrbMainWindow(HelloAppId)), m_label(new QLabel(m_window))
{
    m_window->setObjectName("HelloWindow");
    m_window->setWindowTitle(tr("Hello"));
    m_label->setObjectName("lblKey");
    m_label->setAlignment(Qt::AlignCenter);
    m_window->setCentralWidget(m_label);
}

HelloPlugin::~HelloPlugin()
{
    delete m_window;
}

void HelloPlugin::customEvent(QEvent *event)
{
    if (int(event->type()) != KeyEvent) {
        return;
    }
    const OrbEvent *key = static_cast<OrbEvent *>(event);
    const bool isPressed = key->getParam2() != 0;
    m_label->setText(tr("Key %1 %2").arg(key->getParam()).arg(isPressed ? tr("pressed") : tr("released")));
    m_window->setVisible(true);
}

extern "C" {

Q_DECL_EXPORT OrbPlugin *create()
{
    return new HelloPlugin;
}

Q_DECL_EXPORT void destroy(OrbPlugin *plugin)
{
    delete plugin;
}
}
