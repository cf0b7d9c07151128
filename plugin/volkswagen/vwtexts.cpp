#include "vwtexts.h"

#include "vwsettingstable.h"

namespace Vw {
namespace {

// By number. The spelling is the one that drivers know from this screen.
const char *const StartStopTexts[] = {
    QT_TR_NOOP("Trailer mode"),                                                   // 0
    QT_TR_NOOP("Windscreen could become fogged"),                                 // 1
    QT_TR_NOOP("Operating temperature not maintained"),                           // 2
    QT_TR_NOOP("No driver detected"),                                             // 3
    QT_TR_NOOP("Gearbox requires engine to be running"),                          // 4
    QT_TR_NOOP("Power consumption is high"),                                      // 5
    QT_TR_NOOP("Starting start-stop system"),                                     // 6
    QT_TR_NOOP("Engine must be running"),                                         // 7
    QT_TR_NOOP("Gradient too steep"),                                             // 8
    QT_TR_NOOP("Start-stop system is currently not  available"),                  // 9
    QT_TR_NOOP("Emergency brake function intervention"),                          // 10
    QT_TR_NOOP("Brake requires engine to be running"),                            // 11
    QT_TR_NOOP("Power consumption is hight"),                                     // 12
    QT_TR_NOOP("Air conditioning requires engine to be running"),                 // 13
    QT_TR_NOOP("Steering angle too great"),                                       // 14
    QT_TR_NOOP("Manoeuvering mode"),                                              // 15
    QT_TR_NOOP("Defrost function is switched on"),                                // 16
    QT_TR_NOOP("Driver seatbelt not fastened"),                                   // 17
    QT_TR_NOOP("Driver door open"),                                               // 18
    QT_TR_NOOP("Accelerator is depressed"),                                       // 19
    QT_TR_NOOP("Wndscreen heating is switched on"),                               // 20
    QT_TR_NOOP("Maximum air conditioning requires engine to be running"),         // 21
    QT_TR_NOOP("Bonnet has been opened"),                                         // 22
    QT_TR_NOOP("Engine stop currently not possible"),                             // 23
    QT_TR_NOOP("Off-road mode is activated"),                                     // 24
    QT_TR_NOOP("System protection intervention Buttonlever activated too often"), // 25
    QT_TR_NOOP("Gear is engaged"),                                                // 26
    QT_TR_NOOP("Start-stop button pressed"),                                      // 27
    QT_TR_NOOP("Air conditioning requires engine to be running"),                 // 28
    QT_TR_NOOP("ACC intervention"),                                               // 29
    QT_TR_NOOP("Park Assist is activated"),                                       // 30
    QT_TR_NOOP("ESC is switched off"),                                            // 31
    QT_TR_NOOP("Power consumption is hight"),                                     // 32
    QT_TR_NOOP("Start-stop system requires engine to be running"),                // 33
};

// By number; there is no consumer 0.
const char *const ConsumerTexts[] = {
    nullptr,
    QT_TR_NOOP("Air conditioning"),        // 1
    QT_TR_NOOP("Auxiliary heater"),        // 2
    QT_TR_NOOP("Rear window heating"),     // 3
    QT_TR_NOOP("Left seat heating"),       // 4
    QT_TR_NOOP("Right seat heating"),      // 5
    QT_TR_NOOP("Left seat ventilation"),   // 6
    QT_TR_NOOP("Right seat ventilation"),  // 7
    QT_TR_NOOP("Left head area heating"),  // 8
    QT_TR_NOOP("Right head area heating"), // 9
    QT_TR_NOOP("Front fog light"),         // 10
    QT_TR_NOOP("Rear fog light"),          // 11
    QT_TR_NOOP("Windscreen heating"),      // 12
    QT_TR_NOOP("Steering whell heating"),  // 13
    QT_TR_NOOP("Mirror heating"),          // 14
    QT_TR_NOOP("Rear seat heating"),       // 15
    QT_TR_NOOP("Rear seat ventilation"),   // 16
    QT_TR_NOOP("Socket"),                  // 17
    QT_TR_NOOP("Drink holder"),            // 18
};

const char *const Waiting = QT_TR_NOOP("Waiting for the car");
const char *const MinutesAgo = QT_TR_NOOP("Last report %1 min ago");
const char *const HoursAgo = QT_TR_NOOP("Last report %1 h ago");
const qint64 Minute = 60000; // ms
const qint64 Hour = 60 * Minute;

template <int Count>
QString textOf(const char *const (&texts)[Count], int number)
{
    return number >= 0 && number < Count ? text(texts[number]) : QString();
}

} // namespace

QString getStartStopInfo(int number)
{
    return textOf(StartStopTexts, number);
}

QString getReportInfo(int number)
{
    return QString::number(number);
}

QString getConvConsumerInfo(int number)
{
    return textOf(ConsumerTexts, number);
}

QString waitingText()
{
    return text(Waiting);
}

QString ageText(qint64 age)
{
    if (age < Minute) {
        return QString();
    }
    return age < Hour ? text(MinutesAgo).arg(age / Minute) : text(HoursAgo).arg(age / Hour);
}

} // namespace Vw
