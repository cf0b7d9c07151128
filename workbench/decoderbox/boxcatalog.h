#ifndef BOXCATALOG_H
#define BOXCATALOG_H

#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

class BoxSpeaker;
class DecoderBox;
class QObject;
class SimulatedCar;
struct FrameFormat;

/// Which box goes with which CAN-bus type of the head unit.
class BoxCatalog
{
public:
    struct Row
    {
        int type;
        const char *className; ///< of the plug-in's adapter
        const char *car;       ///< one short word, with which drives' file names begin
        BoxSpeaker *(*makeSpeaker)(SimulatedCar *car); ///< null where nobody knows the box's protocol
        bool isFromDataSheet = false; ///< after the box maker's data sheet, not yet seen on a car
    };

    /// All types, in order of their numbers.
    static const QVector<Row> &rows();

    /// The type that \a text names: by number (decimal or 0x-hexadecimal), by the car's word, or by class name,
    /// whole or without what stands before any of its underscores, in any case; 0 for none.
    static int typeFromText(const QString &text);

    /// Every type's number and class, each on a line of its own that begins with the line break.
    static QString list();
    /// The class name of \a type; empty for one that does not exist.
    static QString className(int type);

    /// How the packages of \a type look; null for a type that does not exist or whose packages nobody knows.
    static const FrameFormat *frameOf(int type);

    /// The commands with which a box of \a type is known to report something to the unit, each with the numbers of
    /// data bytes that it has then.
    static QHash<quint8, QSet<int>> reportedBy(int type);

    /// A box for \a type with its own car, owned by \a parent or else by the caller. Null, with one sentence
    /// in \a error, for a type that does not exist or whose box nobody knows.
    static DecoderBox *createBox(int type, QObject *parent, QString *error);
};

#endif // BOXCATALOG_H
