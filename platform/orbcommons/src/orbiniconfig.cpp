#include "orbiniconfig.h"

#include "inifile.h"
#include "orbhost.h"

#include <QDir>

class OrbIniConfigPrivate
{
public:
    std::shared_ptr<IniFile> file;
    QString group;
};

OrbIniConfig::OrbIniConfig(const QString &fileName, const QString &group, QObject *parent)
    : QObject(parent), d(new OrbIniConfigPrivate)
{
    const QDir folder(QDir(OrbHost::instance()->settingsDir()).absolutePath());
    d->file = IniFile::open(QDir::cleanPath(folder.absoluteFilePath(fileName)));
    d->group = group;
}

OrbIniConfig::~OrbIniConfig()
{
    delete d;
}

QVariant OrbIniConfig::value(const QString &key, const QVariant &defaultValue) const
{
    return contains(key) ? QVariant(d->file->value(d->group, key)) : defaultValue;
}

bool OrbIniConfig::setValue(const QString &key, const QVariant &value)
{
    return !key.isEmpty() && d->file->setValue(d->group, key, value.toString());
}

bool OrbIniConfig::contains(const QString &key) const
{
    return d->file->contains(d->group, key);
}

QString OrbIniConfig::filePath() const
{
    return d->file->path();
}
