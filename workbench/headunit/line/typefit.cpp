#include "typefit.h"

#include "boxcatalog.h"
#include "typeevidence.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <vector>

namespace {

const int Patience = 120000; // ms for one type
const double SureFirst = 0.9;
const double SureSecond = 0.6;
const double LeastFramed = 0.5; // of a line that speaks the type's frame at all
const double LeastKnown = 0.75; // a box of another make shares a command or two with most types
const int FewestExplained = 8;
const int FewestCommands = 3;

// How well a package is accounted for.
const double Whole = 1;
const double KnownOnly = 0.5; // the box sends such ones; this one changed nothing
const double OtherLength =
    0.5; // explained, with more bytes than the box is known to send: there are later boxes
const double TooShort = 0.1; // explained, with fewer: what is missing was read as 0

// Of a package with size data bytes; lengths are those that the type's box is known to send with its command.
double gradeOf(const QSet<int> &lengths, int size, bool isExplained)
{
    if (lengths.contains(size)) {
        return isExplained ? Whole : KnownOnly;
    }
    if (!isExplained) {
        return 0;
    }
    const auto shortest = std::min_element(lengths.begin(), lengths.end());
    return lengths.isEmpty() || size > *shortest ? OtherLength : TooShort;
}

} // namespace

bool TypeFits::isSure(const QVector<TypeFit> &fits)
{
    if (fits.isEmpty()) {
        return false;
    }
    const TypeFit &first = fits.first();
    const bool isEnough = first.explainedCount >= FewestExplained && first.knownCommands >= FewestCommands &&
                          first.ownCommands > 0;
    return isEnough && first.framed >= LeastFramed && first.known >= LeastKnown &&
           first.evidence >= SureFirst && (fits.size() < 2 || fits.at(1).evidence <= SureSecond);
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
    for (const PackageCensus *census : {&raise, &xinHang}) {
        TypeEvidence::weigh(*census, fits);
    }
    std::stable_sort(fits->begin(), fits->end(), [](const TypeFit &a, const TypeFit &b) {
        return a.evidence * a.framed > b.evidence * b.framed;
    });
    return true;
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
    const QHash<quint8, QSet<int>> reported = BoxCatalog::reportedBy(probe->fit.type);
    const FrameFormat &format = probe->census->format();
    QSet<quint8> explained;
    TypeFit *const fit = &probe->fit;
    for (int i = 0; i < fit->packages; ++i) {
        const BoxPackage package = format.package(probe->census->packages().at(i));
        const bool isExplained = answers.value(i) == "1";
        fit->grades << gradeOf(reported.value(package.command), package.n(), isExplained);
        if (isExplained) {
            ++fit->explainedCount;
            explained << package.command;
        }
    }
    for (const QByteArray &package : probe->census->packages()) {
        const quint8 command = format.package(package).command;
        if (!explained.contains(command) && !reported.contains(command) && !fit->unknown.contains(command)) {
            fit->unknown << command;
        }
    }
    return true;
}
