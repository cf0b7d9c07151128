#include "drivetraces.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

bool DriveTraces::read(const QString &folder, const QString &car, QString *error)
{
    QSet<QByteArray> seen;
    const QDir dir(folder);
    for (const QString &name : dir.entryList({car + ".trace", car + "-*.trace"}, QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            *error = QString("%1 cannot be read: %2").arg(file.fileName(), file.errorString());
            return false;
        }
        const QString drive = name.section('.', 0, 0);
        for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
            if (!line.contains("\"recvProtocolData\"") && !line.contains("\"writeDatas")) {
                continue;
            }
            const QJsonObject row = QJsonDocument::fromJson(line).object();
            const QByteArray frame =
                QByteArray::fromHex(row.value("args").toArray().at(0).toString().toLatin1());
            if (row.value("call").toString() == "recvProtocolData") {
                if (!seen.contains(frame)) {
                    seen << frame;
                    m_received << frame;
                }
            } else if (frame.size() > 1) {
                QStringList &drives = m_drives[frame];
                if (drives.isEmpty()) {
                    m_sent << frame;
                }
                if (!drives.contains(drive)) {
                    drives << drive;
                }
            }
        }
    }
    return true;
}
