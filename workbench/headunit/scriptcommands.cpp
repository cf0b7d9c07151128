#include "scriptcommands.h"

#include "callwatch.h"
#include "expectation.h"
#include "frontscreen.h"
#include "headunit.h"
#include "numbertext.h"
#include "unitscreen.h"

#include "orbevent.h"
#include "orbhost.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace {

constexpr quint32 LanguageNotification = 20486;
constexpr quint32 LongestWaitMs = 24 * 3600 * 1000;
constexpr quint32 FirstEventType = QEvent::User; // the types below act on any object, whatever it is
constexpr quint32 LastEventType = QEvent::MaxUser;

// "0a1B"; false for anything but whole bytes.
bool readHex(const QString &text, QByteArray *bytes)
{
    const QByteArray digits = text.toLatin1();
    *bytes = QByteArray::fromHex(digits);
    // An array of no bytes is still an array.
    *bytes = bytes->isEmpty() ? QByteArray("") : *bytes;
    return bytes->toHex() == digits.toLower();
}

bool readEventTexts(const QStringList &texts, OrbEvent *event)
{
    for (const QString &text : texts) {
        QByteArray bytes;
        if (text.startsWith("string=")) {
            const QString value = text.section('=', 1);
            event->setStringParam(value.isNull() ? QString("") : value);
        } else if (text.startsWith("bytes=") && readHex(text.section('=', 1), &bytes)) {
            event->setByteArrayParams(bytes);
        } else {
            return false;
        }
    }
    return true;
}

} // namespace

ScriptCommands::ScriptCommands(HeadUnit *unit, DecoderBox *box, CallWatch *watch, QObject *parent)
    : QObject(parent), m_unit(unit), m_box(box), m_watch(watch)
{}

ScriptCommands::~ScriptCommands() = default;
ScriptCommands::Outcome ScriptCommands::carryOut(const QStringList &words)
{
    m_result.clear();
    m_error.clear();
    for (const Row &row : rows()) {
        if (words.first() == row.name) {
            if (row.handler != &ScriptCommands::expect && row.handler != &ScriptCommands::wait) {
                m_watch->forget();
            }
            return readArguments(row, words.mid(1))
                       ? (this->*row.handler)()
                       : fail(QString("expected: %1 %2").arg(row.name, row.arguments).trimmed());
        }
    }
    return fail(QString("unknown command '%1'").arg(words.first()));
}

bool ScriptCommands::readArguments(const Row &row, const QStringList &arguments)
{
    m_numbers.clear();
    quint32 number = 0;
    while (m_numbers.size() < qMin(row.maxNumbers, int(arguments.size())) &&
           NumberText::read(arguments.at(m_numbers.size()), &number)) {
        m_numbers << number;
    }
    m_texts = arguments.mid(m_numbers.size());
    return m_numbers.size() >= row.minNumbers && m_texts.size() >= row.minTexts &&
           m_texts.size() <= row.maxTexts;
}

ScriptCommands::Outcome ScriptCommands::appEvent()
{
    if (number(0) < FirstEventType || number(0) > LastEventType) {
        return fail(QString("event types are %1 to %2").arg(FirstEventType).arg(LastEventType));
    }
    std::unique_ptr<OrbEvent> event(new OrbEvent(0, 0, int(number(0))));
    event->setParams(number(1), number(2));
    if (!readEventTexts(m_texts, event.get())) {
        return fail("expected: bytes=HEX, two digits a byte, or string=TEXT");
    }
    m_unit->post(event.release());
    return Posted;
}

ScriptCommands::Outcome ScriptCommands::show()
{
    m_unit->showApp(number(0));
    return Posted;
}

ScriptCommands::Outcome ScriptCommands::notify()
{
    m_unit->notify(number(0), number(1));
    return Posted;
}

ScriptCommands::Outcome ScriptCommands::state()
{
    m_unit->changeState(number(0), number(1));
    return Posted;
}

ScriptCommands::Outcome ScriptCommands::key()
{
    static const QStringList phases = {"release", "press", "repeat"}; // as HeadUnit::KeyPhase
    const int phase = int(phases.indexOf(text(0)));
    if (phase < 0) {
        return fail(QString("'%1' is none of press, repeat, release").arg(text(0)));
    }
    // What a filter still works on when the answer is due, it has taken.
    m_result = {"consumed"};
    return post([this, code = number(0), phase] {
        if (!m_unit->key(code, HeadUnit::KeyPhase(phase))) {
            m_result = {"delivered"};
        }
    });
}

