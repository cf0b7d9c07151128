#ifndef ORBEVENT_H
#define ORBEVENT_H

#include "orbglobal.h"

#include <QByteArray>
#include <QEvent>
#include <QString>
#include <QVariant>

/// The framework's event record: who speaks, what about, two unsigned parameters and at most one each of a
/// byte-array, string and variant parameter. It travels like any QEvent: sent, posted, or handed to
/// OrbApplication::dispatchOrbEvent. Whoever gets one tells it by its type number, 51000 to 51015.
class ORB_EXPORT OrbEvent : public QEvent
{
public:
    /// \a source and \a id name the sender and the subject by the framework's numbers; \a type is the event
    /// type, a number within 51000..51015 or any other QEvent type number. All parameters start as 0 or unset.
    OrbEvent(unsigned int source, unsigned int id, int type);
    ~OrbEvent() override;

    unsigned int getSource() const;
    unsigned int getId() const;

    /// The two numeric parameters, 0 unless set.
    unsigned int getParam() const;
    unsigned int getParam2() const;
    void setParams(unsigned int param, unsigned int param2);

    /// The byte-array parameter; a null array when unset. A shared copy, no bytes are copied.
    QByteArray getByteArrayParam() const;
    void setByteArrayParams(const QByteArray &bytes);

    /// The string parameter; a null string when unset.
    QString getStringParam() const;
    void setStringParam(const QString &text);

    /// The variant parameter; an invalid variant when unset. A void* variant points at a record list that its
    /// sender keeps alive for the whole process.
    QVariant getVariantParam() const;
    void setVariantParam(const QVariant &value);

private:
    unsigned int m_source;
    unsigned int m_id;
    unsigned int m_param;
    unsigned int m_param2;
    QByteArray m_bytes;
    QString m_string;
    QVariant m_variant;
};

#endif // ORBEVENT_H
