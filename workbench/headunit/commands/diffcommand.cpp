#include "diffcommand.h"

#include "boxcatalog.h"
#include "callcomparison.h"
#include "commandapplication.h"
#include "commandline.h"
#include "diffside.h"
#include "headunitprogram.h"
#include "linepackages.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <memory>

namespace {

void answer(const QVector<LineComparison::Difference> &differences, bool asJson)
{
    QJsonArray rows;
    for (const LineComparison::Difference &difference : differences) {
        if (asJson) {
            rows << QJsonObject{{"kind", difference.kind},
                                {"direction", difference.direction},
                                {"command", difference.command},
                                {"text", difference.text}};
        } else {
            std::puts(qPrintable(difference.line()));
        }
    }
    if (asJson) {
        std::puts(QJsonDocument(rows).toJson(QJsonDocument::Compact).constData());
    }
}

QString typeName(const DiffSide &side)
{
    return QString("type %1 (%2)").arg(side.type).arg(BoxCatalog::className(side.type));
}

// "honda", or "honda,toyota": the decoders that were asked for, in place of what the sides say.
bool readTypes(const QStringList &names, DiffSide sides[2], QString *error)
{
    if (names.size() > 2) {
        *error = "--can-bus-type takes one type for both sides, or one for each";
    }
    for (int i = 0; error->isEmpty() && !names.isEmpty() && i < 2; ++i) {
        const QString name = names.at(qMin(i, int(names.size()) - 1));
        sides[i].type = BoxCatalog::typeFromText(name);
        if (sides[i].type == 0) {
            *error = QString("there is no CAN-bus type '%1'").arg(name);
        }
    }
    return error->isEmpty();
}

bool areComparable(const DiffSide sides[2], bool areTypesMeant, QString *error)
{
    const FrameFormat *const formats[] = {BoxCatalog::frameOf(sides[0].type),
                                          BoxCatalog::frameOf(sides[1].type)};
    if (sides[0].type == 0 || sides[1].type == 0 || sides[0].type == sides[1].type) {
        return true;
    }
    if (!areTypesMeant) {
        *error = QString("%1 is of %2 and %3 of %4: only boxes of one type can be compared, or with "
                         "--can-bus-type TYPE,TYPE what two decoders make of them")
                     .arg(sides[0].name, typeName(sides[0]), sides[1].name, typeName(sides[1]));
    } else if (!formats[0] || formats[0] != formats[1]) {
        *error =
            QString("the boxes of %1 and of %2 frame their packages in different ways, so that they have "
                    "none in common")
                .arg(typeName(sides[0]), typeName(sides[1]));
    }
    return error->isEmpty();
}

// Reads both sides and what was asked of them, and finds the plug-in; with an application object that is gone behind
// it, since decoders are tried in children with one of their own.
bool readSides(const QString names[2], const QStringList &types, DiffSide sides[2], QString *plugin,
               QString *error)
{
    const std::unique_ptr<QCoreApplication> application = CommandApplication::make();
    for (const int i : {0, 1}) {
        sides[i].name = names[i];
        if (!sides[i].read(error)) {
            return false;
        }
    }
    if (!readTypes(types, sides, error) || !areComparable(sides, !types.isEmpty(), error)) {
        return false;
    }
    const FrameFormat *known = BoxCatalog::frameOf(qMax(sides[0].type, sides[1].type));
    const FrameFormat &format = known ? *known : LinePackages::formatOf(sides[0].records);
    sides[0].takeRecords(format);
    sides[1].takeRecords(format);
    *plugin = HeadUnitProgram::pluginPath();
    return true;
}

} // namespace

int diffCommand(const QStringList &words)
{
    CommandLine line("diff",
                     "How two boxes differ: commands, lengths, bits, rhythm, and of two types the calls that "
                     "the same packages cause. Says nothing, and ends with 0, when they do not.");
    QString names[2];
    QStringList types;
    bool asJson = false;
    line.add("A", &names[0], "a log, or a CAN-bus type whose virtual box is meant: honda, 7")
        .required()
        .valueName("LOG|TYPE");
    line.add("B", &names[1], "the same").required().valueName("LOG|TYPE");
    line.addList("--can-bus-type", &types,
                 "the decoder of both sides, or that of each, in place of what they say")
        .valueName("TYPE[,TYPE]")
        .separator(',');
    line.addFlag("--json", &asJson, "answers in JSON");
    int exitCode = 0;
    if (!line.read(words, &exitCode)) {
        return exitCode;
    }
    DiffSide sides[2];
    QString plugin;
    QString error;
    if (!readSides(names, types, sides, &plugin, &error)) {
        return line.refuse(error);
    }
    auto differences = LineComparison::differences(sides[0].traffic, sides[1].traffic);
    const int decoders[] = {sides[0].type, sides[1].type};
    const bool areTwo = decoders[0] != 0 && decoders[1] != 0 && decoders[0] != decoders[1];
    if (areTwo &&
        !CallComparison::add(sides[0].traffic, sides[1].traffic, decoders, plugin, &differences, &error)) {
        return line.complain(error);
    }
    answer(differences, asJson);
    return differences.isEmpty() ? CommandLine::Fine : CommandLine::FoundSomething;
}
