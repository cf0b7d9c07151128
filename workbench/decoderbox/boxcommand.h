#ifndef BOXCOMMAND_H
#define BOXCOMMAND_H

#include "linefaults.h"

#include <QByteArray>
#include <QStringList>
#include <QVector>

class DecoderBox;

/// One order to a box, as a scenario or a script writes it: "climate.left 21.5", "key volume_up tap". syntax()
/// has them all.
class BoxCommand
{
public:
    struct Syntax
    {
        QString order; ///< "key NAME press|hold|release"
        QString help;
    };
    /// What can be ordered, for a reader.
    static QVector<Syntax> syntax();

    /// Reads \a line for \a box. False, with what is wrong in \a error, when the line is no order or the box
    /// or its car has no such thing; the command is then not to be carried out.
    bool parse(const QString &line, const DecoderBox &box, QString *error);

    /// Carries the order out on the box that it was read for; End and Again do nothing.
    void carryOut(DecoderBox *box) const;

    /// Whether no order can follow in a scenario.
    bool isLast() const { return m_action == End || m_action == Again; }
    bool isEnd() const { return m_action == End; }
    bool isAgain() const { return m_action == Again; }

private:
    enum Action {
        SetProperty,
        Press,
        Release,
        Tap,
        Turn,
        TouchScreen,
        Raw,
        Noise,
        Silence,
        Unplug,
        Replug,
        CutUpdate,
        NoFaults,
        StrikeNext,
        SetRate,
        Start,
        End,
        Again
    };
    using Parser = bool (BoxCommand::*)(const QStringList &words, const DecoderBox &box, QString *error);
    struct Row
    {
        const char *verb;
        const char *arguments;
        const char *help;
        Parser parser;
    };
    struct LineOrder;

    static const QVector<Row> &rows();
    static const QVector<LineOrder> &lineOrders();
    bool parseProperty(const QString &name, const QString &value, QString *error);
    bool parseKey(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseKnob(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseTouch(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseRaw(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseFault(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseLineOrder(const LineOrder &order, const QStringList &words, const DecoderBox &box,
                        QString *error);
    bool parseStrike(const LineFaults::Row &fault, QStringList words, const DecoderBox &box, QString *error);
    template <Action Which>
    bool parsePlain(const QStringList &words, const DecoderBox &box, QString *error);
    void tap(DecoderBox *box) const;
    void disturb(DecoderBox *box) const;

    Action m_action = End;
    QString m_name;
    QString m_value;
    int m_number = 0;
    int m_x = 0;
    int m_y = 0;
    LineFaults::Kind m_fault = LineFaults::Flip;
    double m_percent = 0;
    QByteArray m_bytes;
};

#endif // BOXCOMMAND_H
