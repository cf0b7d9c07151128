#ifndef BOXSPEAKER_H
#define BOXSPEAKER_H

#include "frameformat.h"
#include "simulatedcar.h"

#include <QHash>
#include <QObject>

#include <functional>

/// A key or knob of the car that the box reports.
struct BoxKey
{
    enum Source {
        Wheel, ///< on the steering wheel
        Panel, ///< on the car's own head unit panel
        Knob   ///< turned, on either: reports clicks, not presses
    };

    QString name; ///< "volume_up"
    Source source;
    quint8 command;
    quint8 code;
};

/// One kind of package that a box sends about the car.
struct BoxReport
{
    QString meaning; ///< "climate", for logs
    quint8 command;
    QStringList concerns; ///< names of properties, or beginnings of names that end in a point
    std::function<QByteArray(const SimulatedCar &)> data;
    bool atStart;   ///< sent with the state after ready; else only when something changes or the unit asks
    int period = 0; ///< ms, of a report that the box repeats all the time; 0 for one that it does not

    bool isAbout(const QString &property) const;
};

/// What one make of box says and understands: one subclass for each protocol. A speaker knows neither line
/// nor time; DecoderBox does.
class BoxSpeaker : public QObject
{
    Q_OBJECT

public:
    enum KeyState { Released = 0, Pressed = 1, Held = 2 };
    enum Touch { TouchReleased = 0, TouchPressed = 1, TouchMoved = 2 };
    enum Understanding {
        Understood,
        TooShort,      ///< a known command without the data it needs; nothing came of it
        UnknownCommand ///< nothing came of it
    };

    /// \a car is not owned and must outlive the speaker.
    BoxSpeaker(SimulatedCar *car, const FrameFormat &format, QObject *parent = nullptr);

    const FrameFormat &format() const { return m_format; }

    /// Whether the unit acknowledges each package with 0xFF and expects the same.
    virtual bool usesAcknowledgement() const = 0;

    /// Bits a second on its line, ten a byte.
    virtual int baudRate() const = 0;

    const QVector<BoxReport> &reports() const { return m_reports; }
    /// The package of reports()[\a index] for the car as it is now.
    BoxPackage reportPackage(int index) const;

    /// The keys and knobs of this car, in the order of the box's codes.
    const QVector<BoxKey> &keys() const { return m_keys; }
    /// The key or knob called \a name, or null.
    const BoxKey *findKey(const QString &name) const;
    /// The packages for a key that has just come into \a state; none for a state that the box does not
    /// report.
    virtual QVector<BoxPackage> keyPackages(const BoxKey &key, KeyState state) const;
    /// The package for a knob turned by \a count clicks (0 to 255).
    virtual BoxPackage knobPackage(const BoxKey &key, int count) const;

    /// Whether the car has a touch screen that the box reports; x and y are 0 to 65535.
    virtual bool hasTouch() const { return false; }
    virtual BoxPackage touchPackage(Touch touch, int x, int y) const;

    /// Names of the car's properties that mean something with this box, in the car's order: what its packages
    /// carry, what the unit can change, and how the box behaves.
    QStringList properties() const;

    /// The commands of the unit that the box understands, in no order.
    QList<quint8> commands() const { return m_commands.keys(); }
    /// Takes a good package from the unit; \a meaning becomes what it says, for logs.
    Understanding receive(const BoxPackage &package, QString *meaning);

Q_SIGNALS:
    /// The unit is ready for packages.
    void readyReceived();
    /// The unit wants no more packages.
    void endReceived();
    /// The unit asks for reports()[\a index], or has changed something that it carries.
    void reportDue(int index);
    /// A package of a dialogue that is no report about the car.
    void packageDue(const BoxPackage &package, const QString &meaning);
    /// Something that the unit told the box: "mode" "0x01", "setting 128" "3".
    void observed(const QString &topic, const QString &value);

protected:
    using Handler = std::function<QString(const BoxPackage &)>;

    SimulatedCar *car() const { return m_car; }

    void addReport(const BoxReport &report) { m_reports << report; }
    void addKey(const BoxKey &key) { m_keys << key; }
    /// \a handler is called for packages with at least \a minimum data bytes and returns what they mean.
    void addCommand(quint8 command, int minimum, const Handler &handler);
    /// Adds to properties() what no report carries: names or beginnings of names that end in a point.
    void addProperties(const QStringList &names) { m_moreProperties << names; }
    /// Sends again what carries \a property.
    void answerWith(const QString &property);
    /// Tells observed() and returns "TOPIC VALUE".
    QString observe(const QString &topic, const QString &value);

    static QString hex(int value, int digits = 2);

private:
    struct Command
    {
        int minimum;
        Handler handler;
    };

    SimulatedCar *m_car;
    const FrameFormat &m_format;
    QVector<BoxReport> m_reports;
    QVector<BoxKey> m_keys;
    QHash<quint8, Command> m_commands;
    QStringList m_moreProperties;
};

#endif // BOXSPEAKER_H
