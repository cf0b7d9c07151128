#include "deskwindow.h"

#include "bitgrid.h"
#include "boxcatalog.h"
#include "climatewatch.h"
#include "deskstyle.h"
#include "headunit.h"
#include "keystrip.h"
#include "keywatch.h"
#include "lineinspector.h"
#include "linepage.h"
#include "linereporter.h"
#include "linestrip.h"
#include "orbapplication.h"
#include "orbhost.h"
#include "replaycard.h"
#include "sidepanel.h"
#include "unitpage.h"
#include "unitshell.h"
#include "unitview.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>

namespace {

const int Margin = 12;
const QSize Surroundings(8, 44); // about what a desktop puts around windows
const AppTagId TypeTag = 0x10008;
const AppTagId KeySetTag = 0x1000c;
const uint LanguageNotification = 20486;
const int UsbDisk = 0;
const int ClimatePatience = 6000; // milliseconds
const int ScreensPerSecond = 10;  // that are read for what a package changes there: a busy line stays cheap

// "Toyota" of "CanBus_Raise_Toyota"; empty for a type that does not exist.
QString carOf(int type)
{
    return BoxCatalog::className(type).section(QLatin1Char('_'), -1);
}

} // namespace

DeskWindow::DeskWindow(HeadUnit *unit, DecoderBox *box, const QSize &screenSize, QWidget *parent)
    : QWidget(parent), m_unit(unit)
{
    DeskStyle::load();
    // The desk's own texts are there from here on, before anything is built that shows them. The driver reads
    // English from the English file; headless a trace shows the source texts.
    OrbHost::instance()->setLanguage(OrbHost::instance()->language());
    setObjectName(QStringLiteral("deskWindow"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(DeskStyle::sheet());

    m_screen = new UnitScreen(screenSize);
    m_screen->setStyleSheet(styleSheet()); // it is a window of its own
    m_shell = new UnitShell(unit, m_screen, this);
    m_view = new UnitView(m_screen); // what the screen holds is shown with it
    m_keyStrip = new KeyStrip(OrbApplication::instance()->getTag(KeySetTag, QVariant(0)).toInt());
    const int type = OrbApplication::instance()->getTag(TypeTag, QVariant(0)).toInt();
    new ClimateWatch(ClimatePatience, this);
    m_inspector = new LineInspector(type, this);
    m_inspector->follow(unit);
    m_inspector->readScreens(ScreensPerSecond);
    m_sidePanel = new SidePanel(box, m_inspector, new KeyWatch(m_inspector, this));
    m_car = carOf(type);
    m_lineStrip = new LineStrip(m_car);
    m_fold = new QToolButton;
    m_fold->setObjectName(QStringLiteral("foldBar"));
    m_fold->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_fold->setFocusPolicy(Qt::NoFocus);
    QGridLayout *layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(m_view, 0, 0);
    layout->addWidget(m_keyStrip, 1, 0);
    layout->addWidget(m_fold, 0, 1, 2, 1);
    layout->addWidget(m_sidePanel, 0, 2, 2, 1);
    layout->addWidget(m_lineStrip, 2, 0, 1, 3);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);

    connect(m_keyStrip, &KeyStrip::keyUsed, m_shell, &UnitShell::useKey);
    connect(m_view, &UnitView::keyUsed, m_shell, &UnitShell::useKey);
    connect(m_fold, &QToolButton::clicked, this, [this] { foldPanel(!isPanelFolded()); });
    addShortcuts();
    UnitPage *unitPage = m_sidePanel->unitPage();
    unitPage->setLanguage(OrbHost::instance()->language());
    connect(unitPage, &UnitPage::languageChosen, this, &DeskWindow::chooseLanguage);
    connect(unitPage, &UnitPage::diskChanged, this, [this](bool isIn, const QString &path) {
        m_unit->setDisk(UsbDisk, isIn ? 1 : 0, isIn ? QStringList(path) : QStringList());
    });
    watchLine(box);
    retranslate();
    m_view->setFocus();
    resize(QWidget::screen()->availableSize() - Surroundings);
}

DeskWindow::~DeskWindow()
{
    // The shell works on the screen's pages, which go with the window's other children.
    delete m_shell;
    delete m_inspector; // who began to listen last stops first
}

void DeskWindow::chooseLanguage(const QString &language)
{
    OrbHost::instance()->setLanguage(language);
    m_sidePanel->unitPage()->setLanguage(OrbHost::instance()->language());
    m_unit->notify(LanguageNotification);
}

void DeskWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    add(QStringLiteral("Ctrl+Q"), [this] { close(); });
    add(Qt::Key_F12, [this] { saveLine(); });
    add(Qt::Key_F8, [this] { m_sidePanel->linePage()->openInspector(); });
    add(Qt::Key_F9, [this] { foldPanel(!isPanelFolded()); });
}