ScriptCommands::Outcome ScriptCommands::mode()
{
    const uint other = m_numbers.size() > 1 ? number(1) : m_unit->mode();
    return post([this, mode = number(0), other] { m_unit->setMode(mode, other); });
}

ScriptCommands::Outcome ScriptCommands::disk()
{
    return post([this, disk = int(number(0)), status = int(number(1)), paths = m_texts] {
        m_unit->setDisk(disk, status, paths);
    });
}

ScriptCommands::Outcome ScriptCommands::tag()
{
    OrbHost::instance()->setTag(number(0), NumberText::value(text(0)));
    return Done;
}

ScriptCommands::Outcome ScriptCommands::product()
{
    OrbHost::instance()->setProductValue(text(0), NumberText::value(text(1)));
    return Done;
}

ScriptCommands::Outcome ScriptCommands::front()
{
    OrbHost::instance()->setCurWindowAppId(int(number(0)));
    return Done;
}

ScriptCommands::Outcome ScriptCommands::language()
{
    if (!OrbHost::instance()->setLanguage(text(0))) {
        return fail(QString("there is no translation to '%1'").arg(text(0)));
    }
    m_unit->notify(LanguageNotification);
    return Posted;
}

ScriptCommands::Outcome ScriptCommands::windows()
{
    m_result = FrontScreen::windows();
    return Done;
}

ScriptCommands::Outcome ScriptCommands::open()
{
    const QString title = m_texts.join(' ');
    QPointer<QWidget> window = FrontScreen::windowTitled(title);
    if (!window) {
        return fail(QString("no window has the title '%1'").arg(title));
    }
    return post([window] {
        if (window) {
            window->setVisible(true);
        }
    });
}

ScriptCommands::Outcome ScriptCommands::textOf()
{
    const QWidget *widget = FrontScreen::widget(text(0), &m_error);
    QString text;
    return widget && FrontScreen::text(widget, &text, &m_error) ? done(text) : Failed;
}

ScriptCommands::Outcome ScriptCommands::styleOf()
{
    const QWidget *widget = FrontScreen::widget(text(0), &m_error);
    return widget ? done(widget->styleSheet()) : Failed;
}

ScriptCommands::Outcome ScriptCommands::click()
{
    QWidget *widget = FrontScreen::widget(text(0), &m_error);
    return postedIf(widget && FrontScreen::click(widget, &m_error));
}

ScriptCommands::Outcome ScriptCommands::check()
{
    return postedIf(FrontScreen::clickCheckBox(int(number(0)), &m_error));
}

ScriptCommands::Outcome ScriptCommands::listRows()
{
    return FrontScreen::rows(&m_result, &m_error) ? Done : Failed;
}

ScriptCommands::Outcome ScriptCommands::row()
{
    return postedIf(FrontScreen::clickCell(int(number(0)), int(number(1)), &m_error));
}

ScriptCommands::Outcome ScriptCommands::wait()
{
    if (number(0) > LongestWaitMs) {
        return fail(QString("the longest wait is %1 ms").arg(LongestWaitMs));
    }
    m_waitMs = int(number(0));
    return Waits;
}

ScriptCommands::Outcome ScriptCommands::screenshot()
{
    UnitScreen *screen = qobject_cast<UnitScreen *>(OrbHost::instance()->screen());
    if (!screen) {
        return fail("the unit has no screen");
    }
    return screen->saveScreenshot(text(0), &m_error) ? Done : Failed;
}

ScriptCommands::Outcome ScriptCommands::save()
{
    return m_unit->lineRecorder()->save(text(0), &m_error) ? Done : Failed;
}

ScriptCommands::Outcome ScriptCommands::quit()
{
    return Ends;
}

ScriptCommands::Outcome ScriptCommands::expect()
{
    m_expectation.reset(new Expectation(m_watch));
    if (!m_expectation->read(m_texts, &m_error)) {
        return Failed;
    }
    connect(m_expectation.get(), &Expectation::decided, this, [this] {
        const QString outcome = m_expectation->outcome();
        m_result = {outcome};
        m_error = m_expectation->isMet() ? QString() : QString("not met: %1").arg(outcome);
        Q_EMIT decided();
    });
    m_expectation->begin();
    return Expects;
}

ScriptCommands::Outcome ScriptCommands::fail(const QString &error)
{
    m_error = error;
    return Failed;
}

ScriptCommands::Outcome ScriptCommands::done(const QVariant &result)
{
    m_result = {result};
    return Done;
}

ScriptCommands::Outcome ScriptCommands::post(const std::function<void()> &effect)
{
    QMetaObject::invokeMethod(this, effect, Qt::QueuedConnection);
    return Posted;
}
