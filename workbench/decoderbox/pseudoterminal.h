#ifndef PSEUDOTERMINAL_H
#define PSEUDOTERMINAL_H

#include "terminalpair.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

/// A box's end of the serial line, on the event loop. The unit opens devicePath() as its serial port.
///
/// The unit may come, go and come back. While it is away the terminal looks for it 50 times a second and lets
/// nothing wait for it.
class PseudoTerminal : public QObject
{
    Q_OBJECT

public:
    explicit PseudoTerminal(QObject *parent = nullptr);
    ~PseudoTerminal() override;

    /// Makes the terminal and, unless \a link is empty, a symbolic link to it of that name. A link that is
    /// already there is replaced in one step; anything else of that name stays and is an error. False, with
    /// one sentence in \a error, when something fails. The link goes with the terminal.
    bool open(const QString &link, QString *error);

    /// "/dev/pts/7"; empty before open().
    QString devicePath() const { return m_terminal.devicePath(); }
    /// Whether the unit has the device open.
    bool isUnitThere() const { return m_unitThere; }

    /// Sends \a bytes without waiting. False when they were dropped: nobody is there to read them, or the
    /// unit has let 64 KiB pile up.
    bool write(const QByteArray &bytes);

Q_SIGNALS:
    void received(const QByteArray &bytes);
    void unitCame();
    void unitLeft();

private:
    bool makeLink(const QString &link, QString *error);
    void lookForUnit();
    void drain();
    void flush();
    void setUnitThere(bool there);

    TerminalPair m_terminal; // outlives the notifiers on it
    QString m_link;
    bool m_unitThere = false;
    QByteArray m_unsent;
    QTimer m_lookTimer;
    std::unique_ptr<QSocketNotifier> m_readNotifier;
    std::unique_ptr<QSocketNotifier> m_writeNotifier;
};

#endif // PSEUDOTERMINAL_H
