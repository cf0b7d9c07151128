#include "serialtap.h"

#include <QIODevice>

#include <ctime>

namespace {

QList<SerialTapObserver *> &list()
{
    static QList<SerialTapObserver *> observers;
    return observers;
}

QIODevice *openPort = nullptr;

} // namespace

SerialTapObserver::~SerialTapObserver()
{
    SerialTap::remove(this);
}

void SerialTapObserver::opened(const QString &, const PortSettings &, qint64) {}

void SerialTapObserver::openFailed(const QString &, int, qint64) {}

void SerialTapObserver::received(const QByteArray &, qint64) {}

void SerialTapObserver::sent(const QByteArray &, qint64) {}

void SerialTapObserver::closed(bool, qint64) {}

bool SerialTap::isWired()
{
    return SERIALTAP_WIRED;
}

void SerialTap::add(SerialTapObserver *observer)
{
    if (!list().contains(observer)) {
        list().append(observer);
    }
}

void SerialTap::remove(SerialTapObserver *observer)
{
    list().removeAll(observer);
}

const QList<SerialTapObserver *> &SerialTap::observers()
{
    return list();
}

bool SerialTap::send(const QByteArray &bytes)
{
    return openPort && openPort->write(bytes) == bytes.size();
}

void SerialTap::setPort(QIODevice *port)
{
    openPort = port;
}

qint64 SerialTap::now()
{
    timespec time;
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64(time.tv_sec) * 1000000 + time.tv_nsec / 1000;
}
