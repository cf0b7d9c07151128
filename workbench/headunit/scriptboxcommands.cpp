// The script's commands to the virtual box, and those that tell what there is.

#include "boxcatalog.h"
#include "boxcommand.h"
#include "decoderbox.h"
#include "scriptcommands.h"

namespace {

const char *const NoBox = "no virtual box runs; --decoder-box starts one";

QVariantList types()
{
    QVariantList result;
    for (const BoxCatalog::Row &row : BoxCatalog::rows()) {
        result << QVariant(QVariantList{row.type, row.className, row.car, row.makeSpeaker ? "box" : "none"});
    }
    return result;
}

} // namespace

ScriptCommands::Outcome ScriptCommands::set()
{
    return order(m_texts.join(' '));
}

ScriptCommands::Outcome ScriptCommands::press()
{
    return order(QString("key %1 tap %2").arg(text(0), text(1)).trimmed());
}

ScriptCommands::Outcome ScriptCommands::orderBox()
{
    return order(m_texts.join(' '));
}

ScriptCommands::Outcome ScriptCommands::order(const QString &line)
{
    BoxCommand command;
    if (!m_box) {
        return fail(NoBox);
    }
    if (!command.parse(line, *m_box, &m_error)) {
        return Failed;
    }
    if (command.isLast()) {
        return fail(QString("'%1' is for drives").arg(line));
    }
    return post([this, command] { command.carryOut(m_box); });
}

ScriptCommands::Outcome ScriptCommands::list()
{
    const QString what = text(0);
    if (what == "properties") {
        return listProperties() ? Done : Failed;
    }
    if (what == "keys") {
        return listKeys() ? Done : Failed;
    }
    if (what == "types") {
        m_result = types();
    } else if (what == "commands") {
        for (const Row &row : rows()) {
            m_result << QString("%1 %2").arg(row.name, row.arguments).trimmed();
        }
    } else {
        return fail(QString("'%1' is none of properties, keys, types, commands").arg(what));
    }
    return Done;
}

bool ScriptCommands::listProperties()
{
    if (!m_box) {
        m_error = NoBox;
        return false;
    }
    for (const QString &name : m_box->speaker()->properties()) {
        m_result << QVariant(QVariantList{name, m_box->car()->text(name), CarProperty::find(name)->takes()});
    }
    return true;
}

bool ScriptCommands::listKeys()
{
    static const char *const places[] = {"wheel", "panel", "knob"};
    if (!m_box) {
        m_error = NoBox;
        return false;
    }
    for (const BoxKey &key : m_box->speaker()->keys()) {
        m_result << QVariant(QVariantList{key.name, places[key.source]});
    }
    return true;
}

ScriptCommands::Outcome ScriptCommands::help()
{
    for (const Row &row : rows()) {
        if (text(0).isEmpty() || text(0) == row.name) {
            m_result << QString("%1 %2").arg(row.name, row.arguments).trimmed() + ": " + row.help;
        }
    }
    return m_result.isEmpty() ? fail(QString("unknown command '%1'").arg(text(0))) : Done;
}
