#ifndef DESKBENCH_H
#define DESKBENCH_H

#include "decoderbox.h"
#include "deskwindow.h"
#include "headunit.h"

#include <QTemporaryDir>

#include <memory>

class CanBusAdapter;

/// The visible desk with a virtual box and the car's decoder on the line between them, as run.sh shows it.
class DeskBench
{
public:
    enum Box { TalkingBox, SilentBox, NoBox };

    /// The desk of CAN-bus type \a type. \a port: the line where there is no virtual box.
    explicit DeskBench(int type, Box box = TalkingBox, const QSize &screen = UnitScreen::standardSize(),
                       const QString &port = QString());
    ~DeskBench();

    /// Carries out what a scenario would: "climate.left 23". Then lets the box say it.
    void drive(const QStringList &changes);
    /// Takes the port's name away, as the system does with a device that is pulled out: the number that a terminal had
    /// is soon another program's.
    void removePort();
    /// Has the desk hear the first \a ms of a log, and the decoder take its packages, as if they passed over the line: at
    /// the log's times to the millisecond, which a line between two ends of a busy machine does not keep.
    void hear(const QString &log, int ms);
    /// Page \a index of the panel as a whole, also what does not fit into it.
    QWidget *page(int index) const;

    DecoderBox *box() const { return m_box.get(); }
    HeadUnit *unit() const { return m_unit.get(); }
    DeskWindow *window() const { return m_window.get(); }

private:
    QTemporaryDir m_folder; // of the line's link, which is shown: the current folder meanwhile
    QString m_before;
    std::unique_ptr<DecoderBox> m_box;
    std::unique_ptr<HeadUnit> m_unit;
    std::unique_ptr<DeskWindow> m_window;
    std::unique_ptr<CanBusAdapter> m_adapter;
};

#endif // DESKBENCH_H
