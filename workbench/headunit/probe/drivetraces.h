#ifndef DRIVETRACES_H
#define DRIVETRACES_H

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QVector>

/// What passed over the line in the golden drives of a car: the traces that lie beside them.
class DriveTraces
{
public:
    /// Reads \a folder/CAR.trace and \a folder/CAR-*.trace. False, with one sentence in \a error, when one cannot be
    /// read. A car without drives is fine.
    bool read(const QString &folder, const QString &car, QString *error);

    /// Whole frames that the unit took.
    const QVector<QByteArray> &received() const { return m_received; }
    /// Whole frames that it sent, in the order in which they first came, with the names of their drives.
    const QVector<QByteArray> &sent() const { return m_sent; }
    QStringList drivesOf(const QByteArray &sent) const { return m_drives.value(sent); }

private:
    QVector<QByteArray> m_received;
    QVector<QByteArray> m_sent;
    QMap<QByteArray, QStringList> m_drives;
};

#endif // DRIVETRACES_H
