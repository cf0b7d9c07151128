#ifndef LOGINSPECTION_H
#define LOGINSPECTION_H

#include "headunit.h"
#include "lineinspector.h"
#include "linereplayer.h"
#include "screenpath.h"
#include "unitscreen.h"

#include <QTemporaryDir>

/// Inspects a log: the rows are the log's own, with its times and acknowledgements, and the calls are those that the
/// plug-in makes of its packages now. Needs the OrbApplication, best on the virtual clock; one per process, since the
/// plug-in lives until that ends.
class LogInspection : public QObject
{
    Q_OBJECT

public:
    /// \a type: the CAN-bus type of the decoder that takes the packages. \a log: its path, and how it is read.
    LogInspection(int type, const ReplayOptions &log, QObject *parent = nullptr);
    ~LogInspection() override;

    /// Before run(): has the unit's screens opened by \a steps, and asks each package that causes no call what it
    /// changes on them.
    void readScreens(const QVector<ScreenPath::Step> &steps);
    /// Runs the plug-in \a plugin on all of the log. False, with one sentence in \a error, when that cannot be done.
    bool run(const QString &plugin, QString *error);

    LineInspector *inspector() { return &m_inspector; }
    /// What could not be read, in words.
    QStringList problems() const;

Q_SIGNALS:
    /// A row to which nothing will be added, in order.
    void rowDone(const InspectionRow &row);

private:
    bool open(QString *error);
    void openScreens();
    void follow(const LineRecord &played);
    void passOn(qint64 until);

    const ReplayOptions m_options;
    const int m_type;
    QTemporaryDir m_settings;
    std::unique_ptr<LineLogReader> m_log;
    LineInspector m_inspector;
    LineReplayer m_replayer;
    UnitScreen m_screen;
    std::unique_ptr<HeadUnit> m_unit;
    QVector<ScreenPath::Step> m_steps;
    bool m_isOpen = false; // the unit's line
    qint64 m_next = 0;     // number of the row that is passed on next
};

#endif // LOGINSPECTION_H
