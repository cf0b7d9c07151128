#include "observationwords.h"

#include "boxspeaker.h"

namespace {

struct Word
{
    const char *name;
    const char *text;
};

// First words of topics; others stand for themselves.
const Word Topics[] = {{"mode", QT_TRANSLATE_NOOP("ObservationWords", "Source")},
                       {"setting", QT_TRANSLATE_NOOP("ObservationWords", "Setting")},
                       {"sound", QT_TRANSLATE_NOOP("ObservationWords", "Sound")},
                       {"command", QT_TRANSLATE_NOOP("ObservationWords", "Order")},
                       {"clock", QT_TRANSLATE_NOOP("ObservationWords", "Clock")},
                       {"camera", QT_TRANSLATE_NOOP("ObservationWords", "Camera")},
                       {"brightness", QT_TRANSLATE_NOOP("ObservationWords", "Brightness")},
                       {"application", QT_TRANSLATE_NOOP("ObservationWords", "Application")},
                       {"display", QT_TRANSLATE_NOOP("ObservationWords", "Picture")},
                       {"firmware", QT_TRANSLATE_NOOP("ObservationWords", "Firmware")}};

// The source that the car's display is to show, by speaker.
struct Source
{
    const char *speaker;
    int code;
    const char *text;
};

const char *const Radio = QT_TRANSLATE_NOOP("ObservationWords", "Radio");
const char *const Music = QT_TRANSLATE_NOOP("ObservationWords", "Music");
const char *const Telephone = QT_TRANSLATE_NOOP("ObservationWords", "Bluetooth");
const char *const Other = QT_TRANSLATE_NOOP("ObservationWords", "another one");

const Source Sources[] = {
    {"ToyotaSpeaker", 1, Radio}, {"ToyotaSpeaker", 4, Other},    {"ToyotaSpeaker", 5, Telephone},
    {"ToyotaSpeaker", 7, Music}, {"HondaSpeaker", 1, Radio},     {"HondaSpeaker", 3, Music},
    {"HondaSpeaker", 4, Other},  {"HondaSpeaker", 6, Telephone}, {"HondaSpeaker", 7, Other}};

// "13" of "0x0d"; any other text as it is.
QString withoutCode(const QString &text)
{
    bool isCode = false;
    const int number = text.startsWith(QLatin1String("0x")) ? text.mid(2).toInt(&isCode, 16) : 0;
    return isCode ? QString::number(number) : text;
}

} // namespace

QString ObservationWords::topicText(const QString &topic)
{
    const QString first = topic.section(QLatin1Char(' '), 0, 0);
    const QString rest = withoutCode(topic.section(QLatin1Char(' '), 1));
    QString text = first;
    for (const Word &word : Topics) {
        text = first == QLatin1String(word.name) ? tr(word.text) : text;
    }
    return rest.isEmpty() || first == QLatin1String("display") ? text : text + QLatin1Char(' ') + rest;
}

QString ObservationWords::sourceText(const BoxSpeaker *speaker, int code)
{
    if (code == 0) {
        return tr("none");
    }
    for (const Source &source : Sources) {
        if (speaker && code == source.code &&
            qstrcmp(speaker->metaObject()->className(), source.speaker) == 0) {
            return tr(source.text);
        }
    }
    return QString::number(code);
}

QString ObservationWords::line(const BoxSpeaker *speaker, const QString &topic, const QString &value)
{
    const QString text =
        topic == QLatin1String("mode") ? sourceText(speaker, withoutCode(value).toInt()) : withoutCode(value);
    return topicText(topic) + QStringLiteral(": ") + text;
}
