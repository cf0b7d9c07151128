#ifndef PSEUDOTERMINAL_H
#define PSEUDOTERMINAL_H

#include "slowline.h"
#include "terminalpair.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

/// A box's end of the serial line, on the event loop. The unit opens devicePath() as its serial port.
///
/// The unit may come, go and come back. While it is away the terminal looks for it 50 times a second and lets
/// nothing wait for it. Both directions are as slow as setBaud() says; what the unit writes faster piles up on
/// its side, as behind a serial chip.
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
    QString devicePath() const { return m_terminal ? m_terminal->devicePath() : QString(); }

    /// \a baud: bits a second, ten a byte; 0, as at first, for bytes that take no time.
    void setBaud(int baud);
    /// How long \a count bytes are on their way, in ms.
    int duration(int count) const { return m_out.duration(count); }

    /// Whether the line can be pulled out: only one that the unit finds again by its link.
    bool canUnplug() const { return !m_linkName.isEmpty(); }
    /// The device and its link are gone, as when an adapter is pulled out.
    void unplug();
    /// A new device stands behind the link. False, with one sentence in \a error, when there is none to have.
    bool replug(QString *error);
    bool isPlugged() const { return m_terminal != nullptr; }
    /// Whether the unit has the device open.
    bool isUnitThere() const { return m_unitThere; }

    /// Sends \a bytes without waiting, after \a pauseMs in which the line rests. False when they were
    /// dropped: nobody is there to read them, or the unit has let 64 KiB pile up.
    bool write(const QByteArray &bytes, int pauseMs = 0);

Q_SIGNALS:
    void received(const QByteArray &bytes);
    void unitCame();
    void unitLeft();

private:
    bool makeLink(const QString &link, QString *error);
    void removeLink();
    void lookForUnit();
    void drain();
    void takeIn(const QByteArray &bytes);
    void putOut(const QByteArray &bytes);
    void flush();
    void setUnitThere(bool there);

    std::unique_ptr<TerminalPair> m_terminal; // outlives the notifiers on it; none while the line is pulled
    QString m_linkName;
    QString m_link; // once it is made
    SlowLine m_in;
    SlowLine m_out;
    bool m_unitThere = false;
    QByteArray m_unsent;
    QTimer m_lookTimer;
    std::unique_ptr<QSocketNotifier> m_readNotifier;
    std::unique_ptr<QSocketNotifier> m_writeNotifier;
};

#endif // PSEUDOTERMINAL_H
