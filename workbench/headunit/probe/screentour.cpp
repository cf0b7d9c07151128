#include "screentour.h"

#include "headunit.h"
#include "probeunit.h"
#include "screenreader.h"

#include "orbhost.h"

#include <QDataStream>
#include <QDialog>
#include <QTimer>

namespace {

const int StepMs = 20; // between two taps: what the first one opens is there

// The windows in which a driver can tap now.
QVector<QWidget *> openScreens()
{
    QVector<QWidget *> screens;
    for (QWidget *window : OrbHost::instance()->windows()) {
        if (!window->isHidden() && !qobject_cast<QDialog *>(window)) {
            screens << window;
        }
    }
    return screens;
}

} // namespace

ScreenTour::ScreenTour(ProbeUnit *unit) : m_unit(unit) {}

// What comes of \a act in a child, and of tapping the targets \a steps, by number, of the dialog that it opens. A
// dialog runs a loop of its own, in which the steps are then carried out.
ScreenTour::Effect ScreenTour::effectOf(const std::function<void()> &act, const QVector<int> &steps) const
{
    const auto play = [&] {
        for (int i = 0; i < steps.size(); ++i) {
            QTimer::singleShot((i + 1) * StepMs, [step = steps.at(i)] {
                static const QVector<ScreenTap::Target> targets =
                    ScreenTap::openDialog() ? ScreenTap::targets(ScreenTap::openDialog())
                                            : QVector<ScreenTap::Target>();
                if (step < targets.size()) {
                    targets.at(step).tap();
                }
            });
        }
        act();
    };
    const auto report = [this](QDataStream *stream) {
        QStringList opened;
        for (const QWidget *window : openScreens()) {
            opened << ScreenReader::nameOf(window);
        }
        for (const Screen &screen : m_screens) {
            opened.removeAll(screen.name);
        }
        QStringList names;
        const QWidget *dialog = ScreenTap::openDialog();
        for (const ScreenTap::Target &target :
             dialog ? ScreenTap::targets(dialog) : QVector<ScreenTap::Target>()) {
            names << target.name;
        }
        *stream << opened << !m_unit->changedTexts().isEmpty() << names << (dialog != nullptr)
                << m_unit->sent();
    };
    Effect effect{};
    const QByteArray told = m_unit->observe(play, (int(steps.size()) + 2) * StepMs, report);
    QDataStream stream(told);
    stream >> effect.opened >> effect.hasTurned >> effect.dialog >> effect.isDialog >> effect.sent;
    return effect;
}

void ScreenTour::open(HeadUnit *head)
{
    for (const unsigned int app : OrbHost::instance()->titledApps()) {
        const Packages asked = effectOf([head, app] { head->showApp(app); }, {}).sent;
        head->showApp(app);
        add(QString(), asked);
    }
    for (int place = 0; place < m_places.size(); ++place) {
        openFrom(place);
    }
}

// Takes the screens that have come.
void ScreenTour::add(const QString &openedBy, const Packages &asked)
{
    m_unit->settle(StepMs);
    for (QWidget *window : openScreens()) {
        bool isKnown = false;
        for (const Place &place : std::as_const(m_places)) {
            isKnown = isKnown || place.window == window;
        }
        if (!isKnown) {
            m_screens << Screen{ScreenReader::nameOf(window), openedBy, asked, {}};
            m_places << Place{window, ScreenTap::targets(window)};
        }
    }
}

void ScreenTour::openFrom(int place)
{
    const QVector<ScreenTap::Target> targets = m_places.at(place).targets;
    for (const ScreenTap::Target &target : targets) {
        const Effect effect = effectOf([target] { target.tap(); }, {});
        if (!effect.opened.isEmpty() && !effect.isDialog) {
            target.tap();
            add(m_screens.at(place).name + ": " + target.name, effect.sent);
        } else if (effect.hasTurned && target.row < 0 && !effect.isDialog) {
            m_turns << target;
        }
    }
}

void ScreenTour::tapAll()
{
    for (int place = 0; place < m_places.size(); ++place) {
        for (const ScreenTap::Target &target : std::as_const(m_places[place].targets)) {
            const QVector<Answer> answers = answersOf(target);
            if (!answers.isEmpty()) {
                m_screens[place].controls << Control{target.name, answers};
            }
        }
    }
}

// A dialog's buttons either end it or choose something that one of those then says.
QVector<ScreenTour::Answer> ScreenTour::answersOf(const ScreenTap::Target &target) const
{
    const auto tap = [target] { target.tap(); };
    const Effect first = effectOf(tap, {});
    QVector<Answer> answers;
    if (!first.isDialog) {
        return first.sent.isEmpty() ? answers : answers << Answer{QString(), first.sent};
    }
    QVector<int> ends;
    QVector<Answer> plain;
    for (int i = 0; i < first.dialog.size(); ++i) {
        const Effect effect = effectOf(tap, {i});
        if (!effect.isDialog) {
            ends << i;
            plain << Answer{first.dialog.at(i), effect.sent};
        }
    }
    for (int i = 0; i < first.dialog.size(); ++i) {
        for (int k = 0; !ends.contains(i) && k < ends.size(); ++k) {
            const Packages sent = effectOf(tap, {i, ends.at(k)}).sent;
            if (!sent.isEmpty()) {
                answers << Answer{first.dialog.at(i), sent};
                break;
            }
        }
    }
    for (const Answer &answer : std::as_const(plain)) {
        bool isNew = !answer.sent.isEmpty();
        for (const Answer &other : std::as_const(answers)) {
            isNew = isNew && other.sent != answer.sent;
        }
        if (isNew) {
            answers << answer;
        }
    }
    return answers;
}
