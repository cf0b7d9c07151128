#ifndef XINHANGUPDATER_H
#define XINHANGUPDATER_H

#include <QBitArray>
#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QScopedPointer>
#include <QString>

class PackageView;
class QFile;
class UpdateDialog;
class XinHangBox;

/// Updates the box's firmware from a file on a removable disk: finds the file, asks the user, and hands the
/// box the packets that it asks for. The box drives the pace and may ask for any packet again; nothing is
/// sent unasked. Every failure shows in the dialog and leaves the state as it is, so that the box or the user
/// can try again. The framework's dialog knows no call for the end; it is told by a property when the box has
/// every packet (everythingGiven), which a dialog that knows nothing of it leaves alone.
class XinHangUpdater : public QObject
{
    Q_OBJECT

public:
    XinHangUpdater(XinHangBox &box, QObject *parent);
    ~XinHangUpdater() override;

    /// The car type, 1 to 65535, decides the name of the file to look for; without one nothing is searched.
    void setCarType(quint16 carType);

    /// The box's side of the dialogue; unknown steps are ignored.
    void onBoxMessage(const PackageView &d);

public Q_SLOTS:
    /// \a status 1: disk number \a disk is there, offer its update file; 0: it is gone. Others are ignored.
    void onDiskStatusChange(int disk, int status);

    /// The user wants the update: opens the file and tells the box. A file above 64 MiB is refused.
    void onStartUpdateMCU();

private:
    QString findUpdateFile(int number) const;
    bool openFile();
    void sendPacketCount();
    void onPacketRequest(quint32 number);
    bool readPacket(quint32 number, QByteArray *packet);
    void noteGiven(quint32 number);
    void setEverythingGiven(bool given);
    void finish();
    void showFailure();

    XinHangBox &m_box;
    QPointer<UpdateDialog> m_dialog;
    QString m_fileName;
    QString m_filePath; // empty: none found
    QScopedPointer<QFile> m_file;
    qint64 m_fileSize;    // as announced to the box
    QDateTime m_fileTime; // of its last change, when the user accepted it
    quint32 m_packetCount;
    QBitArray m_given; // by packet number, since the count was announced
    quint32 m_missing; // packets that were not given yet
};

#endif // XINHANGUPDATER_H
