#ifndef BITPROBE_H
#define BITPROBE_H

#include "frameformat.h"
#include "probeunit.h"

#include <QMap>

/// What each bit of a package's data moves: the package is fed as it is, with each bit flipped, and runs of
/// bits that move the same with each of their values. Twice: to a fresh unit, and to one that has just been told
/// the opposite in every bit.
class BitProbe
{
public:
    /// "setACEnable" to the values that it was called with, in order; an event by its parameter, a call with
    /// several arguments one by one.
    using Effects = QMap<QString, QString>;

    /// A change by one bit, or a run's mapping of one call.
    struct Effect
    {
        QString call;
        QString text; ///< "false -> true", or of a run "0..7 = 0..7"
    };
    /// Bits that belong together, \a high down to \a low of the data byte \a byte.
    struct Row
    {
        int byte;
        int high;
        int low;
        QVector<Effect> effects;     ///< none for bits without effect
        bool dependsOnState = false; ///< the effects are others in the second state
        QString
            partner; ///< "d[0].7" for a bit without effect by itself that has one while that bit is flipped
    };

    /// \a unit runs already and outlives the probe.
    BitProbe(ProbeUnit *unit, const FrameFormat &format, const BoxPackage &package);

    /// Probes the data byte \a only, or all for -1. With \a walksValues each byte's 256 values are walked, as one
    /// run. False, with one sentence in \a error, when the package cannot be probed.
    bool run(int only, bool walksValues, QString *error);

    /// From the first byte's bit 7 on.
    const QVector<Row> &rows() const { return m_rows; }
    /// What the package itself causes in a fresh unit.
    const Effects &base() const { return m_base[Fresh]; }
    /// Whether a dialog waits after some of the packages.
    bool hasDialogs() const { return m_hasDialogs; }

    /// "0 = LO, 1..0x1d = 18.0..32.0, 0x1f = HI, else empty": \a values by number from 0 on.
    static QString mapping(const QStringList &values);

private:
    enum State { Fresh, Opposite };

    bool tryOut(State state, const QByteArray &data, Effects *effects);
    bool probeBits(int byte);
    bool probeRun(Row *row);
    bool probePairs();
    bool isAlike(int byte, int bit, int other) const;
    static QVector<Effect> difference(const Effects &before, const Effects &after);

    ProbeUnit *m_unit;
    const FrameFormat &m_format;
    BoxPackage m_package;
    Effects m_base[2];
    QMap<int, Effects> m_flipped[2]; // by byte * 8 + bit
    QVector<Row> m_rows;
    bool m_hasDialogs = false;
    QString m_error;
};

#endif // BITPROBE_H
