#ifndef BITSHEET_H
#define BITSHEET_H

#include "bitprobe.h"
#include "boxspeaker.h"
#include "drivetraces.h"

/// The sheet of one box: each package that it sends with what its bits move, and each package that the unit sends
/// with what the box makes of it. Nothing in it is written by hand: names of packages are the virtual box's, names
/// of fields are the calls of the real plug-in.
class BitSheet
{
public:
    /// What a car can do, and how far it gets: one row of the matrix.
    struct Function
    {
        bool isDecoded = false; ///< the plug-in makes something of it
        bool isDrawn = false;   ///< the framework or a window of the plug-in gets it
        bool isSent = false;    ///< the unit says something about it
        bool isDriven = false;  ///< a golden drive has it
    };

    /// \a unit runs already with the decoder of \a type, whose box \a speaker is; all of them outlive the sheet.
    BitSheet(ProbeUnit *unit, int type, BoxSpeaker *speaker, const DriveTraces &drives);

    /// Probes all. False, with one sentence in \a error, when a package cannot be probed.
    bool run(QString *error);

    /// The whole text, Markdown.
    QString text() const;

    /// The rows of the table of functions in \a sheet, a text(): by name.
    static QMap<QString, Function> functionsIn(const QString &sheet);

private:
    struct Sent
    {
        QByteArray frame; ///< the first of its kind
        QString meaning;
        QStringList causes;
        int others = 0; ///< more of its kind, with other data
    };

    bool probe(const BoxPackage &package, const QString &name, const QStringList &functions, bool isKeys,
               QString *error);
    bool isDriven(const BoxPackage &package) const;
    void findSent();
    void addSent(const QByteArray &frame, const QString &cause);
    QString screenTables() const;
    QString framesText(const QVector<QByteArray> &frames) const;
    QString functionTable() const;

    ProbeUnit *m_unit;
    int m_type;
    BoxSpeaker *m_speaker;
    const DriveTraces &m_drives;
    QString m_fromBox;
    QMap<QString, Function> m_functions;
    QVector<Sent> m_sent;
    QMap<QByteArray, int> m_sentKinds; // of m_sent
};

#endif // BITSHEET_H
