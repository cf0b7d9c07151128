#ifndef KEYTESTER_H
#define KEYTESTER_H

#include "inspectionrow.h"
#include "keyreader.h"

#include <QObject>

#include <deque>

/// One time that a key was down.
struct KeyStroke
{
    enum Group { Wheel, Panel, Knob, Unit };

    Group group = Wheel;
    int command = -1;      ///< of the box; -1 for a key of the unit
    quint32 code = 0;      ///< raw: as the box counts its keys, or the unit
    quint64 lineValue = 0; ///< of a unit's key on its analogue line, where a key set was learned; 0 for none
    QString name;          ///< in the virtual box's words: "volume_up"; empty for a key that it does not know
    qint64 pressed = -1;   ///< microseconds; -1 when only its release was seen
    qint64 released = -1;  ///< -1 while it is down
    int holds = 0;         ///< how often it was said that it is held
    int clicks = 0;        ///< of a knob
    bool isStuck = false;  ///< was down for too long
    QVector<quint32> becomes;   ///< keys of the framework that came of it, each once, in order
    QVector<quint32> redefined; ///< of a unit's key: those that a key set made of it

    bool isDown() const { return released < 0; }
    /// How long it was down, in ms; until \a now while it is. 0 without a press.
    qint64 downFor(qint64 now) const;
};

/// Follows the keys of car and unit in the rows of an inspection.
class KeyTester : public QObject
{
    Q_OBJECT

public:
    static constexpr qint64 LongestPress = 10000000; ///< microseconds; who is down for longer never comes up
    static constexpr int MostStrokes = 1000;         ///< older ones go

    /// \a reader says which packages are about keys.
    explicit KeyTester(const KeyReader &reader, QObject *parent = nullptr);

    /// Takes the next row, with all that it has caused.
    void take(const InspectionRow &row);
    /// It is \a now, in microseconds: tells which keys have not come up for too long.
    void look(qint64 now);

    /// In the order in which they were pressed.
    const std::deque<KeyStroke> &strokes() const { return m_strokes; }

Q_SIGNALS:
    void pressed(const KeyStroke &stroke);
    /// It came up; without a press when that was not seen.
    void released(const KeyStroke &stroke);
    void turned(const KeyStroke &stroke);
    /// It has not come up for LongestPress.
    void stuck(const KeyStroke &stroke);

private:
    void takePackage(const InspectionRow &row);
    void takeUnitKey(const InspectionRow &row);
    void learn(const QString &registration);
    KeyStroke *find(KeyStroke::Group group, int command, int code);
    KeyStroke *add(const KeyStroke &stroke);
    void release(KeyStroke *stroke, const InspectionRow &row);
    void releaseAll(int command, const InspectionRow &row);

    KeyReader m_reader;
    std::deque<KeyStroke> m_strokes;
    QMap<quint32, quint64> m_lineValues; // of a learned key set
};

#endif // KEYTESTER_H
