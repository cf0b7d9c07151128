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
        for (const QWidget *window : ScreenPath::openWindows()) {
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
    for (const ScreenPath::Step &step : ScreenPath::launcher()) {
        const Packages asked = effectOf([&] { m_path.take(step, head); }, {}).sent;
        m_path.take(step, head);
        add(step, QString(), asked);
    }
    for (int place = 0; place < m_path.screens().size(); ++place) {
        openFrom(place, head);
    }
}

// Takes the screens that have come by \a step.
void ScreenTour::add(const ScreenPath::Step &step, const QString &openedBy, const Packages &asked)
{
    m_unit->settle(StepMs);
    const int count = m_path.addNew();
    for (int i = m_path.screens().size() - count; i < m_path.screens().size(); ++i) {
        m_screens << Screen{ScreenReader::nameOf(m_path.screens().at(i).window), openedBy, asked, {}};
    }
    if (count > 0) {
        m_steps << step;
    }
}

void ScreenTour::openFrom(int place, HeadUnit *head)
{
    const QVector<ScreenTap::Target> targets = m_path.screens().at(place).targets;
    for (int i = 0; i < targets.size(); ++i) {
        const ScreenTap::Target &target = targets.at(i);
        const ScreenPath::Step step = {0, {}, place, i};
        const Effect effect = effectOf([&] { m_path.take(step, head); }, {});
        if (!effect.opened.isEmpty() && !effect.isDialog) {
            m_path.take(step, head);
            add(step, m_screens.at(place).name + ": " + target.name, effect.sent);
        } else if (effect.hasTurned && target.row < 0 && !effect.isDialog) {
            m_turns << target;
        }
    }
}

void ScreenTour::tapAll()
{
    for (int place = 0; place < m_path.screens().size(); ++place) {
        for (const ScreenTap::Target &target : m_path.screens().at(place).targets) {
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
