#include "frameformat.h"

const FrameFormat &FrameFormat::raise()
{
    static const FrameFormat format = {0x2E, 2, 4, 1, 4};
    return format;
}

const FrameFormat &FrameFormat::xinHang()
{
    static const FrameFormat format = {0xF0, 1, 3, 2, 4};
    return format;
}

QByteArray FrameFormat::frame(const BoxPackage &package) const
{
    const QByteArray data = package.data.left(0xFF + overhead - shortest);
    const int size = int(data.size()) + shortest;
    QByteArray frame(3, '\0');
    frame[0] = char(start);
    frame[lengthAt] = char(size - overhead);
    frame[3 - lengthAt] = char(package.command);
    frame += data;
    frame += '\0';
    frame[size - 1] = char(checksum(frame));
    return frame;
}

int FrameFormat::frameSize(const QByteArray &bytes) const
{
    if (bytes.size() <= lengthAt) {
        return 0;
    }
    const int size = quint8(bytes.at(lengthAt)) + overhead;
    return size < shortest ? -1 : size;
}

bool FrameFormat::isGood(const QByteArray &frame) const
{
    return quint8(frame.back()) == checksum(frame);
}

BoxPackage FrameFormat::package(const QByteArray &frame) const
{
    BoxPackage package;
    package.command = quint8(frame.at(3 - lengthAt));
    package.data = frame.mid(3, frame.size() - 4);
    return package;
}

quint8 FrameFormat::checksum(const QByteArray &frame) const
{
    quint8 sum = 0;
    for (int i = sumFrom; i < frame.size() - 1; ++i) {
        sum = quint8(sum + quint8(frame.at(i)));
    }
    return quint8(~sum);
}
