#ifndef VWTEXTS_H
#define VWTEXTS_H

#include <QString>

/// Texts of the numbers that the car reports, in the unit's language. Empty for a number without a text.
namespace Vw {

/// Why the engine is not stopped, or was started: 0..33.
QString getStartStopInfo(int number);

/// A vehicle report: its code, any number.
QString getReportInfo(int number);

/// A convenience consumer that costs fuel: 1..18.
QString getConvConsumerInfo(int number);

/// "Waiting for the car", for a screen whose questions the box has not answered.
QString waitingText();

/// Milliseconds after which a screen that shows an age tells it anew: ages are told in minutes.
const int AgeInterval = 10000;

/// "Last report 12 min ago" for a report that is \a age milliseconds old; empty below a minute.
QString ageText(qint64 age);

} // namespace Vw

#endif // VWTEXTS_H
