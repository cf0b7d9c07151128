#include "orbhost.h"
#include "testmain.h"
#include "tracerecorder.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <functional>

namespace {

enum { Press = 2, Release = 3, Move = 5 };

/// Writes down the mouse events that reach it.
class TouchPad : public QWidget
{
public:
    TouchPad(const QString &padName, const QRect &place, QStringList *log, QWidget *parent)
        : QWidget(parent), m_name(padName), m_log(log)
    {
        setGeometry(place);
    }

    std::function<void()> onPress;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        write("press", event, Qt::LeftButton, Qt::LeftButton);
        if (onPress) {
            onPress();
        }
    }
    void mouseMoveEvent(QMouseEvent *event) override { write("move", event, Qt::NoButton, Qt::LeftButton); }
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        write("release", event, Qt::LeftButton, Qt::NoButton);
    }

private:
    // With the buttons as from a mouse, which needs no mention.
    void write(const char *what, QMouseEvent *event, Qt::MouseButton button, Qt::MouseButton held)
    {
        *m_log << QString("%1 %2 %3,%4").arg(m_name, what).arg(event->pos().x()).arg(event->pos().y());
        if (event->button() != button || event->buttons() != Qt::MouseButtons(held)) {
            m_log->last() += " with wrong buttons";
        }
    }

    QString m_name;
    QStringList *m_log;
};

struct Touch
{
    int type, x, y;
};

} // namespace

Q_DECLARE_METATYPE(QList<Touch>)

/// A 400x200 screen: pad "left" at 0,0 100x200, "right" at 100,0 100x200 with "child" at 10,10 50x50 in it,
/// and over the whole screen a sheet that touches go through.
class TestTouch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void touchReachesTheWidgetUnderIt_data();
    void touchReachesTheWidgetUnderIt();
    void deliveredFromTheEventLoop();
    void clicksARealButton_data();
    void clicksARealButton();
    void pressThatRunsAnEventLoopHoldsNothingUp();
    void widgetThatDiesWhileTouched();
    void screenThatIsNotThere();

private:
    void inject(const QList<Touch> &touches)
    {
        for (const Touch &touch : touches) {
            OrbApplication::simulateMouse(touch.type, touch.x, touch.y);
        }
    }

    QWidget *m_screen = nullptr;
    TouchPad *m_left = nullptr;
    TouchPad *m_right = nullptr;
    QStringList m_log;
};

void TestTouch::init()
{
    m_log.clear();
    m_screen = new TouchPad("screen", QRect(0, 0, 400, 200), &m_log, nullptr);
    m_left = new TouchPad("left", QRect(0, 0, 100, 200), &m_log, m_screen);
    m_right = new TouchPad("right", QRect(100, 0, 100, 200), &m_log, m_screen);
    new TouchPad("child", QRect(10, 10, 50, 50), &m_log, m_right);
    auto *sheet = new TouchPad("sheet", m_screen->rect(), &m_log, m_screen);
    sheet->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *hidden = new TouchPad("hidden", m_screen->rect(), &m_log, m_screen);
    hidden->hide();
    OrbHost::instance()->setScreen(m_screen, m_screen);
    m_screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_screen));
}

void TestTouch::cleanup()
{
    // Lets go of whatever a test still holds.
    OrbApplication::simulateMouse(Release, 0, 0);
    QCoreApplication::processEvents();
    delete m_screen;
    m_screen = nullptr;
}

void TestTouch::touchReachesTheWidgetUnderIt_data()
{
    QTest::addColumn<QList<Touch>>("touches");
    QTest::addColumn<QString>("log");
    const auto row = [](const char *name, const QList<Touch> &touches, const char *log) {
        QTest::newRow(name) << touches << QString(log);
    };
    row("child before its parent", {{Press, 115, 15}, {Release, 115, 15}},
        "child press 5,5|child release 5,5");
    row("a drag stays with the widget of the press",
        {{Press, 90, 50}, {Move, 150, 60}, {Move, -5, 500}, {Release, 160, 70}},
        "left press 90,50|left move 150,60|left move -5,500|left release 160,70");
    row("the next press is free again",
        {{Press, 5, 5}, {Release, 5, 5}, {Press, 190, 190}, {Release, 190, 190}},
        "left press 5,5|left release 5,5|right press 90,190|right release 90,190");
    row("second press after a lost release", {{Press, 5, 5}, {Press, 190, 190}, {Release, 190, 190}},
        "left press 5,5|left release -1,-1|right press 90,190|right release 90,190");
    row("nothing without a press", {{Release, 5, 5}, {Move, 5, 5}}, "");
    row("press outside the screen", {{Press, 400, 5}, {Move, 5, 5}, {Press, -1, 5}, {Release, 5, 5}}, "");
    row("press outside after a lost release", {{Press, 5, 5}, {Press, 400, 5}, {Move, 5, 5}},
        "left press 5,5|left release -1,-1");
    row("press where nothing but the screen is", {{Press, 300, 5}, {Move, 5, 5}, {Release, 5, 5}},
        "screen press 300,5|screen move 5,5|screen release 5,5");
    row("coordinates as large as they get",
        {{Press, 65535, 65535}, {Press, INT_MIN, INT_MAX}, {Release, INT_MAX, INT_MIN}}, "");
    row("type of another event", {{4, 5, 5}, {0, 5, 5}, {6, 5, 5}, {-1, 5, 5}}, "");
}

