#ifndef ORBINICONFIG_H
#define ORBINICONFIG_H

#include "orbglobal.h"

#include <QObject>
#include <QString>
#include <QVariant>

class OrbIniConfigPrivate;

/// Settings kept in an ini file of the head unit's settings folder. A file is replaced whole: written beside,
/// flushed to the disk, renamed; the version before is kept as NAME.bak. A power cut leaves the old or the
/// new file, never half of one. A file that does not read as it was written counts as absent, and its
/// predecessor is used; so does one above 1 MiB. A file written by hand is taken when it parses. Objects on
/// the same file see each other's values.
class ORB_EXPORT OrbIniConfig : public QObject
{
    Q_OBJECT

public:
    /// \a fileName: name within the settings folder ("carsetting.ini"), or an absolute path. \a group: the
    /// ini section that the keys live in; may be empty. Reads the file at once; a missing file is an empty
    /// one.
    OrbIniConfig(const QString &fileName, const QString &group, QObject *parent = nullptr);
    ~OrbIniConfig() override;

    /// The stored value (ini values are texts: convert with toInt() and check), or \a defaultValue.
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;

    /// Stores a value as its text and replaces the file before it returns. Writing the value that is already
    /// there touches no file. False when the file could not be written (one debug line); the value holds in
    /// memory all the same. An empty key is refused.
    bool setValue(const QString &key, const QVariant &value);

    bool contains(const QString &key) const;

    /// Full path of the file.
    QString filePath() const;

private:
    Q_DISABLE_COPY(OrbIniConfig)
    OrbIniConfigPrivate *d;
};

#endif // ORBINICONFIG_H
