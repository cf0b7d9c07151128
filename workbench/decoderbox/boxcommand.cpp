#include "boxcommand.h"

#include "decoderbox.h"

namespace {

const int TapMs = 50;
const int LongestMs = 600000;

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

bool BoxCommand::parse(const QString &line, const DecoderBox &box, QString *error)
{
    const QString trimmed = line.trimmed();
    const QStringList words = trimmed.simplified().split(' ');
    const QString &verb = words.first();
    const QString rest = trimmed.mid(verb.size()).trimmed();
    if (verb == "key") {
        return parseKey(words, box, error);
    }
    if (verb == "knob") {
        return parseKnob(words, box, error);
    }
    if (verb == "touch") {
        return parseTouch(words, box, error);
    }
    if (verb == "raw") {
        return parseRaw(rest, error);
    }
    if (verb == "fault") {
        return parseFault(words, error);
    }
    static const QHash<QString, Action> plainActions = {{"start", Start}, {"end", End}, {"again", Again}};
    if (plainActions.contains(verb) && rest.isEmpty()) {
        m_action = plainActions.value(verb);
        return true;
    }
    return parseProperty(verb, rest, error);
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

bool BoxCommand::parseRaw(const QString &hex, QString *error)
{
    m_action = Raw;
    const QByteArray digits = QString(hex).remove(' ').toLower().toLatin1();
    m_bytes = QByteArray::fromHex(digits);
    if (m_bytes.isEmpty() || m_bytes.toHex() != digits) {
        *error = "expected: raw HEX, two digits for each byte";
        return false;
    }
    return true;
}

bool BoxCommand::parseFault(const QStringList &words, QString *error)
{
    static const QHash<QString, Action> actions = {{"noise", Noise}, {"cut", Cut}, {"silence", Silence}};
    if (words.size() == 2 && words.at(1) == "corrupt") {
        m_action = Corrupt;
        return true;
    }
    if (words.size() != 3 || !actions.contains(words.at(1)) ||
        !readNumber(words.at(2), 0, LongestMs, &m_number)) {
        *error = "expected: fault noise N, fault cut N, fault corrupt or fault silence MS";
        return false;
    }
    m_action = actions.value(words.at(1));
    return true;
}

void BoxCommand::carryOut(DecoderBox *box) const
{
    switch (m_action) {
    case SetProperty:
        box->car()->setValue(m_name, m_value);
        break;
    case Press:
        box->pressKey(m_name);
        break;
    case Release:
        box->releaseKey(m_name);
        break;
    case Tap:
        tap(box);
        break;
    case Turn:
        box->turnKnob(m_name, m_number);
        break;
    case TouchScreen:
        box->touch(BoxSpeaker::Touch(m_number), m_x, m_y);
        break;
    case Raw:
        box->sendRaw(m_bytes);
        break;
    case Noise:
        box->sendNoise(m_number);
        break;
    case Cut:
        box->spoilNext(DecoderBox::CutNext, m_number);
        break;
    case Corrupt:
        box->spoilNext(DecoderBox::CorruptNext);
        break;
    case Silence:
        box->holdTongue(m_number);
        break;
    case Start:
        box->start();
        break;
    case End:
    case Again:
        break;
    }
}

void BoxCommand::tap(DecoderBox *box) const
{
    QTimer *release = new QTimer(box);
    release->setSingleShot(true);
    QObject::connect(release, &QTimer::timeout, box, [box, release, name = m_name] {
        box->releaseKey(name);
        release->deleteLater();
    });
    box->pressKey(m_name);
    release->start(m_number);
}