void TestTouch::touchReachesTheWidgetUnderIt()
{
    QFETCH(QList<Touch>, touches);
    inject(touches);
    QCoreApplication::processEvents();
    QTEST(m_log.join('|'), "log");
}

void TestTouch::deliveredFromTheEventLoop()
{
    TraceRecorder trace;
    inject({{Press, 5, 5}, {Release, 5, 5}});
    QCOMPARE(trace.take(),
             QStringList({"OrbApplication.simulateMouse(2,5,5)", "OrbApplication.simulateMouse(3,5,5)"}));
    QVERIFY(m_log.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(m_log.size(), 2);
}

void TestTouch::clicksARealButton_data()
{
    QTest::addColumn<QList<Touch>>("touches");
    QTest::addColumn<int>("clicks");
    QTest::newRow("tap") << QList<Touch>{{Press, 310, 110}, {Release, 312, 111}} << 1;
    QTest::newRow("slid off") << QList<Touch>{{Press, 310, 110}, {Move, 210, 110}, {Release, 210, 110}} << 0;
    QTest::newRow("release lost, tapped again")
        << QList<Touch>{{Press, 310, 110}, {Press, 310, 110}, {Release, 310, 110}} << 1;
}

void TestTouch::clicksARealButton()
{
    QFETCH(QList<Touch>, touches);
    QPushButton button("OK", m_screen);
    button.setGeometry(300, 100, 80, 60);
    button.show();
    QSignalSpy clicked(&button, &QPushButton::clicked);
    inject(touches);
    QCoreApplication::processEvents();
    QTEST(int(clicked.count()), "clicks");
    QVERIFY(!button.isDown());
}

void TestTouch::pressThatRunsAnEventLoopHoldsNothingUp()
{
    QEventLoop loop;
    bool nested = false;
    m_left->onPress = [&] {
        nested = true;
        loop.exec();
        nested = false;
    };
    bool deliveredInside = false;
    m_right->onPress = [&] {
        deliveredInside = nested;
        loop.quit();
    };
    QTimer tooLong;
    connect(&tooLong, &QTimer::timeout, &loop, &QEventLoop::quit);
    tooLong.start(5000);
    inject({{Press, 5, 5}, {Release, 5, 5}, {Press, 190, 190}, {Release, 190, 190}});
    QVERIFY(!nested);
    QCoreApplication::processEvents();
    QVERIFY(deliveredInside);
    QCOMPARE(m_log, QStringList({"left press 5,5", "left release 5,5", "right press 90,190",
                                 "right release 90,190"}));
}

void TestTouch::widgetThatDiesWhileTouched()
{
    inject({{Press, 5, 5}});
    QCoreApplication::processEvents();
    delete m_left;
    inject({{Move, 6, 6}, {Release, 150, 100}, {Press, 150, 100}});
    QCoreApplication::processEvents();
    QCOMPARE(m_log, QStringList({"left press 5,5", "right press 50,100"}));
}

void TestTouch::screenThatIsNotThere()
{
    inject({{Press, 5, 5}});
    QCoreApplication::processEvents();
    inject({{Move, 6, 6}, {Press, 5, 5}});
    delete m_screen;
    m_screen = nullptr;
    QVERIFY(!OrbHost::instance()->screen());
    QCoreApplication::processEvents();
    QCOMPARE(m_log, QStringList("left press 5,5"));
}

CANBUS_TEST_MAIN(TestTouch)
#include "tst_touch.moc"
