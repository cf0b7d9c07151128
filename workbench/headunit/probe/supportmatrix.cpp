#include "supportmatrix.h"

#include "bitsheet.h"
#include "boxcatalog.h"

#include <QDir>
#include <QFile>

namespace {

struct Column
{
    QString head;
    QMap<QString, BitSheet::Function> functions;
};

// "D" decoded, "W" shown in a window or display, "S" sent; in bold what a drive proves.
QString mark(const BitSheet::Function &function)
{
    const QString letters =
        QString(function.isDecoded ? "D" : "") + (function.isDrawn ? "W" : "") + (function.isSent ? "S" : "");
    return letters.isEmpty() ? QString() : function.isDriven ? "**" + letters + "**" : letters;
}

} // namespace

QString SupportMatrix::text(const QString &folder)
{
    QVector<Column> columns;
    QMap<QString, bool> names; // sorted
    QStringList unknown;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        QFile file(QDir(folder).filePath(QString("%1.md").arg(row.type)));
        if (!file.open(QIODevice::ReadOnly)) {
            unknown << QString("%1 (%2)").arg(row.type).arg(QLatin1String(row.className));
            continue;
        }
        columns << Column{QString("[%1](%2.md)%3")
                              .arg(QLatin1String(row.car))
                              .arg(row.type)
                              .arg(row.isFromDataSheet ? " (¹)" : ""),
                          BitSheet::functionsIn(QString::fromUtf8(file.readAll()))};
        for (const QString &name : columns.last().functions.keys()) {
            names.insert(name, true);
        }
    }
    QString text =
        "# Cars by what they can do\n\n"
        "Made by `headunit probe --all docs/boxes` from the boxes' sheets, which have each bit. D: the "
        "plug-in decodes it; W: a display of the unit or a window of the plug-in gets it; S: the unit sends "
        "it. What a golden drive proves is bold.\n\n| |";
    QString rule = "|---|";
    for (const Column &column : std::as_const(columns)) {
        text += ' ' + column.head + " |";
        rule += "---|";
    }
    text += '\n' + rule + '\n';
    for (const QString &name : names.keys()) {
        text += "| " + name + " |";
        for (const Column &column : std::as_const(columns)) {
            text += ' ' + mark(column.functions.value(name)) + " |";
        }
        text += '\n';
    }
    text += "\n(¹) From the box maker's data sheet, not yet seen on a car.\n";
    if (!unknown.isEmpty()) {
        text +=
            "\nOf these types the frame is not known, so there is nothing to decode: " + unknown.join(", ") +
            ".\n";
    }
    return text;
}