void DeskWindow::watchLine(DecoderBox *box)
{
    LinePage *page = m_sidePanel->linePage();
    m_lineReporter = new LineReporter(m_unit->lineHealth(), box, this);
    connect(m_lineReporter, &LineReporter::reported, this, &DeskWindow::showLine);
    connect(m_lineReporter, &LineReporter::stateChanged, this, &DeskWindow::showTitle);
    connect(m_lineStrip, &LineStrip::saveWanted, this, &DeskWindow::saveLine);
    connect(page, &LinePage::saveWanted, this, &DeskWindow::saveLine);
    connect(page, &LinePage::helloWanted, this, &DeskWindow::sayHello);
    BitGrid *grid = new BitGrid(QCoreApplication::applicationFilePath(), this);
    connect(page, &LinePage::packageChosen, grid, &BitGrid::showPackage);
}

void DeskWindow::showReplay(LineReplayer *replayer)
{
    ReplayCard *card = new ReplayCard(replayer);
    m_sidePanel->linePage()->addCard(card);
    connect(new QShortcut(Qt::Key_Space, this), &QShortcut::activated, card, &ReplayCard::toggle);
    connect(new QShortcut(Qt::Key_Period, this), &QShortcut::activated, card, &ReplayCard::step);
}

void DeskWindow::showLine(const LineStatus &status)
{
    m_lineStrip->setStatus(status);
    m_sidePanel->linePage()->setStatus(status);
    m_shell->setDoubt(status.isDoubtful() ? tr("Not sure: %1").arg(status.text()) : QString());
}

void DeskWindow::sayHello()
{
    m_sidePanel->linePage()->setAnswer(m_unit->lineHealth()->sayHello()
                                           ? tr("Hello said: the box was sent the ready command")
                                           : tr("There is no open line to say hello on"));
}

void DeskWindow::saveLine()
{
    const QString name =
        QDateTime::currentDateTime().toString(QStringLiteral("'line-'yyyyMMdd-HHmmss'.orblog'"));
    const QString path = QDir::current().absoluteFilePath(name);
    QString error;
    const QString sentence =
        m_unit->lineRecorder()->save(path, &error) ? tr("Saved the last 60 s: %1").arg(path) : error;
    m_lineStrip->setNote(sentence);
    m_sidePanel->linePage()->setAnswer(sentence);
}

bool DeskWindow::isPanelFolded() const
{
    return m_sidePanel->isHidden();
}

void DeskWindow::foldPanel(bool isFolded)
{
    m_sidePanel->setVisible(!isFolded);
    m_fold->setText(isFolded ? QStringLiteral("‹") : QStringLiteral("›"));
    m_fold->setToolTip(isFolded ? tr("Show the panel (F9)") : tr("Fold the panel away (F9)"));
}

void DeskWindow::showTitle()
{
    const QString port = m_lineReporter->status().port;
    const QString what =
        m_car + (m_car.isEmpty() || port.isEmpty() ? QString() : QStringLiteral(" · ")) + port;
    const QString name = tr("Head unit on the desk");
    setWindowTitle(what.isEmpty() ? name : what + QStringLiteral(" – ") + name);
}

void DeskWindow::retranslate()
{
    foldPanel(isPanelFolded());
    showTitle();
    showLine(m_lineReporter->status());
    m_shell->retranslate();
}

void DeskWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}
