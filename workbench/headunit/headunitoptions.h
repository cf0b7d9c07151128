#ifndef HEADUNITOPTIONS_H
#define HEADUNITOPTIONS_H

#include "replaylog.h"

#include <QDateTime>
#include <QMap>
#include <QSize>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>

class CommandLine;
struct HeadUnitOptions;

/// A sub-command that runs the unit: it takes the unit's options and some of its own.
struct UnitCommand
{
    const char *name;
    const char *description;
    std::function<void(CommandLine *)> addOptions;
    /// Sets what the command's own options mean for the unit, once all are read. False, with the reason in
    /// \a error, when they are wrong.
    std::function<bool(HeadUnitOptions *options, QString *error)> apply;
};

/// What the command line of `headunit` asks for.
struct HeadUnitOptions
{
    static constexpr uint CanBusTypeTag = 0x10008;
    static constexpr uint KeyRedefTag = 0x1000c;

    QMap<uint, QVariant> tags;
    QMap<QString, QVariant> productValues;
    QMap<QString, QStringList> factorySettings;
    QString settingsDir; ///< empty for the framework's own choice
    QString plugin;      ///< empty for the one that belongs to the program
    QSize screenSize;    ///< pixels; 1024x600 unless the product value "ScreenSize" says otherwise
    bool isHeadless = false;
    QDateTime virtualStart; ///< time of day at which the virtual clock starts; invalid for the real clock
    bool hasDecoderBox = false;
    QString scenario;          ///< of the decoder box; empty for none
    QString boxLibrary;        ///< of somebody else's box; empty for the catalog's
    QString trace;             ///< file, "-" for standard output, empty for none
    bool tracesValues = false; ///< what no display takes, too
    QString script;            ///< file, "-" for standard input, empty for none
    bool isStrict = false;     ///< the script's first error ends the run
    QString junit;             ///< file for what became of the script's lines; empty for none
    bool isUnpaced = false;    ///< bytes take no time on the box's line
    quint32 seed = 0;          ///< of the chances on the box's line; counts when hasSeed
    bool hasSeed = false;
    QString record;          ///< file for the line's log, "-" for standard output, empty for none
    QString saveBad;         ///< file for the line's last minute at the first bad package, empty for none
    bool tracesLine = false; ///< the line's health in the trace
    bool tracesKeys = false; ///< what becomes of keys in the trace
    std::optional<ReplayOptions> replay; ///< a log in place of a box
    bool listsPorts = false;             ///< and nothing else
    bool wantsHelp = false;
    QString version; ///< "headunit 1.0.0 (Qt 5.15.8)" when that was asked for, and nothing else
    QString usage;   ///< what there is to ask for; set by parse()

    /// Reads \a arguments, the program's name first; needs no application object. \a command is the
    /// sub-command in front of them, null for none. False, with the reason in \a error, when they are wrong.
    bool parse(const QStringList &arguments, QString *error, const UnitCommand *command = nullptr);

    /// The decoder type that the plug-in will read; 0 for none.
    uint canBusType() const { return tags.value(CanBusTypeTag).toUInt(); }
};

#endif // HEADUNITOPTIONS_H
