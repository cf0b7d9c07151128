#ifndef BOXCOMMAND_H
#define BOXCOMMAND_H

#include <QByteArray>
#include <QString>

class DecoderBox;

/// One order to a box, as a scenario or a script writes it:
///
///     climate.left 21.5              a property of the car and its new value
///     key NAME press|hold|release    hold is a press that stays: the box repeats the key until its release
///     key NAME tap [MS]              press, and release after MS (50)
///     knob NAME COUNT                0 to 255 clicks
///     touch X Y press|move|release   on the car's screen
///     raw HEX                        these bytes at once; blanks between them are welcome
///     fault noise N                  N bytes of noise
///     fault cut N                    the next package ends after N bytes
///     fault corrupt                  the next package has a wrong byte
///     fault silence MS               the box says nothing for so long
///     start                          the box starts as after ready
///     end                            the scenario ends here
///     again                          the scenario starts over
class BoxCommand
{
public:
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
        Cut,
        Corrupt,
        Silence,
        Start,
        End,
        Again
    };

    bool parseProperty(const QString &name, const QString &value, QString *error);
    bool parseKey(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseKnob(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseTouch(const QStringList &words, const DecoderBox &box, QString *error);
    bool parseRaw(const QString &hex, QString *error);
    bool parseFault(const QStringList &words, QString *error);
    void tap(DecoderBox *box) const;

    Action m_action = End;
    QString m_name;
    QString m_value;
    int m_number = 0;
    int m_x = 0;
    int m_y = 0;
    QByteArray m_bytes;
};

#endif // BOXCOMMAND_H
