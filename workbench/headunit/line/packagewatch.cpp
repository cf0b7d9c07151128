#include "packagewatch.h"

#include "frameformat.h"

PackageWatch::PackageWatch(const FrameFormat *format, const QSet<quint8> &known, OrbTraceListener *next,
                           QObject *parent)
    : QObject(parent), m_format(format), m_known(known), m_next(next)
{}

qint64 PackageWatch::acknowledgedOnly() const
{
    qint64 count = 0;
    for (auto row = m_silent.cbegin(); row != m_silent.cend(); ++row) {
        count += m_known.contains(row.key()) ? row.value() : 0;
    }
    return count;
}

QMap<quint8, qint64> PackageWatch::unknown() const
{
    QMap<quint8, qint64> unknown;
    for (auto row = m_silent.cbegin(); row != m_silent.cend(); ++row) {
        if (!m_known.contains(row.key())) {
            unknown.insert(row.key(), row.value());
        }
    }
    return unknown;
}

void PackageWatch::called(const QString &object, const QString &call, const QVariantList &args)
{
    if (m_next) {
        m_next->called(object, call, args);
    }
    if (object == QLatin1String("ProtocolUtils") && call == QLatin1String("recvProtocolData")) {
        begin(args.value(0).toByteArray());
    } else if (call != QLatin1String("writeDatas_direct")) {
        m_isExplained = true;
    }
    Q_EMIT callSeen(call);
}

void PackageWatch::eventCalled(const QString &call, const OrbEvent &event)
{
    if (m_next) {
        m_next->eventCalled(call, event);
    }
    m_isExplained = true;
    Q_EMIT callSeen(call);
}

void PackageWatch::valueTold(const QString &name, const QVariant &value)
{
    if (m_next) {
        m_next->valueTold(name, value);
    }
    m_isExplained = true;
}

// The plug-in decodes a package at once; whatever else it does comes from the event loop.
void PackageWatch::begin(const QByteArray &package)
{
    end();
    m_package = package;
    m_isExplained = false;
    QMetaObject::invokeMethod(this, &PackageWatch::end, Qt::QueuedConnection);
}

void PackageWatch::end()
{
    if (m_package.isEmpty()) {
        return;
    }
    const QByteArray package = std::exchange(m_package, QByteArray());
    const quint8 command =
        m_format && m_format->isFrame(package) ? m_format->package(package).command : quint8(package.at(0));
    if (m_isExplained) {
        ++m_explained;
        m_known.insert(command);
    } else {
        ++m_silent[command];
    }
    Q_EMIT packageDone(package, m_isExplained);
}
