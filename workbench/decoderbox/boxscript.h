#ifndef BOXSCRIPT_H
#define BOXSCRIPT_H

#include <QObject>
#include <QQueue>
#include <QTimer>

class DecoderBox;
class QSocketNotifier;

/// Orders to a box from a file descriptor, one a line, each answered by one line. Besides what BoxCommand
/// reads:
///
///     get NAME        a property of the car: "NAME VALUE"
///     observed TOPIC  what the unit last told about it: "TOPIC VALUE"
///     state           "waits", "talks" or "silent"
///     wait MS         the lines behind it wait
///     quit            as the end of the input
///
/// An order that was carried out is answered "ok", any other line "error: " and why.
class BoxScript : public QObject
{
    Q_OBJECT

public:
    /// \a box must outlive the script; \a descriptor stays open and the caller's.
    BoxScript(DecoderBox *box, int descriptor, QObject *parent = nullptr);

signals:
    void answered(const QString &line);
    void finished();

private:
    void read();
    void work();
    QString answer(const QString &line);

    DecoderBox *m_box;
    int m_descriptor;
    QSocketNotifier *m_notifier;
    QByteArray m_unread; // the line that is not yet whole
    QQueue<QString> m_lines;
    QTimer m_waitTimer;
    bool m_isAtEnd = false;
};

#endif
