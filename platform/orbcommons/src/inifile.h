#ifndef INIFILE_H
#define INIFILE_H

#include "initext.h"

#include <QString>
#include <memory>

/// A settings file in memory. All OrbIniConfig objects on one path share it, so that none writes back what
/// another one has changed meanwhile.
class IniFile
{
public:
    /// The file at \a path, read from the disk unless somebody has it open.
    static std::shared_ptr<IniFile> open(const QString &path);

    QString path() const { return m_path; }

    bool contains(const QString &section, const QString &key) const;
    QString value(const QString &section, const QString &key) const;

    /// False when the file could not be written; the value holds in memory, and setting it again tries again.
    bool setValue(const QString &section, const QString &key, const QString &text);

private:
    explicit IniFile(const QString &path);

    QString predecessor() const { return m_path + ".bak"; }
    bool save();

    QString m_path;
    IniText::Sections m_sections;
    QByteArray m_content; ///< of the file on the disk when that is a good one, else null
    bool m_unsaved;
};

#endif // INIFILE_H
