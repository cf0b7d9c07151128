#ifndef VWKEPTREPORTS_H
#define VWKEPTREPORTS_H

#include "packageview.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>

namespace Vw {

/// The newest package of each kind that the box sends by itself and no screen asks for (start-stop system, vehicle
/// reports, consumers, tyres, present consumption), for screens that open later, and whether the car is overdue for
/// a service. One that is too short is left out.
class KeptReports
{
public:
    void take(const PackageView &package);

    /// Hands \a screen, by its onRecvCanDatas, what is kept, the newest last.
    template <class Screen>
    void repeat(Screen *screen) const
    {
        for (int i = 0; i < m_reports.size(); ++i) {
            const QByteArray &report = m_reports.at(i).bytes;
            const quint8 *const bytes = reinterpret_cast<const quint8 *>(report.constData());
            screen->onRecvCanDatas(bytes[0], bytes + 1, quint8(report.size() - 1));
        }
    }

    /// Milliseconds since the kept package of \a command came; -1 when there is none.
    qint64 age(quint8 command) const;

    /// Whether the car last told of any of its services that it is overdue.
    bool isServiceOverdue() const;

private:
    struct Report
    {
        explicit Report(const PackageView &package);

        QByteArray bytes;    // the command byte before the data
        QElapsedTimer clock; // runs since it came
    };

    QList<Report> m_reports; // in order of arrival
    QList<int> m_overdue;    // items of the service page
};

} // namespace Vw

#endif // VWKEPTREPORTS_H
