#include "streams.h"

#include "raisewire.h"

#include <QFile>

#include <random>

namespace {

QByteArray joined(const QList<QByteArray> &packages)
{
    QByteArray stream;
    for (const QByteArray &package : packages) {
        stream += package;
    }
    return stream;
}

} // namespace

QList<QByteArray> Streams::packages(int count, int dataBytes)
{
    std::mt19937 random(1);
    QList<QByteArray> packages;
    for (int i = 0; i < count; ++i) {
        QByteArray data(dataBytes, '\0');
        for (int j = 0; j < dataBytes; ++j) {
            data[j] = random() % 2 ? char(random()) : '\0';
        }
        packages.append(RaiseWire::frame(quint8(random() % 0x60 + 0x30), data));
    }
    return packages;
}

QByteArray Streams::clean(int count, int dataBytes)
{
    return joined(packages(count, dataBytes));
}

QByteArray Streams::corrupted(int count, int distance)
{
    std::mt19937 random(2);
    QList<QByteArray> all = packages(count);
    for (int i = 0; i < all.size(); i += distance) {
        QByteArray &package = all[i];
        const int at = int(random() % static_cast<unsigned int>(package.size()));
        package[at] = char(package.at(at) ^ char(random() % 255 + 1));
    }
    return joined(all);
}

QList<QByteArray> Streams::boxPackages()
{
    QList<QByteArray> packages;
    QFile file(QStringLiteral(BOX_TRAFFIC));
    file.open(QIODevice::ReadOnly);
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (!line.isEmpty() && !line.startsWith('#')) {
            packages << QByteArray::fromHex(line);
        }
    }
    return packages;
}

QByteArray Streams::harmed(QByteArray package, Fault fault, int at, char byte)
{
    switch (fault) {
    case Changed:
        package[at] = byte;
        break;
    case Missing:
        package.remove(at, 1);
        break;
    case Inserted:
        package.insert(at, byte);
        break;
    }
    return package;
}

QByteArray Streams::noisy(int count)
{
    std::mt19937 random(3);
    static const char answers[] = {'\xFF', '\xF0', '\xF3', '\xFC'};
    QByteArray stream;
    for (const QByteArray &package : packages(count)) {
        stream += package;
        stream += answers[random() % 4];
        for (unsigned int i = random() % 8; i > 0; --i) {
            stream += char(random());
        }
    }
    return stream;
}

QByteArray Streams::startBytes(int bytes)
{
    return QByteArray(bytes, '\x2E');
}

QByteArray Streams::longLengths(int bytes)
{
    return QByteArray("\x2E\x20\xFF").repeated(bytes / 3);
}
