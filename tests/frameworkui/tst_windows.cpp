#include "samplewindows.h"
#include "testmain.h"
#include "testscreen.h"
#include "tracerecorder.h"
#include "transcript.h"

#include "airconditiondlg.h"
#include "orbhost.h"
#include "orbwindowmanager.h"
#include "updatedialog.h"

#include <QLabel>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

/// Windows and dialogs on the unit's screen: what is reported, where they lie, what dialogs return, how they
/// outlive the screen. It stands in windows.txt; transcript.h tells how to read it.
class TestWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transcript();
    void titleIsShown();
    void processEndsWithDialogsOpen();
};

namespace {

/// "btnOk:Update btnCancel:Later 42": what of the update dialog is to be seen.
QString textOf(const QWidget *dialog)
{
    QStringList parts;
    for (const QWidget *part : dialog->findChildren<QWidget *>()) {
        const QProgressBar *const bar = qobject_cast<const QProgressBar *>(part);
        const QString text = bar ? QString::number(bar->value()) : part->property("text").toString();
        if (!part->isHidden() && !text.isEmpty()) {
            parts << part->objectName() + ':' + text;
        }
    }
    return parts.join(" | ");
}

/// A screen with windows A and B, dialogs D and E that want an answer, the climate display O, another such
/// display P and the update dialog U, each built when it is first named.
class Stage
{
public:
    ~Stage()
    {
        for (const QPointer<QWidget> &thing : m_things) {
            delete thing;
        }
    }

    QStringList act(const QString &order)
    {
        const QMap<QString, QString> before = state();
        m_notes.clear();
        m_trace.take();
        carryOut(order);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        QStringList lines = m_trace.take() + m_notes;
        const QMap<QString, QString> after = state();
        for (auto part = after.begin(); part != after.end(); ++part) {
            if (before.value(part.key()) != *part) {
                lines << part.key() + ": " + *part;
            }
        }
        return lines;
    }

private:
    QWidget *thing(const QString &name);
    QMap<QString, QString> state() const;
    void carryOut(const QString &order);
    void actOn(QWidget *thing, const QString &what, const QString &with);
    void setScreen(const QString &what, const QSize &size);

