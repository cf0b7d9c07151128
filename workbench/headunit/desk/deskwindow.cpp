#include "deskwindow.h"

#include "climatewatch.h"
#include "headunit.h"
#include "keystrip.h"
#include "orbapplication.h"
#include "orbhost.h"
#include "sidepanel.h"
#include "unitpage.h"
#include "unitshell.h"
#include "unitview.h"

#include <QEvent>
#include <QFile>
#include <QGridLayout>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>

namespace {

const int Margin = 12;
const QSize Surroundings(8, 44); // about what a desktop puts around windows
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
    m_screen->setStyleSheet(styleSheet()); // it is a window of its own
    m_shell = new UnitShell(unit, m_screen, this);
    m_view = new UnitView(m_screen); // what the screen holds is shown with it
    m_keyStrip = new KeyStrip(OrbApplication::instance()->getTag(KeySetTag, QVariant(0)).toInt());
    m_sidePanel = new SidePanel(box);
    new ClimateWatch(ClimatePatience, this);
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
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);

    connect(m_keyStrip, &KeyStrip::keyUsed, m_shell, &UnitShell::useKey);
    connect(m_view, &UnitView::keyUsed, m_shell, &UnitShell::useKey);
    connect(m_fold, &QToolButton::clicked, this, [this] { foldPanel(!isPanelFolded()); });
    addShortcuts();
    UnitPage *unitPage = m_sidePanel->unitPage();
    // The driver reads English from the English file; headless a trace shows the source texts.
    OrbHost::instance()->setLanguage(OrbHost::instance()->language());
    unitPage->setLanguage(OrbHost::instance()->language());
    connect(unitPage, &UnitPage::languageChosen, this, &DeskWindow::chooseLanguage);
    connect(unitPage, &UnitPage::diskChanged, this, [this](bool isIn, const QString &path) {
        m_unit->setDisk(UsbDisk, isIn ? 1 : 0, isIn ? QStringList(path) : QStringList());
    });
    retranslate();
    m_view->setFocus();
    resize(QWidget::screen()->availableSize() - Surroundings);
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

void DeskWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    add(Qt::CTRL | Qt::Key_Q, [this] { close(); });
    add(Qt::Key_F9, [this] { foldPanel(!isPanelFolded()); });
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

void DeskWindow::retranslate()
{
    foldPanel(isPanelFolded());
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
