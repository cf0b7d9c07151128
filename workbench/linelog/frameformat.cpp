#include "frameformat.h"

#include <cstring>

const FrameFormat &FrameFormat::raise()
{
    static const FrameFormat format = {0x2E, 2, 4, 1, 4, "raise", "\xFF\xF0\xF3"};
    return format;
}

const FrameFormat &FrameFormat::xinHang()
{
    static const FrameFormat format = {0xF0, 1, 3, 2, 4, "xinhang", ""};
    return format;
}

const FrameFormat *FrameFormat::find(const QString &name)
{
    for (const FrameFormat *format : {&raise(), &xinHang()}) {
        if (name.compare(QLatin1String(format->name), Qt::CaseInsensitive) == 0) {
            return format;
        }
    }
    return nullptr;
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
    frame[size - 1] = char(checksum(frame.constData(), size));
    return frame;
}

int FrameFormat::frameSize(const char *bytes, int available) const
{
    if (available <= lengthAt) {
        return 0;
    }
    const int size = quint8(bytes[lengthAt]) + overhead;
    return size < shortest ? -1 : size;
}

bool FrameFormat::isGood(const char *frame, int size) const
{
    return quint8(frame[size - 1]) == checksum(frame, size);
}

bool FrameFormat::isAnswer(char byte) const
{
    return byte != '\0' && std::strchr(answers, byte);
}

bool FrameFormat::isFrame(const QByteArray &bytes) const
{
    const int size = int(bytes.size());
    return size > 0 && quint8(bytes.at(0)) == start && frameSize(bytes.constData(), size) == size &&
           isGood(bytes.constData(), size);
}

BoxPackage FrameFormat::package(const QByteArray &frame) const
{
    BoxPackage package;
    package.command = quint8(frame.at(3 - lengthAt));
    package.data = frame.mid(3, frame.size() - 4);
    return package;
}

quint8 FrameFormat::checksum(const char *frame, int size) const
{
    quint8 sum = 0;
    for (int i = sumFrom; i < size - 1; ++i) {
        sum = quint8(sum + quint8(frame[i]));
    }
    return quint8(~sum);
}
