#ifndef LINEREPORTER_H
#define LINEREPORTER_H

#include "linestatus.h"

#include <QObject>
#include <QTimer>

class DecoderBox;
class LineHealth;

/// Asks four times a second how the line is and tells what has changed.
class LineReporter : public QObject
{
    Q_OBJECT

public:
    static constexpr int Interval = 250; ///< ms

    /// \a box: the virtual one, null for a real one; what it was told counts as a state of the line. Neither is
    /// owned; both must outlive the reporter.
    LineReporter(LineHealth *health, DecoderBox *box, QObject *parent = nullptr);

    /// The last one that was told.
    const LineStatus &status() const { return m_status; }

Q_SIGNALS:
    /// Each time, whether or not something has changed.
    void reported(const LineStatus &status);
    /// Another state, port or process than the last time.
    void stateChanged(const LineStatus &status);

private:
    void report();

    LineHealth *m_health;
    DecoderBox *m_box;
    QTimer m_timer;
    LineStatus m_status;
    bool m_hasReported = false;
};

#endif // LINEREPORTER_H
