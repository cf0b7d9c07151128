#include "boxcommand.h"

#include "decoderbox.h"

namespace {

const int TapMs = 50;
const int LongestMs = 600000;
const int LongestAmount = 65535; // bytes or ms of what one package suffers

bool readNumber(const QString &text, int least, int most, int *number)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok || value < least || value > most) {
        return false;
    }
    *number = value;
    return true;
}

} // namespace

// What a line suffers at once, or the box at some time, by "fault NAME".
struct BoxCommand::LineOrder
{
    const char *name;
    const char *amount; // "N" or "MS"; in brackets when it may be left out
    Action action;
    const char *help;
};

const QVector<BoxCommand::Row> &BoxCommand::rows()
{
    using C = BoxCommand;
    static const QVector<Row> table = {
        {"key", "NAME press|hold|release|tap [MS]",
         "a key goes down, goes down and stays (the box repeats it every 200 ms), comes up, or goes down and "
         "comes up "
         "after MS (50)",
         &C::parseKey},
        {"knob", "NAME COUNT", "a knob turns by 0 to 255 clicks", &C::parseKnob},
        {"touch", "X Y press|move|release", "a finger on the car's screen, where the box reports touches",
         &C::parseTouch},
        {"raw", "HEX", "these bytes leave at once, whatever the box is doing", &C::parseRaw},
        {"fault", "...", "", &C::parseFault},
        {"start", "", "the box begins to talk as after the unit's ready", &C::parsePlain<Start>},
        {"end", "", "the drive is over; the program `decoderbox` ends", &C::parsePlain<End>},
        {"again", "", "the drive starts over, and over; not at time 0", &C::parsePlain<Again>},
    };
    return table;
}

const QVector<BoxCommand::LineOrder> &BoxCommand::lineOrders()
{
    static const QVector<LineOrder> table = {
        {"noise", "N", Noise, "N bytes of noise leave at once; a start byte may be among them"},
        {"silence", "MS", Silence, "the box says nothing for so long"},
        {"unplug", "[MS]", Unplug, "the line is pulled out, and put back after MS where that is told"},
        {"replug", "", Replug, "the line is put back"},
        {"update", "N", CutUpdate,
         "the line is pulled out when firmware packet N of an update, counted from 1, has arrived"},
        {"none", "", NoFaults, "nothing is wrong any more with packages and acknowledgements"},
    };
    return table;
}

QVector<BoxCommand::Syntax> BoxCommand::syntax()
{
    QVector<Syntax> result = {
        {"PROPERTY VALUE", "a property of the car changes; the box tells what its protocol can tell"}};
    for (const Row &row : rows()) {
        if (row.parser != &BoxCommand::parseFault) {
            result << Syntax{QString("%1 %2").arg(row.verb, row.arguments).trimmed(), row.help};
            continue;
        }
        for (const LineOrder &order : lineOrders()) {
            result << Syntax{QString("fault %1 %2").arg(order.name, order.amount).trimmed(), order.help};
        }
        for (const LineFaults::Row &fault : LineFaults::rows()) {
            result << Syntax{QString("fault %1 %2").arg(fault.name, fault.amount).trimmed() + " [RATE%]",
                             fault.help};
        }
    }
    return result;
}

bool BoxCommand::parse(const QString &line, const DecoderBox &box, QString *error)
{
    const QString trimmed = line.trimmed();
    const QStringList words = trimmed.simplified().split(' ');
    for (const Row &row : rows()) {
        if (words.first() == row.verb && (*row.arguments || words.size() == 1)) {
            return (this->*row.parser)(words, box, error);
        }
    }
    return parseProperty(words.first(), trimmed.mid(words.first().size()).trimmed(), error);
}

template <BoxCommand::Action Which>
bool BoxCommand::parsePlain(const QStringList &, const DecoderBox &, QString *)
{
    m_action = Which;
    return true;
}

bool BoxCommand::parseProperty(const QString &name, const QString &value, QString *error)
{
    m_action = SetProperty;
    m_name = name;
    m_value = value;
    return SimulatedCar::check(name, value, error);
}

bool BoxCommand::parseKey(const QStringList &words, const DecoderBox &box, QString *error)
{
    static const QHash<QString, Action> actions = {
        {"press", Press}, {"hold", Press}, {"release", Release}, {"tap", Tap}};
    m_name = words.value(1);
    m_number = TapMs;
    const BoxKey *key = box.speaker()->findKey(m_name);
    if (!key || key->source == BoxKey::Knob) {
        *error = QString("unknown key '%1'").arg(m_name);
        return false;
    }
    const bool hasTime = words.size() == 4 && words.at(2) == "tap";
    if (!actions.contains(words.value(2)) || (words.size() != 3 && !hasTime) ||
        (hasTime && !readNumber(words.at(3), 0, LongestMs, &m_number))) {
        *error = "expected: key NAME press|hold|release|tap [MS]";
        return false;
    }
    m_action = actions.value(words.at(2));
    return true;
}

bool BoxCommand::parseKnob(const QStringList &words, const DecoderBox &box, QString *error)
{
    m_action = Turn;
    m_name = words.value(1);
    const BoxKey *key = box.speaker()->findKey(m_name);
    if (!key || key->source != BoxKey::Knob) {
        *error = QString("unknown knob '%1'").arg(m_name);
        return false;
    }
    if (words.size() != 3 || !readNumber(words.at(2), 0, 255, &m_number)) {
        *error = "expected: knob NAME COUNT, with a count from 0 to 255";
        return false;
    }
    return true;
}

