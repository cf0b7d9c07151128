#include "inifile.h"

#include "safefile.h"

#include <QDebug>
#include <QFile>
#include <QHash>

namespace {

/// Settings are a few hundred bytes; anything as large as this is none of our files.
const int MaxFileBytes = 1024 * 1024;

} // namespace

IniFile::IniFile(const QString &path) : m_path(path), m_unsaved(false)
{
    if (!QFile::exists(path) && !QFile::exists(predecessor())) {
        return;
    }
    const QByteArray content = SafeFile::read(path, MaxFileBytes);
    if (IniText::read(content, &m_sections)) {
        m_content = content;
        return;
    }
    const bool found = IniText::read(SafeFile::read(predecessor(), MaxFileBytes), &m_sections);
    qDebug("Settings: %s is damaged or gone, %s", qPrintable(path),
           found ? "its predecessor is used" : "it counts as empty");
}

std::shared_ptr<IniFile> IniFile::open(const QString &path)
{
    static QHash<QString, std::weak_ptr<IniFile>> openFiles;
    std::shared_ptr<IniFile> file = openFiles.value(path).lock();
    if (!file) {
        file.reset(new IniFile(path));
        openFiles[path] = file;
    }
    return file;
}

bool IniFile::contains(const QString &section, const QString &key) const
{
    return m_sections.value(section).contains(key);
}

QString IniFile::value(const QString &section, const QString &key) const
{
    return m_sections.value(section).value(key);
}

bool IniFile::setValue(const QString &section, const QString &key, const QString &text)
{
    if (contains(section, key) && value(section, key) == text && !m_unsaved) {
        return true;
    }
    m_sections[section].insert(key, text);
    m_unsaved = !save();
    return !m_unsaved;
}

bool IniFile::save()
{
    const QByteArray content = IniText::write(m_sections);
    if (content.size() > MaxFileBytes) {
        qDebug("Settings: %s would grow past %d bytes", qPrintable(m_path), MaxFileBytes);
        return false;
    }
    // The predecessor is renewed first: from here on one of the two files is good at any moment.
    if (!m_content.isNull() && !SafeFile::replace(predecessor(), m_content)) {
        return false;
    }
    if (!SafeFile::replace(m_path, content)) {
        return false;
    }
    m_content = content;
    return true;
}
