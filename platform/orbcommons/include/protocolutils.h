#ifndef PROTOCOLUTILS_H
#define PROTOCOLUTILS_H

#include "orbglobal.h"

#include <QByteArray>
#include <QObject>
#include <QString>

class QIODevice;

/// The framework's package framer: reads a device, finds the packages of a framed protocol in the byte stream
/// with the help of five hooks, and paces what is written.
///
/// The device is asked every 4 ms how much has arrived (bytesAvailable), every 8 ms once it has been silent for a
/// minute. One that announces data (readyRead) is asked at once, and from its first announcement on is polled no more.
/// Never is more asked for than is there. It stays the caller's, and may be closed, or not be there yet: the framer then
/// tries to open it after 50, 100, 250 and 500 ms and from then on once a second. It does the same after a hang-up
/// (bytesAvailable below 0, or readChannelFinished), a read that brings nothing of what is there, and a failed write,
/// which close the device. Each change of state is logged once.
///
/// A candidate package (a start byte and what follows) that turns out bad costs its start byte only: the
/// search goes on one byte later, so that a good package inside or behind it is found. One that is not whole
/// 500 ms after its start byte was read is given up the same way. One of 32 bytes or more is bad as well when
/// good packages stand back to back inside it: its length byte lies, and its checksum fits by chance.
class ORB_EXPORT ProtocolUtils : public QObject
{
    Q_OBJECT

public:
    explicit ProtocolUtils(QObject *parent = nullptr);
    ~ProtocolUtils() override;

    /// Reads \a device from now on, in place of the one before; null detaches. What was received and not yet
    /// framed is dropped, what is queued for writing stays queued. Not owned: the framer lets go of it when
    /// it is destroyed.
    void attachIODevice(QIODevice *device);

    /// Queues one package. It leaves at once when the last one left long enough ago, else after the pause.
    /// The queue holds 4096 packages; a further one is refused with one log line.
    void writeDatas(const QByteArray &package);

    /// Writes \a bytes now, past the queue (an acknowledgement). Dropped while the device is closed.
    void writeDatas_direct(const QByteArray &bytes);

    /// Pause between two queued packages in milliseconds, 0 at first; negative counts as 0.
    void setWritePackageIntval(int milliseconds);

    /// Traffic log: one debug line per package each way, labelled with \a tag: `TAG recv TIME HEX`,
    /// `TAG send TIME HEX`.
    void setDebugMode(const QString &tag, bool on);

    /// Hooks that describe a protocol, asked with indexes into recvBuffer.
    ///
    /// Fewest bytes from which the size of a package can be read; at least 1. Asked when a device is
    /// attached.
    virtual int getPackageMinSize() = 0;
    /// Index of the next start of a package at or after \a from, or -1.
    virtual int findPackageStartSig(int from) = 0;
    /// Length in bytes of the whole package that starts at \a start; getPackageMinSize() bytes are there.
    /// At most 512; a larger answer, or one below getPackageMinSize(), counts as a bad candidate.
    virtual int getPackageSize(int start) = 0;
    /// Whether the \a size bytes from \a start to \a last are a good package; all of them are there.
    virtual bool isAvaliablePackage(int start, int last, int size) = 0;

public Q_SLOTS:
    /// One read-and-frame step: drains the device and emits every good package. Subclasses that override it
    /// call it. Safe to call at any time, also from a slot of recvProtocolData.
    virtual void onReadDeviceDatas();

Q_SIGNALS:
    /// One good package, from its start byte through its checksum. The array is the framer's: a receiver that
    /// keeps it makes a (shared) copy as usual.
    void recvProtocolData(const QByteArray &package);

protected:
    /// Received bytes. Only the indexes that a hook was asked about mean something; hooks do not change it.
    QByteArray recvBuffer;

private Q_SLOTS:
    void onDeviceLost();
    void onDeviceDestroyed();
    void onDataAnnounced();
    void onPollTimer();
    void onPackageSent(const QByteArray &package);
    void onReopenTimer();

private:
    void startPolling();
    void framePackages();
    bool holdsPackageBehind();
    void emitPackage(const char *bytes, int size);
    void emitPackageWatched(const char *bytes, int size);

    Q_DISABLE_COPY(ProtocolUtils)
    class Private;
    Private *m_d;
};

#endif // PROTOCOLUTILS_H
