#include "deskmemory.h"

#include "deskwindow.h"
#include "orbhost.h"
#include "unitpage.h"

#include <QLocale>

namespace {

const char *const LanguageKey = "language";
const char *const GeometryKey = "window";
const char *const FoldedKey = "panelFolded";
const char *const TypeKey = "canBusType";

// "zh_CN" of "zh-Hans-CN", "de" of "de-AT".
QString systemLanguage()
{
    for (const QString &wanted : QLocale::system().uiLanguages()) {
        for (const QString &language : UnitPage::languages()) {
            if (wanted.left(2) == language.left(2)) {
                return language;
            }
        }
    }
    return QStringLiteral("en");
}

} // namespace

QString DeskMemory::language() const
{
    const QString chosen = m_settings.value(LanguageKey).toString();
    return UnitPage::languages().contains(chosen) ? chosen : systemLanguage();
}

int DeskMemory::canBusType() const
{
    return m_settings.value(TypeKey).toInt();
}

void DeskMemory::restore(DeskWindow *desk) const
{
    desk->chooseLanguage(language());
    desk->restoreGeometry(m_settings.value(GeometryKey).toByteArray());
    desk->foldPanel(m_settings.value(FoldedKey).toBool());
}

void DeskMemory::store(const DeskWindow *desk, int type)
{
    const QString now = OrbHost::instance()->language();
    if (now != language()) { // the system's language is followed until another one is chosen
        m_settings.setValue(LanguageKey, now);
    }
    m_settings.setValue(GeometryKey, desk->saveGeometry());
    m_settings.setValue(FoldedKey, desk->isPanelFolded());
    if (type != 0) {
        m_settings.setValue(TypeKey, type);
    }
}
