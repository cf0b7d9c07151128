#ifndef ORBEVENT_H
#define ORBEVENT_H

#include "orbglobal.h"

#include <QByteArray>
#include <QEvent>
#include <QString>
#include <QVariant>

/// The framework's event record: who speaks, what about, two unsigned parameters and at most one each of a
/// byte-array, string and variant parameter. It travels like any QEvent: sent, posted, or handed to
/// OrbApplication::dispatchOrbEvent.
class ORB_EXPORT OrbEvent : public QEvent
{
public:
    /// Event types between the framework and its plug-ins.
    enum OrbEventType {
        FirstType = 51000,
        ShowAppType =
            51001, ///< show the application with id getParam() (to the application: param2 is the id)
        ReturnType = 51003,      ///< leave what was shown last
        AppProtocolType = 51005, ///< a data packet of another application: getByteArrayParam()
        KeyType = 51006,         ///< getParam(): key code; getParam2(): 0 released, 1 pressed, 2 auto-repeat
        NotifyType = 51007,      ///< notification, getParam() says which
        AppStateType = 51011,    ///< getParam(): state bits, getParam2(): the bits that changed
        AppIconType = 51013, ///< getParam(): application id, getStringParam(): "normal icon,highlighted icon"
        LastType = 51015
    };

    /// \a source and \a id name the sender and the subject by the framework's numbers; \a type is the event
    /// type, one of OrbEventType or any other QEvent type number. All parameters start as 0 or unset.
    OrbEvent(unsigned int source, unsigned int id, int type);
    ~OrbEvent() override;

    /// True when \a event may be taken for an OrbEvent: its type lies in FirstType..LastType.
    static bool isOrbEvent(const QEvent *event);

    unsigned int getSource() const { return m_source; }
    unsigned int getId() const { return m_id; }

    /// The two numeric parameters, 0 unless set.
    unsigned int getParam() const { return m_param; }
    unsigned int getParam2() const { return m_param2; }
    void setParams(unsigned int param, unsigned int param2);

    /// The byte-array parameter; a null array when unset. A shared copy, no bytes are copied.
    QByteArray getByteArrayParam() const { return m_bytes; }
    void setByteArrayParams(const QByteArray &bytes);

    /// The string parameter; a null string when unset.
    QString getStringParam() const { return m_string; }
    void setStringParam(const QString &text);

    /// The variant parameter; an invalid variant when unset. A void* variant points at a record list that its
    /// sender keeps alive for the whole process.
    QVariant getVariantParam() const { return m_variant; }
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
