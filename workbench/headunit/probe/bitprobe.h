#ifndef BITPROBE_H
#define BITPROBE_H

#include "frameformat.h"
#include "probeunit.h"

#include <QMap>
#include <QSet>

class BoxSpeaker;

/// What each bit of a package's data moves: the package is fed as it is, with each bit flipped, and runs of
/// bits that move the same with each of their values. Twice: to a fresh unit, and to one that has just been told
/// the opposite in every bit (unless the unit does not bear that).
class BitProbe
{
public:
    /// "setACEnable" to the values that it was called with, in order; an event by its parameter, a call with
    /// several arguments one by one. Besides "car NAME" for a value that no display takes, "screen WINDOW.WIDGET"
    /// for what a window of the plug-in shows, "dialog", and "plug-in" for one that does not survive it.
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

        bool isRun() const { return high > low; }
    };
    enum Outcome {
        Done,
        NotFramed, ///< the decoder takes the bytes for no package
        Killed     ///< the plug-in does not survive the package as it is
    };

    /// \a unit runs already and outlives the probe, as \a speaker does, of whose box the package is.
    BitProbe(ProbeUnit *unit, const BoxSpeaker &speaker, const BoxPackage &package);

    /// Probes the data byte \a only, or all for -1. With \a walksValues each byte's 256 values are walked, as one
    /// run. Anything but Done comes with one sentence in \a error.
    Outcome run(int only, bool walksValues, QString *error);

    const BoxPackage &package() const { return m_package; }
    /// From the first byte's bit 7 on.
    const QVector<Row> &rows() const { return m_rows; }
    /// What the package itself causes in a fresh unit.
    const Effects &base() const { return m_base[Fresh]; }
    /// Names of all that any trial moved.
    const QSet<QString> &moved() const { return m_moved; }
    /// The button behind which a screen shows what the package tells; empty when they show it as they open.
    const QString &turn() const { return m_turn; }
    /// Whether a dialog waits after some of the packages.
    bool hasDialogs() const { return m_hasDialogs; }
    /// Whether neither the package nor any of its bits causes anything.
    bool isIdle() const { return m_moved.isEmpty() && base().isEmpty(); }

    /// What \a trial has shown.
    static Effects effectsOf(const ProbeUnit::Trial &trial);
    /// "0 = LO, 1..0x1d = 18.0..32.0, 0x1f = HI, else empty": \a values by number from 0 on.
    static QString mapping(const QStringList &values);

private:
    static constexpr int Bits = 8; // of a byte
    enum State { Fresh, Opposite };

    enum Care {
        Exactly, ///< a fork each
        Quickly  ///< one behind the other, where what the ones before left behind may show
    };
    QVector<Effects> tryOut(State state, const QVector<QByteArray> &datas, Care care);
    ProbeUnit::Trial tryFirst();
    void chooseOtherState();
    QByteArray flipped(const QVector<int> &bits) const;
    void probeBits();
    void addRows(int byte, bool walksValues);
    bool isAlike(int byte, int bit, int other) const;
    bool isIdle(int bit) const;
    QVector<Effect> changesBy(State state, int bit) const;
    bool isCharacter(int byte) const;
    void probeRun(Row *row);
    void findPartners();
    void splitByPartner();
    QVector<int> findPartnersOf(int bit, const QVector<int> &idle);
    QString absentOr(const Effects &effects, const QString &call) const;
    QVector<Effect> difference(const Effects &before, const Effects &after) const;

    ProbeUnit *m_unit;
    const BoxSpeaker &m_speaker;
    const FrameFormat &m_format;
    BoxPackage m_package;
    ProbeUnit::Packages m_before; // bring about the second state
    Effects m_base[2];
    QMap<int, Effects> m_flipped[2]; // by byte * 8 + bit
    QVector<Row> m_rows;
    QSet<QString> m_moved;
    QMap<int, QString> m_partners;
    QString m_turn;
    bool m_hasDialogs = false;
};

#endif // BITPROBE_H
