#include "driveprocess.h"

#include "orbapplication.h"
#include "orbhost.h"
#include "virtualclock.h"

#include <QFontMetrics>
#include <QIcon>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <sys/time.h>

namespace {

const int LetterWidth = 12; // pixels

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

// Fonts that nobody holds are forgotten after a while, and in a drive a while is nothing.
void keepFonts()
{
    static QList<QFont> fonts;
    for (int pixels = 8; pixels <= 80; ++pixels) {
        for (const QFont::Weight weight : {QFont::Normal, QFont::Bold}) {
            QFont font;
            font.setPixelSize(pixels);
            font.setWeight(weight);
            fonts << font;
            QFontMetrics(fonts.last()).height();
        }
    }
}

} // namespace

// Flushing to the disk is what a drive's settings would wait for most, and nobody pulls the plug here.
extern "C" int fsync(int)
{
    return 0;
}

// Looks are most of what building a window takes, and nobody sees them.
void QWidget::setStyleSheet(const QString &) {}
void QIcon::addFile(const QString &, const QSize &, Mode, State) {}
QIcon::QIcon(const QString &) : d(nullptr) {}
int QFontMetrics::horizontalAdvance(const QString &text, int) const
{
    return LetterWidth * int(text.size());
}
int QFontMetrics::height() const
{
    return 2 * LetterWidth;
}

// A resource is the global namespace's.
static void dropPictures()
{
    Q_CLEANUP_RESOURCE(volkswagen);
}

OrbApplication *DriveProcess::start(int *argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal"); // whose letters are boxes
    expect(VirtualClock::start(StartOfDrives), "no virtual clock");
    ::signal(SIGVTALRM, [](int) { std::abort(); });
    qInstallMessageHandler(ignoreMessage);
    static OrbApplication *const application = new OrbApplication(*argc, argv);
    dropPictures();
    application->setStyleSheet(QString());
    keepFonts();
    screen()->resize(1024, 600);
    return application;
}

void DriveProcess::expect(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

void DriveProcess::limitWork(int seconds)
{
    itimerval timer = {};
    timer.it_value.tv_sec = seconds;
    ::setitimer(ITIMER_VIRTUAL, &timer, nullptr);
}

QWidget *DriveProcess::screen()
{
    static QWidget *const screen = new QWidget;
    return screen;
}

QWidget *DriveProcess::front()
{
    OrbHost *const host = OrbHost::instance();
    return host->frontWindow() ? host->frontWindow() : host->frontWindow(false);
}
