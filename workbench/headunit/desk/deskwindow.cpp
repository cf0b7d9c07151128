#include "deskwindow.h"

#include "climatewatch.h"
#include "headunit.h"
#include "keystrip.h"
#include "orbapplication.h"
#include "orbhost.h"
#include "sidepanel.h"
#include "unitpage.h"
#include "unitshell.h"

#include <QEvent>
#include <QFile>
#include <QGridLayout>
#include <QGuiApplication>
#include <QScreen>

namespace {

const int Margin = 12;
const int PreferredHeight = 860;
const int TitleBarHeight = 40; // about what a desktop puts around windows
const AppTagId KeySetTag = 0x1000c;
const uint LanguageNotification = 20486;
const int UsbDisk = 0;
const int ClimatePatience = 6000; // milliseconds

} // namespace

// Resources of a static library are there only once someone asks for them, outside any namespace.
static void loadResources()
{
    Q_INIT_RESOURCE(desk);
    Q_INIT_RESOURCE(headunit_i18n);
}

DeskWindow::DeskWindow(HeadUnit *unit, DecoderBox *box, const QSize &screenSize, QWidget *parent)
    : QWidget(parent), m_unit(unit)
{
    loadResources();
    OrbHost::instance()->addTranslationDir(QStringLiteral(":/i18n"));
    setObjectName(QStringLiteral("deskWindow"));
    setAttribute(Qt::WA_StyledBackground);
    QFile style(QStringLiteral(":/desk/desk.qss"));
    if (style.open(QIODevice::ReadOnly)) {
        setStyleSheet(QString::fromUtf8(style.readAll()));
    }

    m_screen = new UnitScreen(screenSize);
    m_shell = new UnitShell(unit, m_screen, this);
    m_keyStrip = new KeyStrip(OrbApplication::instance()->getTag(KeySetTag, QVariant(0)).toInt());
    m_sidePanel = new SidePanel(box);
    new ClimateWatch(ClimatePatience, this);
    QGridLayout *layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_screen, 0, 0);
    layout->addWidget(m_keyStrip, 1, 0, Qt::AlignTop);
    layout->addWidget(m_sidePanel, 0, 1, 2, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);

    connect(m_keyStrip, &KeyStrip::keyUsed, m_shell, &UnitShell::useKey);
    UnitPage *unitPage = m_sidePanel->unitPage();
    // The driver reads English from the English file; headless a trace shows the source texts.
    OrbHost::instance()->setLanguage(OrbHost::instance()->language());
    unitPage->setLanguage(OrbHost::instance()->language());
    connect(unitPage, &UnitPage::languageChosen, this, &DeskWindow::chooseLanguage);
    connect(unitPage, &UnitPage::diskChanged, this, [this](bool isIn, const QString &path) {
        m_unit->setDisk(UsbDisk, isIn ? 1 : 0, isIn ? QStringList(path) : QStringList());
    });
    retranslate();
    // The panel has much to show: as high as fits the display, though not more than it needs.
    const QRect display = QGuiApplication::primaryScreen()->availableGeometry();
    resize(sizeHint().width(),
           qMax(sizeHint().height(), qMin(display.height() - TitleBarHeight, PreferredHeight)));
}

DeskWindow::~DeskWindow()
{
    // The shell works on the screen's pages, which go with the window's other children.
    delete m_shell;
}

void DeskWindow::chooseLanguage(const QString &language)
{
    OrbHost::instance()->setLanguage(language);
    m_sidePanel->unitPage()->setLanguage(OrbHost::instance()->language());
    m_unit->notify(LanguageNotification);
}

void DeskWindow::retranslate()
{
    setWindowTitle(tr("Head unit on the desk"));
    m_shell->retranslate();
}

void DeskWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}
