#ifndef INSPECTIONROW_H
#define INSPECTIONROW_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/// One thing that happened on the unit's line, with what it brought about.
struct InspectionRow
{
    enum Kind : quint8 {
        Package,    ///< a good one
        BadPackage, ///< a whole frame with a wrong checksum
        Noise,      ///< bytes that are no package and answer none
        State,      ///< what became of the line, in words
        Call,       ///< of the plug-in, caused by no package: by a timer, or by a finger on the screen
        UnitKey     ///< a key of the unit itself
    };

    qint64 microseconds = 0;
    qint64 acknowledgement = -1; ///< microseconds until the other side acknowledged it; -1 for never
    Kind kind = Package;
    bool isTowardsUnit = true;
    bool isFirst = false;     ///< of its command and direction: there is nothing that it could differ from
    bool isTaken = false;     ///< the plug-in took it from its framer
    bool isExplained = false; ///< nothing about it is left to be found out
    quint8 command = 0;
    QString name; ///< of the command, in the virtual box's words; empty when nobody knows it. A State's words
    QByteArray bytes;   ///< the whole frame, or the noise
    QByteArray data;    ///< of a package
    QByteArray changed; ///< for each data byte the bits that differ from the package of the command before
    QByteArray
        known; ///< for each data byte the bits that are understood; empty when the command is not described
    QStringList calls; ///< that it caused: "AirConditionDlg.setAirVolume 3", "car.outside.temperature 23"

    bool isPackage() const { return kind == Package || kind == BadPackage; }
    bool hasChanged() const { return !changed.isEmpty() && changed.count('\0') != changed.size(); }
    /// The bits of data byte \a i that differ and that nobody understands.
    quint8 strangeBits(int i) const
    {
        const bool isCaused =
            known.isEmpty() && isExplained; // not described, but the plug-in makes something of it
        const int knownBits = i < known.size() ? known.at(i) : 0;
        return i < changed.size() && !isCaused ? quint8(changed.at(i) & ~knownBits) : quint8(0);
    }
    /// Other than the package before, or the first; so is one of which nothing is known yet.
    bool isNew() const { return isFirst || changed.isEmpty() || hasChanged(); }
    /// The windows and dialogs among the calls that were opened, and what others show now: "AirConditionDlg",
    /// "Tyres.pressure 2.3".
    QStringList screens() const;
};

#endif // INSPECTIONROW_H
