#ifndef BOXSCRIPT_H
#define BOXSCRIPT_H

#include "descriptorlines.h"

#include <QObject>
#include <QTimer>

class DecoderBox;

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

Q_SIGNALS:
    void answered(const QString &line);
    void finished();

private:
    void work();
    QString answer(const QString &line);

    DecoderBox *m_box;
    DescriptorLines m_lines;
    QTimer m_waitTimer;
};

#endif // BOXSCRIPT_H
