// Writes the Wireshark dissector: makedissector TEMPLATE OUT. The names of the commands come from the virtual boxes.

#include "boxcatalog.h"
#include "packagevalues.h"

#include <QFile>

#include <cstdio>

namespace {

QByteArray quoted(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    return '"' + bytes.replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

QByteArray names(PackageValues *values, bool isTowardsUnit)
{
    QByteArray lines;
    for (const quint8 command : values->commands(isTowardsUnit)) {
        lines += "            [0x" + QByteArray::number(command, 16).rightJustified(2, '0') +
                 "] = " + quoted(values->commandName(command, isTowardsUnit)) + ",\n";
    }
    return lines;
}

QByteArray boxes()
{
    QByteArray lines;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        QString error;
        const auto values = PackageValues::create(row.type, &error);
        if (!values) {
            continue;
        }
        lines += "    [" + QByteArray::number(row.type) + "] = {\n        car = " + quoted(row.car) +
                 ",\n        frame = " + quoted(values->format().name) + ",\n        box = {\n" +
                 names(values.get(), true) + "        },\n        unit = {\n" + names(values.get(), false) +
                 "        },\n    },\n";
    }
    return lines;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "makedissector TEMPLATE OUT\n");
        return 2;
    }
    QFile in(QFile::decodeName(argv[1]));
    QFile out(QFile::decodeName(argv[2]));
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "makedissector: %s %s\n", qPrintable(in.errorString()),
                     qPrintable(out.errorString()));
        return 1;
    }
    QByteArray text = in.readAll();
    text.replace("@GENERATED@", "change those, or orbcanbus.lua.in.").replace("@BOXES@", boxes());
    return out.write(text) == text.size() && out.flush() ? 0 : 1;
}
