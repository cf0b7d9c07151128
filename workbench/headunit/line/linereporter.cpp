#include "linereporter.h"

#include "decoderbox.h"
#include "linehealth.h"

namespace {

const int LongestHush = 3600000; // ms; a box that is silent for longer was stopped

LineHealth::BoxManner mannerOf(const DecoderBox *box)
{
    const int silence = box ? box->silenceLeft() : 0;
    return silence <= 0            ? LineHealth::Speaks
           : silence > LongestHush ? LineHealth::Stopped
                                   : LineHealth::Hushed;
}

} // namespace

LineReporter::LineReporter(LineHealth *health, DecoderBox *box, QObject *parent)
    : QObject(parent), m_health(health), m_box(box)
{
    connect(&m_timer, &QTimer::timeout, this, &LineReporter::report);
    m_timer.start(Interval);
}

void LineReporter::report()
{
    m_health->setBoxManner(mannerOf(m_box));
    const LineStatus before = m_status;
    m_status = m_health->status();
    const bool isNews = !m_hasReported || m_status.state != before.state || m_status.port != before.port ||
                        m_status.who != before.who;
    m_hasReported = true;
    if (isNews) {
        Q_EMIT stateChanged(m_status);
    }
    Q_EMIT reported(m_status);
}
