#include "deskstyle.h"

#include "orbhost.h"

#include <QFile>

// Resources of a static library are there only once someone asks for them, outside any namespace.
static void loadResources()
{
    Q_INIT_RESOURCE(desk);
    Q_INIT_RESOURCE(headunit_i18n);
}

void DeskStyle::load()
{
    static const OrbHost *loadedFor = nullptr;
    loadResources();
    if (loadedFor != OrbHost::instance()) {
        loadedFor = OrbHost::instance();
        OrbHost::instance()->addTranslationDir(QStringLiteral(":/i18n"));
    }
}

QString DeskStyle::sheet()
{
    QFile style(QStringLiteral(":/desk/desk.qss"));
    return style.open(QIODevice::ReadOnly) ? QString::fromUtf8(style.readAll()) : QString();
}
