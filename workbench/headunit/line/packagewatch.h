#ifndef PACKAGEWATCH_H
#define PACKAGEWATCH_H

#include "orbtrace.h"

#include <QMap>
#include <QObject>
#include <QSet>

struct FrameFormat;

/// Sees what the plug-in makes of each package. A package is explained when the plug-in calls the framework
/// while it takes it, be it to show, to press a key or to say something to the box; an acknowledgement
/// explains nothing.
class PackageWatch : public QObject, public OrbTraceListener
{
    Q_OBJECT

public:
    /// \a format: how the packages look; \a known: commands that the box of this type is known to report;
    /// \a next hears everything as well and may be null, it is not owned.
    PackageWatch(const FrameFormat *format, const QSet<quint8> &known, OrbTraceListener *next,
                 QObject *parent = nullptr);

    qint64 explained() const { return m_explained; }
    /// Of a command that the type knows: what the car has said before, mostly.
    qint64 acknowledgedOnly() const;
    /// Packages of commands that the type does not know, by command.
    QMap<quint8, qint64> unknown() const;

    void called(const QString &object, const QString &call, const QVariantList &args) override;
    void eventCalled(const QString &call, const OrbEvent &event) override;
    /// A value that changed explains the package as well as a call does.
    void valueTold(const QString &name, const QVariant &value) override;

Q_SIGNALS:
    /// The plug-in calls the framework: "setAirVolume".
    void callSeen(const QString &call);
    /// The package that came last is done with.
    void packageDone(const QByteArray &package, bool isExplained);

private:
    void begin(const QByteArray &package);
    void end();

    const FrameFormat *m_format;
    QSet<quint8> m_known; // by the box's description, or since one was explained
    OrbTraceListener *m_next;
    QByteArray m_package; // under way; empty for none
    bool m_isExplained = false;
    qint64 m_explained = 0;
    QMap<quint8, qint64> m_silent; // packages that were not explained, by command
};

#endif // PACKAGEWATCH_H
