#include "xinhangupdater.h"

#include "packageview.h"
#include "unitlink.h"
#include "xinhangbox.h"

#include "filesystemservice.h"
#include "updatedialog.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

const quint8 UpdateCommand = 0x86;

// First data byte both ways; the second one the unit sends is 0.
enum Step { Start = 0x00, Ready = 0x01, Packet = 0x02, End = 0x03 };

enum DiskStatus { DiskGone = 0, DiskPresent = 1 };

const int PacketSize = 128;
const char Padding = '\xFF';
const qint64 MaximumFileSize = qint64(64) * 1024 * 1024;

// Numbers of the dialog.
const int DecoderFirmware = 1;
const int FailureCode = 2;

QByteArray message(Step step)
{
    const char data[] = {char(step), 0x00};
    return QByteArray(data, sizeof data);
}

QByteArray bigEndian(quint32 number)
{
    const quint32 bytes = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&bytes), sizeof bytes);
}

} // namespace

XinHangUpdater::XinHangUpdater(XinHangBox &box, QObject *parent)
    : QObject(parent), m_box(box), m_fileSize(0), m_packetCount(0), m_missing(0)
{}

XinHangUpdater::~XinHangUpdater()
{
    delete m_dialog.data();
}

void XinHangUpdater::setCarType(quint16 carType)
{
    m_fileName = carType == 1 ? QString::fromLatin1("can_xinhang.bin")
                              : QString::fromLatin1("can_xinhang_%1.bin").arg(carType);
}

void XinHangUpdater::onDiskStatusChange(int disk, int status)
{
    if (status == DiskGone) {
        // QUIRK xinhang-any-disk-fails: whichever disk goes, and also after a finished update.
        showFailure();
        return;
    }
    if (status != DiskPresent) {
        return;
    }
    // QUIRK xinhang-path-kept: a path once found stays until the box reports the end of an update, as long as
    // there is a file.
    if (!QFileInfo(m_filePath).isFile()) {
        m_filePath = findUpdateFile(disk);
    }
    if (m_filePath.isEmpty()) {
        return;
    }
    if (!m_dialog) {
        m_dialog = new UpdateDialog;
        connect(m_dialog, SIGNAL(acceptUpdate()), this, SLOT(onStartUpdateMCU()));
    }
    m_dialog->showUpdateDlg(DecoderFirmware);
}

QString XinHangUpdater::findUpdateFile(int number) const
{
    if (m_fileName.isEmpty()) {
        return QString();
    }
    const QStringList partitions = FileSystemService::getDiskPartitionPaths(number);
    for (int i = 0; i < partitions.size(); ++i) {
        const QString path = partitions.at(i) + QLatin1Char('/') + m_fileName;
        // A disk could hold a link to anything that the unit may read.
        const QString disk = QFileInfo(partitions.at(i)).canonicalFilePath();
        const QFileInfo file(path);
        if (file.isFile() && file.canonicalFilePath().startsWith(disk + QLatin1Char('/'))) {
            qDebug() << "find update file:" << path;
            return path;
        }
    }
    return QString();
}

/// Plain files only: a pipe with the file's name would hold up the whole unit.
bool XinHangUpdater::openFile()
{
    m_file.reset(new QFile(m_filePath));
    return QFileInfo(m_filePath).isFile() && m_file->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void XinHangUpdater::onStartUpdateMCU()
{
    setEverythingGiven(false);
    bool usable = openFile();
    if (usable && m_file->size() > MaximumFileSize) {
        qWarning() << "update file too large:" << m_filePath << m_file->size();
        usable = false;
    }
    if (!usable) {
        m_file.reset();
        showFailure();
        return;
    }
    m_packetCount = 0;
    m_fileTime = QFileInfo(m_filePath).lastModified();
    m_box.send(UpdateCommand, message(Start));
}

void XinHangUpdater::onBoxMessage(const PackageView &d)
{
    switch (d.d(0)) {
    case Ready:
        sendPacketCount();
        break;
    case Packet:
        // d[1] unknown, d[2..5] packet number
        onPacketRequest(d.u32be(2));
        break;
    case End:
        finish();
        break;
    default:
        break;
    }
}

void XinHangUpdater::sendPacketCount()
{
    if (!m_file || !m_file->isOpen()) {
        showFailure();
        return;
    }
    m_fileSize = m_file->size();
    m_packetCount = quint32((m_fileSize + PacketSize - 1) / PacketSize);
    m_given = QBitArray(int(m_packetCount));
    m_missing = m_packetCount;
    setEverythingGiven(false);
    qDebug() << "update file size:" << m_fileSize;
    qDebug() << "update package count:" << m_packetCount;
    m_box.send(UpdateCommand, message(Ready) + bigEndian(m_packetCount));
}

void XinHangUpdater::onPacketRequest(quint32 number)
{
    qDebug() << "recv update packageid:" << number;
    if (!m_file) {
        showFailure();
        return;
    }
    const bool announced = number < m_packetCount;
    QByteArray packet;
    if (!announced || !readPacket(number, &packet)) {
        setEverythingGiven(false);
        showFailure();
        // A disk that was pulled out and put back has the file again, under a new handle. The box asks again.
        if (announced) {
            openFile();
        }
        return;
    }
    m_box.send(UpdateCommand, message(Packet) + bigEndian(number) + packet);
    noteGiven(number);
    const float progress = float(number) / float(m_packetCount) * 100.0f;
    const int percent = UnitLink::truncated(progress);
    if (m_dialog) {
        m_dialog->updatePercent(percent);
    }
    qDebug() << "update percent:" << percent;
}

/// False also for a file that is another than was announced: the box must not take half of each for firmware.
bool XinHangUpdater::readPacket(quint32 number, QByteArray *packet)
{
    const QFileInfo now(m_filePath);
    if (now.size() != m_fileSize || now.lastModified() != m_fileTime) {
        return false;
    }
    const qint64 position = qint64(number) * PacketSize;
    const qint64 length = qMin<qint64>(PacketSize, m_fileSize - position);
    packet->fill(Padding, PacketSize);
    return m_file->isOpen() && m_file->seek(position) && m_file->read(packet->data(), length) == length;
}

void XinHangUpdater::noteGiven(quint32 number)
{
    if (!m_given.testBit(int(number))) {
        m_given.setBit(int(number));
        --m_missing;
    }
    setEverythingGiven(m_missing == 0);
}

void XinHangUpdater::setEverythingGiven(bool given)
{
    if (m_dialog) {
        m_dialog->setProperty("everythingGiven", given);
    }
}

void XinHangUpdater::finish()
{
    qDebug() << "End Update Can!";
    m_filePath.clear();
    m_packetCount = 0;
    m_file.reset();
    m_box.send(UpdateCommand, message(End));
}

void XinHangUpdater::showFailure()
{
    if (m_dialog) {
        m_dialog->setUpdateFailed(FailureCode);
    }
}
