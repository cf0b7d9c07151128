#include "typefit.h"

#include "boxcatalog.h"

#include <QCoreApplication>
#include <QHash>
#include <QThread>

#include <algorithm>
#include <vector>

namespace {

const int Patience = 120000; // ms for one type
const double SureFirst = 0.9;
const double SureSecond = 0.6;
const double LeastFramed = 0.5; // of a line that speaks the type's frame at all

} // namespace

bool TypeFits::isSure(const QVector<TypeFit> &fits)
{
    return !fits.isEmpty() && fits.first().framed >= LeastFramed && fits.first().evidence >= SureFirst &&
           (fits.size() < 2 || fits.at(1).evidence <= SureSecond);
}

bool TypeFits::find(const PackageCensus &raise, const PackageCensus &xinHang, QVector<TypeFit> *fits,
                    QString *error)
{
    std::vector<Probe> probes;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        const FrameFormat *format = BoxCatalog::frameOf(row.type);
        if (format) {
            Probe probe;
            probe.census = format == &xinHang.format() ? &xinHang : &raise;
            probe.fit.type = row.type;
            probe.fit.frame = format;
            probe.fit.framed = probe.census->framed();
            probe.fit.packages = int(probe.census->packages().size());
            probes.push_back(std::move(probe));
        }
    }
    const size_t together = size_t(qMax(1, QThread::idealThreadCount()));
    for (size_t next = 0, done = 0; done < probes.size(); ++done) {
        for (; next < probes.size() && next < done + together; ++next) {
            start(&probes[next]);
        }
        if (!readAnswer(&probes[done])) {
            *error = QString("type %1 could not be tried").arg(probes[done].fit.type);
            return false;
        }
        *fits << probes[done].fit;
    }
    weigh(fits);
    return true;
}

// Types of one frame have tried the same packages; the frame with more of the bytes goes first.
void TypeFits::weigh(QVector<TypeFit> *fits)
{
    QHash<const FrameFormat *, QVector<double>> types; // that explain each package
    for (const TypeFit &fit : qAsConst(*fits)) {
        QVector<double> &counts = types[fit.frame];
        counts.resize(fit.packages);
        for (int i = 0; i < fit.explained.size(); ++i) {
            counts[i] += fit.explained.at(i) ? 1 : 0;
        }
    }
    for (TypeFit &fit : *fits) {
        double total = 0;
        for (int i = 0; i < fit.explained.size(); ++i) {
            const double count = types[fit.frame].at(i);
            total += count > 0 ? 1 / count : 0;
            fit.evidence += fit.explained.at(i) ? 1 / count : 0;
        }
        fit.evidence = total > 0 ? fit.evidence / total : 0;
    }
    std::stable_sort(fits->begin(), fits->end(), [](const TypeFit &a, const TypeFit &b) {
        return a.evidence * a.framed > b.evidence * b.framed;
    });
}

void TypeFits::start(Probe *probe)
{
    if (probe->fit.packages == 0) {
        return;
    }
    QByteArray input;
    for (const QByteArray &package : probe->census->packages()) {
        input += package.toHex() + '\n';
    }
    probe->process.reset(new QProcess);
    probe->process->setStandardErrorFile(QProcess::nullDevice());
    probe->process->start(QCoreApplication::applicationFilePath(),
                          {"identify", "--probe", QString::number(probe->fit.type), "--plugin", m_plugin});
    probe->process->write(input);
    probe->process->closeWriteChannel();
}

// One line a package: 1 or 0.
bool TypeFits::readAnswer(Probe *probe)
{
    if (!probe->process) {
        return true;
    }
    if (!probe->process->waitForFinished(Patience) || probe->process->exitCode() != 0 ||
        probe->process->exitStatus() != QProcess::NormalExit) {
        return false;
    }
    const QList<QByteArray> answers = probe->process->readAllStandardOutput().split('\n');
    QSet<quint8> explained = BoxCatalog::reportedBy(probe->fit.type);
    const FrameFormat &format = probe->census->format();
    for (int i = 0; i < probe->fit.packages; ++i) {
        probe->fit.explained << (answers.value(i) == "1");
        if (probe->fit.explained.last()) {
            ++probe->fit.explainedCount;
            explained << format.package(probe->census->packages().at(i)).command;
        }
    }
    for (const QByteArray &package : probe->census->packages()) {
        const quint8 command = format.package(package).command;
        if (!explained.contains(command) && !probe->fit.unknown.contains(command)) {
            probe->fit.unknown << command;
        }
    }
    return true;
}