    std::unique_ptr<TestScreen> m_screen;
    std::unique_ptr<TestScreen> m_second;
    TraceRecorder m_trace;
    QMap<QString, QPointer<QWidget>> m_things;
    QStringList m_notes;
};

QWidget *Stage::thing(const QString &name)
{
    QPointer<QWidget> &found = m_things[name];
    if (found) {
        return found;
    }
    if (name == "A" || name == "B") {
        auto *const window = new HookedWindow(name == "A" ? 769 : 770);
        window->onHook = [this, name](const QString &hook) { m_notes << name + ' ' + hook; };
        found = window;
    } else if (name == "O") {
        found = new AirConditionDlg;
    } else if (name == "U") {
        auto *const update = new UpdateDialog;
        QObject::connect(update, &UpdateDialog::acceptUpdate, [this] { m_notes << "accepted"; });
        found = update;
    } else {
        found = new PlainDialog(name == "P" ? PlainDialog::Overlay : PlainDialog::Modal);
        QVBoxLayout *const column = new QVBoxLayout(found);
        column->setContentsMargins(10, 10, 10, 10);
        column->addWidget(new QLabel);
        found->findChild<QLabel *>()->setMinimumSize(50, 50);
    }
    return found;
}

QMap<QString, QString> Stage::state() const
{
    QMap<QString, QString> state;
    for (auto thing = m_things.begin(); thing != m_things.end(); ++thing) {
        QWidget *const widget = *thing;
        QStringList parts{!widget ? "deleted" : widget->isHidden() ? "hidden" : "shown"};
        if (widget && !widget->parentWidget()) {
            parts << "on no screen";
        } else if (widget && thing.key() != "U" && !widget->isHidden()) {
            const QRect place = widget->geometry();
            parts << QString("%1,%2 %3x%4")
                         .arg(place.x())
                         .arg(place.y())
                         .arg(place.width())
                         .arg(place.height());
        }
        state[thing.key()] =
            parts.join(' ') + (widget && thing.key() == "U" ? "; " + textOf(widget) : QString());
    }
    const auto nameOf = [this](QWidget *widget) { return widget ? m_things.key(widget, "another") : "none"; };
    const OrbHost *const host = OrbHost::instance();
    state["window in front"] = nameOf(host->frontWindow());
    state["all in front"] = nameOf(host->frontWindow(false));
    state["below all dialogs"] = nameOf(host->frontMainWindow());
    const QWidget *const area = host->windowArea();
    const QWidget *const scrim = area ? area->findChild<QWidget *>("orbScrim") : nullptr;
    state["scrim"] = scrim && !scrim->isHidden() ? "shown" : "none";
    state["application"] = QString::number(OrbWindowManager::getCurWindowAppId());
    return state;
}

void Stage::setScreen(const QString &what, const QSize &size)
{
    if (what == "new") {
        m_screen.reset(new TestScreen(size));
    } else if (what == "second") {
        m_second.reset(new TestScreen(size));
    } else if (what == "size") {
        m_screen->resize(size);
    } else if (what == "deleted") {
        m_screen.reset();
    } else {
        OrbHost::instance()->setScreen(nullptr, nullptr);
    }
}

void Stage::actOn(QWidget *thing, const QString &what, const QString &with)
{
    auto *const window = qobject_cast<HookedWindow *>(thing);
    auto *const dialog = qobject_cast<OrbDialog *>(thing);
    auto *const update = qobject_cast<UpdateDialog *>(thing);
    const QMap<QString, std::function<void()>> orders{
        {"show", [=] { thing->show(); }},
        {"hide", [=] { thing->hide(); }},
        {"close", [=] { thing->close(); }},
        {"delete", [=] { delete thing; }},
        {"back", [=] { window ? window->back() : dialog->back(); }},
        {"home", [=] { window->home(); }},
        {"hides-on-back", [=] { window->hideOnBack = true; }},
        {"goes-on-home", [=] { window->deleteOnHome = true; }},
        {"accept", [=] { dialog->accept(); }},
        {"done", [=] { dialog->done(with.toInt()); }},
        {"exec",
         [=] {
             const int result = execWhile(dialog, [=] {
                 for (const QString &order : with.split("; ")) {
                     carryOut(order);
                 }
             });
             m_notes << QString("returned %1").arg(result);
         }},
        {"needs", [=] { thing->findChild<QLabel *>()->setMinimumSize(with.toInt(), 300); }},
        {"asks", [=] { update->showUpdateDlg(with.toInt()); }},
        {"percent", [=] { update->updatePercent(with.toInt()); }},
        {"given", [=] { update->setProperty("everythingGiven", with == "all"); }},
        {"failed", [=] { update->setUpdateFailed(with.toInt()); }},
        {"click", [=] { thing->findChild<QPushButton *>(with)->click(); }},
        {"silence", [=] {
             QTimer *const timer = update->findChild<QTimer *>("silence");
             m_notes << (timer->isActive() ? QString::number(timer->interval()) + " ms passed"
                                           : "nobody waits");
             if (timer->isActive()) {
                 timer->stop();
                 QMetaObject::invokeMethod(timer, "timeout");
             }
         }}};
    if (!orders.contains(what)) {
        qFatal("unknown order: %s", qPrintable(what));
    }
    orders[what]();
}

void Stage::carryOut(const QString &order)
{
    const QString name = order.section(' ', 0, 0);
    const QString what = order.section(' ', 1, 1);
    const QString with = order.section(' ', 2);
    if (name == "screen") {
        setScreen(what, QSize(with.section('x', 0, 0).toInt(), with.section('x', 1).toInt()));
    } else if (name == "language") {
        OrbHost::instance()->setLanguage(what);
    } else {
        actOn(thing(name), what, with);
    }
}

} // namespace

void TestWindows::transcript()
{
    OrbHost::instance()->addTranslationDir(TRANSLATION_FOLDER);
    std::unique_ptr<Stage> stage;
    const auto act = [&stage](const QString &order) {
        if (order.startsWith("==")) {
            stage.reset();
            stage.reset(new Stage);
            return QStringList();
        }
        return stage->act(order);
    };
    COMPARE_WITH_TRANSCRIPT("windows.txt", act);
}

void TestWindows::titleIsShown()
{
    TestScreen screen;
    HookedWindow window;
    window.setWindowTitle("Tyres");
    window.show();
    const QLabel *title = window.findChild<QLabel *>("orbTitle");
    QCOMPARE(title->text(), QString("Tyres"));
    window.setWindowTitle(QString(200, 'W'));
    QVERIFY(title->text().size() < 200 && title->text().startsWith('W'));
    QCOMPARE(window.width(), 1024);
}

// An adapter lives until the process ends, and so do its dialog and windows.
void TestWindows::processEndsWithDialogsOpen()
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"--leave-open"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == 0, process.readAll().constData());
}

static int leaveOpen(int argc, char **argv)
{
    struct Adapter
    {
        AirConditionDlg climate;
        HookedWindow window;
        UpdateDialog update;
    };
    OrbApplication application(argc, argv);
    TestScreen screen;
    static Adapter *const adapter = new Adapter;
    adapter->window.show();
    adapter->climate.show();
    adapter->update.showUpdateDlg(1);
    QTimer::singleShot(0, &application, &QCoreApplication::quit);
    return OrbApplication::exec();
}

int main(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--leave-open") == 0) {
        return leaveOpen(argc, argv);
    }
    OrbApplication application(argc, argv);
    TestWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_windows.moc"
