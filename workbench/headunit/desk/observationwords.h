#ifndef OBSERVATIONWORDS_H
#define OBSERVATIONWORDS_H

#include <QCoreApplication>
#include <QString>

class BoxSpeaker;

/// What the unit has told the virtual box, in the user's words in place of the box's codes.
class ObservationWords
{
    Q_DECLARE_TR_FUNCTIONS(ObservationWords)

public:
    /// "Source: Radio" of topic "mode" and value "0x01". \a speaker: whose codes they are; null leaves codes numbers.
    static QString line(const BoxSpeaker *speaker, const QString &topic, const QString &value);

private:
    static QString topicText(const QString &topic);
    static QString sourceText(const BoxSpeaker *speaker, int code);
};

#endif // OBSERVATIONWORDS_H
