#include "loginspection.h"

#include "boxcatalog.h"
#include "headunitoptions.h"

#include "orbhost.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <limits>

namespace {

const qint64 RowTime = 2000000; // microseconds after which nothing more comes to a row
const int StartMs = 1000;       // until the plug-in has announced what it has
const int LastPackagesMs = 500; // what the end of the log has brought about is still on its way

} // namespace

LogInspection::LogInspection(int type, const ReplayOptions &log, QObject *parent)
    : QObject(parent)
    , m_options(log)
    , m_type(type)
    , m_inspector(type)
    , m_replayer(log, BoxCatalog::frameOf(type))
{
    m_screen.setUpdatesEnabled(false);
    m_screen.show();
    connect(&m_replayer, &LineReplayer::played, this, &LogInspection::follow);
    connect(&m_replayer, &LineReplayer::finished, this,
            [] { QTimer::singleShot(LastPackagesMs, qApp, &QCoreApplication::quit); });
}

LogInspection::~LogInspection()
{
    if (m_unit) {
        m_unit->unloadPlugin();
    }
}

bool LogInspection::open(QString *error)
{
    LineLogFormats::ReadOptions options;
    options.pattern = m_options.pattern;
    if (const FrameFormat *format = BoxCatalog::frameOf(m_type)) {
        options.frame = format;
    }
    m_log = LineLogFormats::reader(m_options.log, options, error);
    return m_log && m_replayer.open(error);
}

bool LogInspection::run(const QString &plugin, QString *error)
{
    if (!open(error)) {
        return false;
    }
    OrbHost *host = OrbHost::instance();
    host->setSettingsDir(m_settings.path());
    host->setTag(HeadUnitOptions::CanBusTypeTag, m_type);
    host->setProductValue("CANPortName", m_replayer.portPath());
    m_unit.reset(new HeadUnit);
    connect(m_unit->lineRecorder(), &LineRecorder::lineOpened, this, [this] { m_isOpen = true; });
    if (!m_unit->loadPlugin(plugin, error)) {
        return false;
    }
    openScreens();
    // The line may be open by now, or open later.
    connect(m_unit->lineRecorder(), &LineRecorder::lineOpened, &m_replayer, &LineReplayer::start);
    if (m_isOpen) {
        m_replayer.start();
    }
    QCoreApplication::exec();
    for (LineRecord record; m_log->next(&record);) { // what the unit said last
        m_inspector.feed(record);
    }
    m_inspector.inspection()->pass(m_inspector.inspection()->now() + RowTime);
    passOn(std::numeric_limits<qint64>::max());
    return true;
}

void LogInspection::readScreens(const QVector<ScreenPath::Step> &steps)
{
    m_steps = steps;
    m_inspector.readScreens(0);
}

// What is called meanwhile is the tour's, not the log's; what a start calls comes before.
void LogInspection::openScreens()
{
    if (m_steps.isEmpty()) {
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(StartMs, &loop, &QEventLoop::quit);
    loop.exec();
    m_inspector.setDeaf(true);
    ScreenPath().follow(m_steps, m_unit.get());
    m_inspector.setDeaf(false);
}

// The log is read once more beside the replayer, which leaves out what went to the box.
void LogInspection::follow(const LineRecord &)
{
    for (LineRecord record; m_log->next(&record);) {
        m_inspector.feed(record);
        if (record.isTowardsUnit()) {
            break;
        }
    }
    passOn(m_inspector.inspection()->now() - RowTime);
}

void LogInspection::passOn(qint64 until)
{
    const Inspection *inspection = m_inspector.inspection();
    while (m_next < inspection->endNumber() && inspection->row(m_next).microseconds < until) {
        Q_EMIT rowDone(inspection->row(m_next));
        ++m_next;
    }
}

QStringList LogInspection::problems() const
{
    QStringList problems = m_log ? m_log->skipped().texts() : QStringList();
    if (m_log && !m_log->error().isEmpty()) {
        problems << m_log->error();
    }
    return problems;
}