bool BoxCommand::parseTouch(const QStringList &words, const DecoderBox &box, QString *error)
{
    static const QHash<QString, int> touches = {{"press", BoxSpeaker::TouchPressed},
                                                {"move", BoxSpeaker::TouchMoved},
                                                {"release", BoxSpeaker::TouchReleased}};
    m_action = TouchScreen;
    if (!box.speaker()->hasTouch()) {
        *error = "this box reports no touches";
        return false;
    }
    if (words.size() != 4 || !readNumber(words.at(1), 0, 65535, &m_x) ||
        !readNumber(words.at(2), 0, 65535, &m_y) || !touches.contains(words.at(3))) {
        *error = "expected: touch X Y press|move|release";
        return false;
    }
    m_number = touches.value(words.at(3));
    return true;
}

bool BoxCommand::parseRaw(const QStringList &words, const DecoderBox &, QString *error)
{
    m_action = Raw;
    const QByteArray digits = words.mid(1).join(QString()).toLower().toLatin1();
    m_bytes = QByteArray::fromHex(digits);
    if (m_bytes.isEmpty() || m_bytes.toHex() != digits) {
        *error = "expected: raw HEX, two digits for each byte";
        return false;
    }
    return true;
}

bool BoxCommand::parseFault(const QStringList &words, const DecoderBox &box, QString *error)
{
    QStringList names;
    for (const LineOrder &order : lineOrders()) {
        if (words.value(1) == order.name) {
            return parseLineOrder(order, words, box, error);
        }
        names << order.name;
    }
    for (const LineFaults::Row &fault : LineFaults::rows()) {
        if (words.value(1) == fault.name) {
            return parseStrike(fault, words, box, error);
        }
        names << fault.name;
    }
    *error = QString("there is no fault '%1'; there are %2").arg(words.value(1), names.join(", "));
    return false;
}

bool BoxCommand::parseLineOrder(const LineOrder &order, const QStringList &words, const DecoderBox &box,
                                QString *error)
{
    const bool mayLack = !*order.amount || *order.amount == '[';
    m_action = order.action;
    if (words.size() > (*order.amount ? 3 : 2) || (words.size() == 2 && !mayLack) ||
        (words.size() == 3 && !readNumber(words.at(2), 0, LongestMs, &m_number))) {
        *error = QString("expected: fault %1 %2").arg(order.name, order.amount).trimmed();
    } else if (m_action == CutUpdate && !box.speaker()->properties().contains("firmware.fault")) {
        *error = "this box takes no firmware";
    } else if ((m_action == CutUpdate || m_action == Unplug) && !box.canUnplug()) {
        *error = "this line cannot be pulled out: it has no link by which the unit would find it again";
    } else {
        return true;
    }
    return false;
}

bool BoxCommand::parseStrike(const LineFaults::Row &fault, QStringList words, const DecoderBox &box,
                             QString *error)
{
    bool ok = true;
    m_fault = fault.kind;
    m_action = words.last().endsWith('%') ? SetRate : StrikeNext;
    if (m_action == SetRate) {
        m_percent = words.takeLast().chopped(1).toDouble(&ok);
        ok = ok && m_percent >= 0 && m_percent <= 100;
    }
    const bool hasAmount = *fault.amount;
    if (!ok || words.size() != (hasAmount ? 3 : 2) ||
        (hasAmount && !readNumber(words.at(2), 0, LongestAmount, &m_number))) {
        *error = QString("expected: fault %1 %2").arg(fault.name, fault.amount).trimmed() +
                 QString(" [RATE%], a rate from 0% to 100%");
        return false;
    }
    if (m_fault == LineFaults::Late && !box.speaker()->usesAcknowledgement()) {
        *error = "this box sends no acknowledgements";
        return false;
    }
    return true;
}

void BoxCommand::carryOut(DecoderBox *box) const
{
    switch (m_action) {
    case SetProperty:
        box->car()->setValue(m_name, m_value);
        break;
    case Press:
        box->keys()->press(m_name);
        break;
    case Release:
        box->keys()->release(m_name);
        break;
    case Tap:
        tap(box);
        break;
    case Turn:
        box->keys()->turn(m_name, m_number);
        break;
    case TouchScreen:
        box->keys()->touch(BoxSpeaker::Touch(m_number), m_x, m_y);
        break;
    case Raw:
        box->sendRaw(m_bytes);
        break;
    case Start:
        box->start();
        break;
    case End:
    case Again:
        break;
    default:
        disturb(box);
        break;
    }
}

void BoxCommand::disturb(DecoderBox *box) const
{
    switch (m_action) {
    case Noise:
        box->sendNoise(m_number);
        break;
    case Silence:
        box->holdTongue(m_number);
        break;
    case Unplug:
        box->unplug(m_number);
        break;
    case Replug:
        box->replug();
        break;
    case CutUpdate:
        box->cutUpdateAt(m_number);
        break;
    case NoFaults:
        box->faults()->clear();
        break;
    case StrikeNext:
        box->faults()->strikeNext(m_fault, m_number);
        break;
    case SetRate:
        box->faults()->setRate(m_fault, m_number, m_percent);
        break;
    default:
        break;
    }
}

void BoxCommand::tap(DecoderBox *box) const
{
    QTimer *release = new QTimer(box);
    release->setSingleShot(true);
    QObject::connect(release, &QTimer::timeout, box, [box, release, name = m_name] {
        box->keys()->release(name);
        release->deleteLater();
    });
    box->keys()->press(m_name);
    release->start(m_number);
}
