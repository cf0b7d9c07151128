#ifndef SERIALTAP_H
#define SERIALTAP_H

#include <QByteArray>
#include <QList>
#include <QString>

class QIODevice;
struct PortSettings;

/// Sees what passes over the process's serial line, below whoever reads and writes it: for a recorder, for a
/// picture of the line's health. It changes nothing and is asked nothing. All calls come on the thread of the
/// port; none of them may add or remove an observer, or touch the port.
///
/// `at` is always a moment of SerialTap::now().
class Q_DECL_EXPORT SerialTapObserver
{
public:
    SerialTapObserver() = default;
    SerialTapObserver(const SerialTapObserver &) = delete;
    SerialTapObserver &operator=(const SerialTapObserver &) = delete;
    /// Removes it from the tap.
    virtual ~SerialTapObserver();

    /// The device \a port is open; \a settings is valid during the call. What is open when an observer is
    /// added is not told.
    virtual void opened(const QString &port, const PortSettings &settings, qint64 at);

    /// \a port did not open. \a systemError: an errno value (ENOENT, EACCES, EBUSY; ENOTTY for what is no
    /// terminal). Told at each try: a unit that waits for its line tries once a second.
    virtual void openFailed(const QString &port, int systemError, qint64 at);

    /// \a bytes, never none, have come from the box. A call is one chunk: what came without a pause of 2 ms
    /// and was read at once. \a at is when its first byte was there, within a millisecond: up to 4 ms before
    /// this call, since a polled port is read every 4 ms; calls come in the order of their times.
    virtual void received(const QByteArray &bytes, qint64 at);

    /// The line has taken \a bytes, never none, for the box.
    virtual void sent(const QByteArray &bytes, qint64 at);

    /// The port is closed. \a isLost: because the line had hung up (the device was unplugged, the far end
    /// has gone) or failed; else its owner wanted it.
    virtual void closed(bool isLost, qint64 at);
};

/// The process's serial tap. It belongs to the stand-alone serial layer; where the library itself stands in
/// that layer's place nobody calls the observers, and isWired() says so.
namespace SerialTap {

/// False when the program was built with a serial library that tells nothing.
Q_DECL_EXPORT bool isWired();

/// \a observer, not owned, hears everything from now on; adding it again does nothing. One that is added
/// before the plug-in is loaded hears the line being opened.
Q_DECL_EXPORT void add(SerialTapObserver *observer);
/// Does nothing for one that was not added.
Q_DECL_EXPORT void remove(SerialTapObserver *observer);

/// Writes \a bytes to the open line, as the unit does, between what the unit writes: for a word to the box that
/// the unit does not say by itself. Observers hear it. False when no line is open, or it takes less than all.
Q_DECL_EXPORT bool send(const QByteArray &bytes);

/// The port that is open, null for none; for the serial layer.
Q_DECL_EXPORT void setPort(QIODevice *port);

/// Those that hear, in the order in which they were added; for the serial layer.
Q_DECL_EXPORT const QList<SerialTapObserver *> &observers();

/// Microseconds of the monotonic clock, or of the virtual one where that runs.
Q_DECL_EXPORT qint64 now();

} // namespace SerialTap

#endif // SERIALTAP_H
