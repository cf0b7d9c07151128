#ifndef LINEINSPECTOR_H
#define LINEINSPECTOR_H

#include "inspection.h"

#include "orbtrace.h"

#include <QObject>
#include <QSet>

#include <memory>

class HeadUnit;
class ScreenReader;

/// Inspects the line of a unit that runs: brings together what the line's recorder and the call trace tell.
///
/// The plug-in decodes a package at once, so what it calls until the events are through that it posted meanwhile is
/// caused by the package. What a timer brings, a finger, or a dialog after it was opened is not.
class LineInspector : public QObject, public OrbTraceListener
{
    Q_OBJECT

public:
    /// For the decoder of CAN-bus type \a type. Listens to the trace from now on, and hands everything on to whoever
    /// listened before.
    explicit LineInspector(int type, QObject *parent = nullptr);
    /// Listens no more.
    ~LineInspector() override;

    /// Hears the line and the keys of \a unit, also what its recorder has kept; it is not owned.
    void follow(HeadUnit *unit);
    /// From now on a package that causes no call is asked what it changed on the plug-in's screens, each text as a call
    /// "screen WINDOW.WIDGET TEXT". At most \a perSecond packages a second are, those that differ from the one before; 0
    /// for all.
    void readScreens(int perSecond);
    /// While \a isDeaf is set, calls belong to nothing and make no row.
    void setDeaf(bool isDeaf) { m_isDeaf = isDeaf; }
    /// Takes the next record of a line that is not a unit's own.
    void feed(const LineRecord &record);

    Inspection *inspection() { return &m_inspection; }
    /// Whether no package or key is under way, so that each row has all that it causes.
    bool isSettled() const { return m_turns == 0; }
    /// Lets the time pass up to now: what waited for the rest of a package does so no longer.
    void catchUp();

    void called(const QString &object, const QString &call, const QVariantList &args) override;
    void eventCalled(const QString &call, const OrbEvent &event) override;
    void valueTold(const QString &name, const QVariant &value) override;

Q_SIGNALS:
    /// All that a package or a key has caused is there.
    void settled();

private:
    void begin();
    void endSoon();
    void end();
    void lookBefore();
    bool isWorthALook(const InspectionRow &row) const;
    void lookAfter();
    qint64 now() const;

    Inspection m_inspection;
    OrbTraceListener *m_next;
    qint64 m_origin = -1; // of the line's time on the tap's clock; -1 before anything was heard
    std::unique_ptr<ScreenReader> m_screens; // null: nobody reads them
    bool m_isDeaf = false;
    int m_screensPerSecond = 0;
    QSet<quint8> m_callers;   // commands whose last package caused calls
    qint64 m_looked = 0;      // microseconds of the last package whose screens were read
    bool m_isLooking = false; // at what the package under way changes
    int m_turns = 0;          // under way, of packages and keys that end() has not come for yet
};

#endif // LINEINSPECTOR_H
