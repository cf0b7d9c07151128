#include "inspectcommand.h"

#include "inspectionfilter.h"
#include "inspectiontext.h"
#include "keptfilters.h"
#include "logcommand.h"
#include "loginspection.h"

#include <cstdio>

namespace {

struct Counts
{
    qint64 all = 0;
    qint64 shown = 0;
    qint64 bad = 0;
    qint64 strange = 0;
};

void show(const InspectionRow &row, const InspectionFilter &filter, bool asJson, Counts *counts)
{
    ++counts->all;
    counts->bad += row.kind == InspectionRow::BadPackage ? 1 : 0;
    counts->strange += row.kind == InspectionRow::Package && !row.isExplained ? 1 : 0;
    if (!filter.matches(row)) {
        return;
    }
    if (asJson) {
        std::printf("%s%s", counts->shown == 0 ? "" : ",\n", InspectionText::json(row).constData());
    } else {
        std::fputs(InspectionText::plain(row).toUtf8().constData(), stdout);
    }
    ++counts->shown;
}

void sumUp(const Inspection &inspection, bool asJson, const Counts &counts)
{
    if (asJson) {
        std::printf("],\n\"commands\": %s,\n\"all\": %lld, \"shown\": %lld, \"bad\": %lld, "
                    "\"not-explained\": %lld}\n",
                    InspectionText::jsonRates(inspection).constData(), counts.all, counts.shown, counts.bad,
                    counts.strange);
    } else {
        std::printf("\n%s\n%lld rows, %lld shown; %lld packages bad, %lld not explained\n",
                    qPrintable(InspectionText::rates(inspection)), counts.all, counts.shown, counts.bad,
                    counts.strange);
    }
}

} // namespace

int inspectCommand(const QStringList &words)
{
    CommandLine line(
        "inspect",
        "What passed over a line, package by package: the bits that changed since the last one of the "
        "command ([xx] a byte with one, {xx} with one that nobody understands), how soon it was "
        "acknowledged, and below it the calls that the plug-in makes of it. Ends with 1 when there are "
        "bad packages, or no row is left to show.");
    LogCommand log(&line);
    log.readScreens();
    QString wanted;
    bool asJson = false;
    line.add("--filter", &wanted,
             "only rows that all words fit: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, "
             "call=setTemp*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack>20 (ms), ack=none, t<9.5 (s); "
             "! in front of a word turns it round; or the name of a filter that was kept in the window")
        .valueName("WORDS|NAME");
    line.addFlag("--json", &asJson, "answers in JSON");
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    InspectionFilter filter;
    QString error;
    if (!filter.parse(KeptFilters::all().value(wanted, wanted).toString(), &error)) {
        line.complain("--filter: " + error);
        return CommandLine::WrongUsage;
    }
    Counts counts;
    const auto prepare = [&](LogInspection *inspection) {
        std::fputs(asJson ? "{\"rows\": [\n" : "", stdout);
        QObject::connect(inspection, &LogInspection::rowDone, inspection,
                         [&](const InspectionRow &row) { show(row, filter, asJson, &counts); });
    };
    const auto answer = [&](LogInspection *inspection) {
        sumUp(*inspection->inspector()->inspection(), asJson, counts);
        return counts.bad > 0 || counts.shown == 0 ? CommandLine::FoundSomething : CommandLine::Fine;
    };
    return log.run(prepare, answer);
}
