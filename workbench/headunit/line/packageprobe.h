#ifndef PACKAGEPROBE_H
#define PACKAGEPROBE_H

#include "headunit.h"
#include "packagewatch.h"
#include "terminalpair.h"

#include <QTemporaryDir>

#include <memory>

/// Tries packages on the plug-in of one type, on the virtual clock: which of them does it explain? Windows of
/// the plug-in are open, so a package that only they show is explained as well. Needs the OrbApplication; one
/// per process, since the plug-in lives until that ends.
class PackageProbe : public QObject
{
    Q_OBJECT

public:
    /// \a format: how the packages look.
    PackageProbe(int type, const FrameFormat &format, QObject *parent = nullptr);
    ~PackageProbe() override;

    /// Starts a unit with the plug-in \a path. False, with one sentence in \a error, when it does not run.
    bool start(const QString &path, QString *error);

    /// Which of \a packages, whole frames and no two the same, the plug-in explains. A state that the car is
    /// in already explains itself by nothing: such a package is tried again behind others of its command.
    QVector<bool> explained(const QVector<QByteArray> &packages);

private:
    bool tryOne(const QByteArray &package);
    bool tryBehindOthers(const QVector<QByteArray> &packages, int index);
    void play(const QByteArray &package);
    void pass(int ms);

    const int m_type;
    const FrameFormat &m_format;
    QTemporaryDir m_settings;
    TerminalPair m_terminal;
    HeadUnit m_unit;
    PackageWatch m_watch;
    bool m_isExplained = false;
};

#endif // PACKAGEPROBE_H
