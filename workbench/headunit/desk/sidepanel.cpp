#include "sidepanel.h"

#include "boxkeyspage.h"
#include "boxpage.h"
#include "carpage.h"
#include "deskstyle.h"
#include "fingerscroll.h"
#include "linepage.h"
#include "panelsearch.h"
#include "unitpage.h"

#include <QButtonGroup>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
const int Gap = 8;
} // namespace

SidePanel::SidePanel(DecoderBox *box, LineInspector *inspector, KeyWatch *keys, QWidget *parent)
    : QWidget(parent)
    , m_box(box)
    , m_keys(keys)
    , m_search(new QLineEdit)
    , m_pages(new QStackedWidget)
    , m_linePage(new LinePage(inspector))
    , m_unitPage(new UnitPage)
{
    setObjectName(QStringLiteral("sidePanel"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedWidth(PanelWidth);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    QHBoxLayout *tabs = new QHBoxLayout;
    tabs->setSpacing(Gap);
    column->addLayout(tabs);
    m_search->setObjectName(QStringLiteral("panelSearch"));
    m_search->setClearButtonEnabled(true);
    column->addWidget(m_search);
    column->addWidget(m_pages);
    DeskStyle::dimHint(m_search);
    connect(m_search, &QLineEdit::textChanged, this, &SidePanel::search);
    if (box) {
        m_boxPage = new BoxPage(box);
        m_carArea = addPage(QT_TR_NOOP("Car"), new CarPage(box->car(), box->speaker()->properties()));
    }
    m_keysArea = addPage(QT_TR_NOOP("Keys"), new BoxKeysPage(box, keys));
    if (box) {
        addPage(QT_TR_NOOP("Box"), m_boxPage);
    }
    addPage(QT_TR_NOOP("Line"), m_linePage);
    addPage(QT_TR_NOOP("Unit"), m_unitPage);
    QButtonGroup *group = new QButtonGroup(this);
    for (int i = 0; i < m_tabs.size(); ++i) {
        group->addButton(m_tabs.at(i).button);
        tabs->addWidget(m_tabs.at(i).button);
        connect(m_tabs.at(i).button, &QPushButton::clicked, this, [this, i] { showPage(i); });
    }
    setTexts();
    showPage(box ? 0 : 1); // without one the line is what counts
}

QScrollArea *SidePanel::addPage(const char *title, QWidget *page)
{
    QScrollArea *area = new QScrollArea;
    area->setObjectName(QStringLiteral("sideArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(page);
    FingerScroll::enable(area);
    m_pages->addWidget(area);
    QPushButton *button = new QPushButton(tr(title));
    button->setObjectName(QStringLiteral("tab"));
    button->setCheckable(true);
    m_tabs << Tab{button, title};
    return area;
}

void SidePanel::showPage(int index)
{
    if (index >= 0 && index < m_tabs.size()) {
        m_pages->setCurrentIndex(index);
        m_tabs.at(index).button->setChecked(true);
        search();
    }
}

void SidePanel::search()
{
    QWidget *page = static_cast<QScrollArea *>(m_pages->currentWidget())->widget();
    m_search->setVisible(PanelSearch::isSearchable(page));
    if (PanelSearch::isSearchable(page)) {
        PanelSearch::find(page, m_search->text());
    }
}

void SidePanel::setTexts()
{
    for (const Tab &tab : m_tabs) {
        tab.button->setText(tr(tab.title));
    }
    m_search->setPlaceholderText(tr("Search"));
}

void SidePanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        if (m_box) { // their texts are part of how they are built
            m_carArea->setWidget(new CarPage(m_box->car(), m_box->speaker()->properties()));
        }
        m_keysArea->setWidget(new BoxKeysPage(m_box, m_keys));
        search();
    }
    QWidget::changeEvent(event);
}
